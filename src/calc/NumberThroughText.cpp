#include "calc/NumberThroughText.h"

#include "core/CoreNumbers.h"
#include "core/NumberText.h"

#include <array>
#include <cmath>
#include <cstdint>
#include <optional>

namespace phial
{

namespace
{

/// The powers of ten that a double holds exactly.
constexpr std::array PowersOfTen{1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8,  1e9,  1e10, 1e11,
                                 1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};
constexpr int DigitsOfText = 15;
constexpr double SmallestOfSixteenDigits = 1e15;

double throughWrittenText(double value)
{
    double read = 0;
    CoreNumbers::ToDouble(plainText(value, u'.'), read);
    return read;
}

/// How often `magnitude`, from 1E-8 up to 1E15, must be multiplied by ten to have all its digits that count
/// before the decimal sign.
std::size_t decimalsThatCount(double magnitude)
{
    int binaryExponent = 0;
    std::frexp(magnitude, &binaryExponent);
    // 1233 / 4096 is log10(2) closely enough to be wrong by one at most.
    int decimals = DigitsOfText - 1 - ((binaryExponent - 1) * 1233 >> 12);
    decimals = decimals < 0 ? 0 : decimals > 22 ? 22 : decimals;
    if (magnitude * PowersOfTen[static_cast<std::size_t>(decimals)] >= SmallestOfSixteenDigits) {
        --decimals;
    }
    return static_cast<std::size_t>(decimals);
}

/// Rounds by one multiplication and one division, both with known errors. Nothing where the last digit is so
/// close to a tie, or the number so large or small, that the written text must decide.
std::optional<double> roundedExactly(double magnitude)
{
    if (!(magnitude >= 1e-8 && magnitude < SmallestOfSixteenDigits)) {
        return std::nullopt;
    }
    const double power = PowersOfTen[decimalsThatCount(magnitude)];
    const double scaled = magnitude * power;
    const double lost = std::fma(magnitude, power, -scaled);
    const auto whole = static_cast<double>(static_cast<std::int64_t>(scaled));
    const double part = (scaled - whole) + lost;
    constexpr double TooCloseToTie = 0.01;
    if (std::fabs(part - 0.5) < TooCloseToTie) {
        return std::nullopt;
    }
    const double digits = part > 0.5 ? whole + 1 : whole;
    // Both operands are exact, so the quotient is the double nearest to the decimal number.
    return digits / power;
}

/// Digits, and perhaps a decimal sign with digits behind it; at most 15 digits, so that they are exact as a
/// whole number.
std::optional<double> plainDecimal(StringView token)
{
    if (token.empty() || token.size() > DigitsOfText + 1) {
        return std::nullopt;
    }
    std::int64_t digits = 0;
    std::size_t position = 0;
    for (; position < token.size() && isDigit(token[position]); ++position) {
        digits = digits * 10 + (token[position] - u'0');
    }
    if (position == token.size()) {
        return position > DigitsOfText ? std::nullopt : std::optional(static_cast<double>(digits));
    }
    if (position == 0 || (token[position] != u'.' && token[position] != u',')) {
        return std::nullopt;
    }
    const std::size_t decimals = token.size() - ++position;
    for (; position < token.size() && isDigit(token[position]); ++position) {
        digits = digits * 10 + (token[position] - u'0');
    }
    if (position < token.size() || decimals == 0) {
        return std::nullopt;
    }
    return static_cast<double>(digits) / PowersOfTen[decimals];
}

} // namespace

double numberThroughText(double value)
{
    const double magnitude = std::fabs(value);
    if (magnitude < SmallestOfSixteenDigits &&
        static_cast<double>(static_cast<std::int64_t>(value)) == value) {
        return value + 0.0; // all digits fit; the sum turns -0 into 0
    }
    if (const auto rounded = roundedExactly(magnitude)) {
        return std::copysign(*rounded, value);
    }
    return throughWrittenText(value);
}

double numberOfToken(StringView token)
{
    if (const auto number = plainDecimal(token)) {
        return *number;
    }
    double value = 0;
    CoreNumbers::ToDouble(token, value);
    return value;
}

} // namespace phial
