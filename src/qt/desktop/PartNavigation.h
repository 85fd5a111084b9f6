#pragma once

#include "visual/UserControl.h"

#include <QColor>

#include <optional>
#include <vector>

class QPainter;

namespace phial::qt
{

/// The part with an action that an arrow key reaches from another one: the nearest in that direction. From
/// none, any arrow key gives the first. None when there is nothing that way or the key is no arrow.
std::optional<std::size_t> nextPart(const std::vector<NamedPart>& parts, std::optional<std::size_t> from,
                                    int key);

/// The ring around the part that the arrow keys have reached.
void paintPartFocus(QPainter& painter, const std::vector<NamedPart>& parts, std::optional<std::size_t> part,
                    QColor colour);

} // namespace phial::qt
