#include "app/RecentNames.h"

#include "app/Settings.h"
#include "core/CoreRegistry.h"
#include "core/CoreRoot.h"

namespace phial
{

namespace
{

constexpr StringView NamesSetting = u"Config\\ScreenNameMRU";
constexpr char16_t NameDivider = u':';

CoreStringList storedEntries()
{
    return coreRoot().CoreRegistry().CoreRegistryRead().ReadList(SettingsHive::CurrentUser,
                                                                 settings::path(NamesSetting));
}

RecentName divided(const String& entry)
{
    const std::size_t end = entry.find(NameDivider);
    if (end == String::npos) {
        return {entry, {}};
    }
    return {entry.substr(0, end), entry.substr(end + 1)};
}

} // namespace

std::vector<RecentName> recentNames()
{
    std::vector<RecentName> names;
    for (const String& entry : storedEntries()) {
        names.push_back(divided(entry));
    }
    return names;
}

void rememberName(const RecentName& chosen)
{
    const String entry = chosen.name + NameDivider + chosen.avatar;
    CoreStringList entries = storedEntries();
    while (entries.Exists(entry)) {
        entries.Remove(entry);
    }
    entries.Insert(entry, 1);
    coreRoot().CoreRegistry().CoreRegistryWrite().WriteList(SettingsHive::CurrentUser,
                                                            settings::path(NamesSetting), entries);
}

} // namespace phial
