#pragma once

#include "core/String.h"

namespace phial
{

/// What is left of a finite number when it is written plainly and read again: the nearest number of 15
/// significant digits, and 0 for -0.
///
/// The solver keeps every intermediate value as text, so each one loses its digits beyond the fifteenth. This
/// gives the same double without writing the text, for most numbers.
double numberThroughText(double value);

/// The number that a typed token stands for: what CoreNumbers.ToDouble reads, sooner for plain decimal
/// numbers.
double numberOfToken(StringView token);

} // namespace phial
