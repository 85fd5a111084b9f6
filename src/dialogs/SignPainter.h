#pragma once

#include "visual/DrawDevice.h"

namespace phial
{

/// Draws one of the signs of KeySigns.h into a square. A character that is none is printed as it is.
void paintSign(DrawDevice& device, char16_t sign, const PixelRectangle& square, Colour colour);

} // namespace phial
