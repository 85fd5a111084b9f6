#pragma once

#include "visual/Picture.h"

namespace phial
{

/// What lies behind the keys: a plate with round corners and a grip by which it looks as if it could be
/// moved, in the colours in force. Size is in pixels, `scale` how much larger than designed the keyboard is.
/// Outside of the plate the picture has holes.
PicturePtr keyboardGround(PixelSize size, double scale);

} // namespace phial
