#pragma once

#include "core/String.h"

#include <cstddef>
#include <cstdint>

namespace phial
{

/// A number turned to text "plainly": up to 15 significant digits without trailing zeros; fixed notation from
/// 1E-5 up to 15 digits before the decimal sign, otherwise `1,5E+20` with sign and at least two digits; never
/// "-0". Values that are not finite give "inf", "-inf" and "nan".
String plainText(double value, char16_t decimalSign);
String plainText(std::int32_t value);

/// What a reader of numbers found at the beginning of a text.
struct NumberAtStart {
    double value = 0;
    /// Units read, leading blanks included; 0 when there is no number.
    std::size_t length = 0;
    /// The number is there but beyond the range of a double; `value` is 0 then.
    bool overflow = false;
};

/// The number at the beginning of a text: leading blanks, sign, digits with a point as decimal sign, and an
/// exponent (`E` in either case, an optional sign, digits). A number too small for a double is 0.
NumberAtStart numberAtStart(StringView text);

/// As above as people type it: comma or point is the decimal sign. When both occur in the number, the last
/// is the decimal sign and the other groups digits ("1.234,5"). In an exponent `P` and `M` stand for plus
/// and minus as well (`1EP3`, `1EM3`).
NumberAtStart typedNumberAtStart(StringView text);

} // namespace phial
