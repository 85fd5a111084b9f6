// Shows the model of a compound: molecule_viewer TREE COMPOUND. Ends with 0 when the viewer was started.

#include "app/Session.h"
#include "app/cls_App.h"
#include "app/cls_AppTools.h"
#include "app/cls_AppURL.h"
#include "app/sys_Global.h"
#include "core/NativePath.h"
#include "qt/desktop/DesktopApplication.h"

#include <cstdlib>

int main(int argc, char** argv)
{
    const phial::qt::DesktopApplication application(argc, argv, u"Molecules");
    const phial::Session session(application.platform());
    if (argc != 3) {
        return EXIT_FAILURE;
    }
    phial::QVAPP()->URL()->INITROOT(phial::systemPath(argv[1]) + u"\\");
    return phial::QVAPP()->TOOLS()->RASMOL(phial::fromUtf8(argv[2])) ? EXIT_SUCCESS : EXIT_FAILURE;
}
