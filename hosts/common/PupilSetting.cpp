#include "common/PupilSetting.h"

#include "app/Settings.h"
#include "app/cls_App.h"
#include "app/cls_AppConfig.h"
#include "app/sys_Global.h"

#include <algorithm>

namespace learning
{

phial::String pupilSetting(phial::StringView what, phial::StringView pupil)
{
    phial::String name(pupil);
    std::replace(name.begin(), name.end(), u'\\', u' ');
    return phial::settings::path(phial::String(what)
                                     .append(u"\\")
                                     .append(phial::QVAPP()->CONFIG()->IDENT())
                                     .append(u"\\")
                                     .append(name));
}

} // namespace learning
