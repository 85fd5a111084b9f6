#pragma once

#include "core/Palette.h"

#include <algorithm>
#include <cmath>

namespace phial::test
{

inline double luminance(Colour colour)
{
    const auto part = [](std::uint8_t value) {
        const double share = value / 255.0;
        return share <= 0.03928 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * part(colour.red()) + 0.7152 * part(colour.green()) + 0.0722 * part(colour.blue());
}

/// As the guidelines for accessible pages work it out: 1 to 21.
inline double contrast(Colour one, Colour other, ColourSet set)
{
    const double first = luminance(defaultColour(one, set));
    const double second = luminance(defaultColour(other, set));
    return (std::max(first, second) + 0.05) / (std::min(first, second) + 0.05);
}

} // namespace phial::test
