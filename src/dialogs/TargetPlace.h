#pragma once

#include "core/Object.h"
#include "visual/Geometry.h"

#include <optional>

namespace phial
{

/// Where a control is seen, in pixels of the desktop. One without a window of its own, such as a label, has
/// its place on what holds it. None for what is no control or is not to be seen.
std::optional<PixelRectangle> placeSeen(const ObjectPtr& target);

/// What a keyboard for the control stands beside and leaves in sight, such as the question to which it is the
/// answer: the place of what the control, or the one that holds it for itself, names as its `KeyboardBeside`,
/// the control's own included. None where nothing is named or seen.
std::optional<PixelRectangle> placeToKeep(const ObjectPtr& target);

} // namespace phial
