#include "dialogs/ScanChoice.h"

#include "app/Settings.h"
#include "core/CoreRegistry.h"
#include "core/CoreRoot.h"

namespace phial
{

namespace
{

constexpr StringView ScanValue = u"Config\\KeyboardScan";

std::int32_t scanInRange(std::int32_t interval)
{
    constexpr std::int32_t Shortest = 200;
    constexpr std::int32_t Longest = 10'000;
    return interval >= Shortest && interval <= Longest ? interval : 0;
}

} // namespace

std::int32_t rememberedScan()
{
    return scanInRange(coreRoot().CoreRegistry().CoreRegistryRead().ReadLong(SettingsHive::CurrentUser,
                                                                             settings::path(ScanValue), 0));
}

void chooseScan(std::int32_t interval)
{
    coreRoot().CoreRegistry().CoreRegistryWrite().WriteLong(SettingsHive::CurrentUser,
                                                            settings::path(ScanValue), scanInRange(interval));
}

} // namespace phial
