#pragma once

#include "core/Colour.h"

#include <optional>

namespace phial
{

/// The set of colours that this user has chosen for all programs; none: as the desktop's own windows. A
/// value that is none of the sets counts as none.
std::optional<ColourSet> rememberedColours();

/// Shows the set, or follows the desktop, from now on and in later runs.
void chooseColours(std::optional<ColourSet> set);

} // namespace phial
