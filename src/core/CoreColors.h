#pragma once

#include "core/Colour.h"
#include "core/String.h"

#include <cstdint>

namespace phial
{

class DrawDevice;

/// Mixing of colours and their text form. System slots count as their default colours.
class CoreColors
{
public:
    /// The mix of two colours; the percentage, limited to 0 to 100, is the share of the second.
    static Colour Blend(Colour pColour, double pPercentage, Colour pSecond);
    /// `#RRGGBB` with capital letters.
    static String ToHtml(Colour pColour);
    /// The colour moved towards white or black by that percentage.
    static Colour Lighten(Colour pColour, double pAmount);
    static Colour Darken(Colour pColour, double pAmount);
    /// Fills the rectangle, in the device's scale, with a passage from one colour to the other in that many
    /// steps. The angle is in degrees: 0 runs from left to right, 90 from top to bottom.
    static void Gradient(DrawDevice& pDevice, double pLeft, double pTop, double pWidth, double pHeight,
                         Colour pFrom, Colour pTo, double pAngle, std::int32_t pSteps);
};

} // namespace phial
