#pragma once

#include "visual/Geometry.h"

#include <vector>

namespace phial
{

/// A box with round corners as points, corner by corner, for DrawDevice::Polygon. They go through the middles
/// of the box's outermost pixels. The radius is at most half of a side.
std::vector<PixelPoint> roundedOutline(const PixelRectangle& area, double radius);

} // namespace phial
