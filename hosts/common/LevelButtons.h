#pragma once

#include "core/String.h"
#include "visual/ControlArray.h"
#include "visual/ctl_Button.h"

#include <span>

namespace learning
{

/// Makes the buttons of that many levels, at most MostLevelsShown, and shares the start page's room for them:
/// one row for three, two rows for more. The first one stands there already.
void arrangeLevels(phial::ControlArray<phial::ctl_Button>& buttons, std::size_t count);

/// Writes the titles on the buttons, all in the largest size in which each has room on its own. A title that
/// has none even in the smallest ends in three dots; screen readers and whoever points at it get the whole.
void nameLevels(const phial::ControlArray<phial::ctl_Button>& buttons, std::span<const phial::String> titles);

} // namespace learning
