#pragma once

#include "visual/Geometry.h"

#include <optional>

namespace phial
{

class ControlFrame;

/// Where the pointer is, in pixels from a control's corner; none where the desktop does not tell.
std::optional<PixelPoint> pointerFrom(const ControlFrame& frame);

} // namespace phial
