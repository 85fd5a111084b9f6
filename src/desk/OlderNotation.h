#pragma once

#include "core/String.h"

namespace phial
{

class DrawDevice;

/// Draws a formula of the sheet of groups in the device's font, in the middle of its height: "@" begins a
/// lower part, "^" a raised one, and "|" ends either. Parts are shifted by half of the height of "G" and keep
/// the size. The device's unit is the pixel.
void drawOlderNotation(DrawDevice& device, double height, StringView notation);

/// The same as readFormula takes it: "NH@4|^+|" is "NH4^+".
String termOfOlderNotation(StringView notation);

/// The same with small lowered and raised characters where there are such: "NH₄⁺".
String unicodeOfOlderNotation(StringView notation);

} // namespace phial
