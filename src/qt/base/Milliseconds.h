#pragma once

#include <algorithm>
#include <cmath>
#include <limits>

namespace phial::qt
{

/// Seconds as the toolkit's timers take them: rounded up, 0 for what is not positive, and never beyond what
/// they can count.
inline int milliseconds(double seconds)
{
    constexpr double Limit = std::numeric_limits<int>::max();
    return seconds > 0 ? static_cast<int>(std::min(std::ceil(seconds * 1000), Limit)) : 0;
}

} // namespace phial::qt
