#include "app/screen/DebugPos.h"

#include "app/Settings.h"
#include "core/CoreRegistry.h"
#include "core/CoreRoot.h"

namespace phial
{

void DebugPos(StringView pText)
{
    coreRoot().CoreRegistry().CoreRegistryWrite().writeTrace(SettingsHive::CurrentUser,
                                                             settings::path(u"DebugPos"), pText);
}

} // namespace phial
