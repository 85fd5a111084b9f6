#pragma once

#include <cstdint>

namespace phial
{

/// Checked arithmetic: where plain C++ gives infinities and not-a-numbers, these raise 5 (invalid argument),
/// 6 (overflow) or 11 (division by zero). An argument that is not finite raises 5.

/// Sum, difference and product; 6 beyond the range of a double.
double checkedAdd(double left, double right);
double checkedSubtract(double left, double right);
double checkedMultiply(double left, double right);

/// Quotient; 11 for the divisor 0, 6 beyond the range.
double checkedDivide(double dividend, double divisor);

/// Power; 5 for a negative base with an exponent that is not whole, 11 for 0 to a negative power, 6 beyond
/// the range. 0 to the power of 0 is 1.
double checkedPower(double base, double exponent);

/// Square root; 5 for a negative number.
double checkedSquareRoot(double value);

/// Natural logarithm; 5 for 0 and below.
double checkedLogarithm(double value);

/// e to the value; 6 beyond the range.
double checkedExponential(double value);

/// Rounds to the nearest whole number, halves to the even neighbour; 6 beyond 32 bits (not-a-number too).
std::int32_t toWhole(double value);

/// Quotient and remainder of whole numbers, truncating towards zero, so that the remainder has the sign of
/// the dividend; 11 for the divisor 0, and the quotient 6 for the one result beyond 32 bits.
std::int32_t wholeQuotient(std::int32_t dividend, std::int32_t divisor);
std::int32_t wholeRemainder(std::int32_t dividend, std::int32_t divisor);

/// Rounds to that many decimals (5 below 0). The exact binary value decides and a true tie goes to the even
/// digit: 0.125 gives 0.12, 2.675 (which is a little less in binary) 2.67. Values that are not finite stay.
double roundToDecimals(double value, int decimals);

} // namespace phial
