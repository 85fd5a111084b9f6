#pragma once

#include "visual/UserControl.h"

#include <optional>
#include <vector>

namespace phial::qt
{

/// The part with an action that an arrow key reaches from another one: the nearest in that direction. From
/// none, any arrow key gives the first. None when there is nothing that way or the key is no arrow.
std::optional<std::size_t> nextPart(const std::vector<NamedPart>& parts, std::optional<std::size_t> from,
                                    int key);

} // namespace phial::qt
