#pragma once

#include <cstdint>

namespace phial
{

/// How long each key of a keyboard lights up for a single switch, in milliseconds, as this user has chosen it
/// for all programs; 0 for no scan, which is the default. What is kept outside of 200 to 10000 counts as 0.
std::int32_t rememberedScan();

/// For keyboards that are opened from now on. A value out of range is kept as 0.
void chooseScan(std::int32_t interval);

} // namespace phial
