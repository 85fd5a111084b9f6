#pragma once

#include "core/String.h"

namespace phial
{

class DrawDevice;

/// The text on one line: line ends and other controls are blanks.
String oneLine(String text);

/// As much of a line as has room, in the device's font and unit, with three dots for the rest. Pairs of units
/// stay whole.
String fittedLine(DrawDevice& device, String text, double room);

} // namespace phial
