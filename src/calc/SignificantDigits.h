#pragma once

#include "core/String.h"

#include <optional>

namespace phial
{

/// A term's value with no more digits than its numbers warrant, by the rules of school: a term of sums and
/// differences alone has as many decimals as the number with the fewest; any other has as many significant
/// digits as the number with the fewest. Zeros that belong to these digits are written: 2,0*3,0 is 6,0.
///
/// Numbers without a decimal sign are counts and exact; so are exponents of powers. None for a term of such
/// numbers only, and for one with names in it, whose digits are not known. Beyond the digits, and below
/// 0.0001, the value has an exponent: 1,2E+05.
std::optional<String> inSignificantDigits(double value, StringView term, char16_t decimalSign);

/// The number with as many of its 15 significant digits as so many signs have room for, never without its
/// exponent. 20 signs have room for every number; what not even one digit helps is longer than the room.
String textInRoom(double value, std::size_t room, char16_t decimalSign);

} // namespace phial
