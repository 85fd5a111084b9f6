#pragma once

#include "core/Object.h"
#include "visual/Geometry.h"

#include <optional>

namespace phial
{

/// Where a control is seen, in pixels of the desktop. One without a window of its own, such as a label, has
/// its place on what holds it. None for what is no control or is not to be seen.
std::optional<PixelRectangle> placeSeen(const ObjectPtr& target);

} // namespace phial
