#include "periodic/ElementFile.h"

#include "app/cls_App.h"
#include "app/cls_AppURL.h"
#include "app/cls_Language.h"
#include "app/sys_Global.h"
#include "core/CoreDialogs.h"
#include "core/CoreFiles.h"
#include "core/CoreRoot.h"

namespace phial
{

String elementFile()
{
    return QVAPP()->URL()->ROOT() + u"resources\\data\\elements2.dat";
}

bool checkElementFile()
{
    const String file = elementFile();
    if (coreRoot().CoreFiles().Exists(file)) {
        return true;
    }
    coreRoot().CoreDialogs().Error(
        LNG()->TRANSLATE(u"Die Elemente-Datei des PSE wurde nicht gefunden: ",
                         u"The element file of the periodic table was not found: ") +
        file);
    return false;
}

} // namespace phial
