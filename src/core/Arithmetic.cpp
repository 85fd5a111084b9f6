#include "core/Arithmetic.h"

#include "core/RuntimeError.h"

#include <array>
#include <charconv>
#include <cmath>
#include <initializer_list>
#include <limits>
#include <string>

namespace phial
{

namespace
{

void requireFinite(std::initializer_list<double> arguments)
{
    for (const double argument : arguments) {
        if (!std::isfinite(argument)) {
            throw RuntimeError(ErrorNumber::InvalidArgument);
        }
    }
}

double withinRange(double result)
{
    if (!std::isfinite(result)) {
        throw RuntimeError(ErrorNumber::Overflow);
    }
    return result;
}

} // namespace

double checkedAdd(double left, double right)
{
    requireFinite({left, right});
    return withinRange(left + right);
}

double checkedSubtract(double left, double right)
{
    requireFinite({left, right});
    return withinRange(left - right);
}

double checkedMultiply(double left, double right)
{
    requireFinite({left, right});
    return withinRange(left * right);
}

double checkedDivide(double dividend, double divisor)
{
    requireFinite({dividend, divisor});
    if (divisor == 0) {
        throw RuntimeError(ErrorNumber::DivisionByZero);
    }
    return withinRange(dividend / divisor);
}

double checkedPower(double base, double exponent)
{
    requireFinite({base, exponent});
    if (base == 0 && exponent < 0) {
        throw RuntimeError(ErrorNumber::DivisionByZero);
    }
    if (base < 0 && exponent != std::trunc(exponent)) {
        throw RuntimeError(ErrorNumber::InvalidArgument);
    }
    return withinRange(std::pow(base, exponent));
}

double checkedSquareRoot(double value)
{
    requireFinite({value});
    if (value < 0) {
        throw RuntimeError(ErrorNumber::InvalidArgument);
    }
    return std::sqrt(value);
}

double checkedLogarithm(double value)
{
    requireFinite({value});
    if (value <= 0) {
        throw RuntimeError(ErrorNumber::InvalidArgument);
    }
    return std::log(value);
}

double checkedExponential(double value)
{
    requireFinite({value});
    return withinRange(std::exp(value));
}

std::int32_t toWhole(double value)
{
    // The default rounding mode goes to the nearest, halves to even.
    const double rounded = std::nearbyint(value);
    constexpr double Least = std::numeric_limits<std::int32_t>::min();
    constexpr double Greatest = std::numeric_limits<std::int32_t>::max();
    if (!(rounded >= Least && rounded <= Greatest)) {
        throw RuntimeError(ErrorNumber::Overflow);
    }
    return static_cast<std::int32_t>(rounded);
}

std::int32_t wholeQuotient(std::int32_t dividend, std::int32_t divisor)
{
    if (divisor == 0) {
        throw RuntimeError(ErrorNumber::DivisionByZero);
    }
    const std::int64_t quotient = std::int64_t{dividend} / divisor;
    if (quotient > std::numeric_limits<std::int32_t>::max()) {
        throw RuntimeError(ErrorNumber::Overflow);
    }
    return static_cast<std::int32_t>(quotient);
}

std::int32_t wholeRemainder(std::int32_t dividend, std::int32_t divisor)
{
    if (divisor == 0) {
        throw RuntimeError(ErrorNumber::DivisionByZero);
    }
    return static_cast<std::int32_t>(std::int64_t{dividend} % divisor);
}

double roundToDecimals(double value, int decimals)
{
    if (decimals < 0) {
        throw RuntimeError(ErrorNumber::InvalidArgument);
    }
    constexpr double AlwaysWhole = 4503599627370496.0; // 2^52: from here on a double has no fraction
    if (!std::isfinite(value) || std::fabs(value) >= AlwaysWhole) {
        return value;
    }
    if (decimals == 0) {
        return std::nearbyint(value);
    }
    // No double has more decimals than the smallest one.
    constexpr int MostDecimals = 1074;
    if (decimals >= MostDecimals) {
        return value;
    }
    // Written out exactly and cut by decimal rounding, then read back: scaling by a power of ten would round
    // twice.
    std::array<char, 32 + MostDecimals> digits{};
    const auto written = std::to_chars(digits.data(), digits.data() + digits.size(), value,
                                       std::chars_format::fixed, decimals);
    double result = value;
    std::from_chars(digits.data(), written.ptr, result);
    return result;
}

} // namespace phial
