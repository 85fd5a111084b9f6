#pragma once

#include "core/String.h"

#include <cstdint>
#include <optional>

namespace phial
{

// Numbers as packed values and parameters write them: the same in every locale, and read from the first to
// the last sign of the text, so that a blank or a further sign makes it no number.

/// The shortest text that reads back as the same number, to the last bit, with a point and an exponent `e`;
/// for a number that is not finite `#` and the 16 hexadecimal digits of its bits.
String exactText(double number);

/// The number of such a text; no value for any other text, or beyond the range.
std::optional<double> exactReal(StringView text);

/// Decimal digits, for the first one with `-` in front of a negative number; no value for any other text, or
/// beyond 32 bits.
std::optional<std::int32_t> exactWhole(StringView text);
std::optional<std::uint32_t> exactCount(StringView text);

} // namespace phial
