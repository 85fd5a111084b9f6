// The same for a learning app: up to the end of INIT, where its first window would come.

#include "app/Session.h"
#include "app/cls_App.h"
#include "app/cls_AppConfig.h"
#include "app/cls_AppURL.h"
#include "app/sys_Global.h"
#include "qt/desktop/DesktopApplication.h"

int main(int argc, char** argv)
{
    const phial::qt::DesktopApplication application(argc, argv, u"Startup");
    const phial::Session session(application.platform());
    phial::QVAPP()->CONFIG()->IDENT(u"Startup");
    phial::QVAPP()->INIT(application.commandLine());
    return phial::QVAPP()->URL()->ROOT().empty() ? 1 : 0;
}
