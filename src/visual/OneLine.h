#pragma once

#include "core/String.h"
#include "visual/FontSpec.h"
#include "visual/Geometry.h"

namespace phial
{

class DrawDevice;

/// The text on one line: line ends and other controls are blanks.
String oneLine(String text);

/// As much of a line as has room, in the device's font and unit, with three dots for the rest. Pairs of units
/// stay whole.
String fittedLine(DrawDevice& device, String text, double room);

/// The room in pixels that a field of one line needs in that font: for a number or a short word, with space
/// around.
PixelSize fieldSize(const FontSpec& font);

} // namespace phial
