#include "app/ColourChoice.h"

#include "app/Settings.h"
#include "core/CoreRegistry.h"
#include "core/CoreRoot.h"
#include "core/SessionState.h"

namespace phial
{

namespace
{

constexpr StringView ColoursValue = u"Config\\Colours";

/// What is kept: 0 for the desktop's choice, then the sets in their order.
constexpr std::int32_t KeptLight = 1;
constexpr std::int32_t KeptDark = 2;
constexpr std::int32_t KeptHighContrast = 3;

} // namespace

std::optional<ColourSet> rememberedColours()
{
    switch (coreRoot().CoreRegistry().CoreRegistryRead().ReadLong(SettingsHive::CurrentUser,
                                                                  settings::path(ColoursValue), 0)) {
    case KeptLight:
        return ColourSet::Light;
    case KeptDark:
        return ColourSet::Dark;
    case KeptHighContrast:
        return ColourSet::HighContrast;
    default:
        return std::nullopt;
    }
}

void chooseColours(std::optional<ColourSet> set)
{
    const std::int32_t kept = set ? static_cast<std::int32_t>(*set) + KeptLight : 0;
    coreRoot().CoreRegistry().CoreRegistryWrite().WriteLong(SettingsHive::CurrentUser,
                                                            settings::path(ColoursValue), kept);
    coreTheme().SetColours(set);
}

} // namespace phial
