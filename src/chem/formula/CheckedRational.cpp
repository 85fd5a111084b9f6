#include "chem/formula/CheckedRational.h"

#include <cstdlib>
#include <limits>
#include <numeric>

namespace phial
{

namespace
{

constexpr std::int64_t MostNumber = std::numeric_limits<std::int64_t>::max();

std::optional<std::int64_t> timesChecked(std::int64_t one, std::int64_t other)
{
    constexpr std::int64_t Small = std::int64_t{1} << 31U; // the product of two has room
    if (one >= 0 && one < Small && other >= 0 && other < Small) {
        return one * other;
    }
    if (one == 0 || other == 0) {
        return 0;
    }
    return std::abs(one) > MostNumber / std::abs(other) ? std::nullopt : std::optional(one * other);
}

std::optional<std::int64_t> plusChecked(std::int64_t one, std::int64_t other)
{
    const bool isTooLarge = other > 0 ? one > MostNumber - other : one < -MostNumber - other;
    return isTooLarge ? std::nullopt : std::optional(one + other);
}

/// Nearly all numbers of formulas are whole, and need no common divisor.
bool areWhole(const Rational& one, const Rational& other)
{
    return one.denominator == 1 && other.denominator == 1;
}

Rational lowest(std::int64_t numerator, std::int64_t denominator)
{
    const std::int64_t common = std::gcd(numerator, denominator);
    const std::int64_t divisor = denominator < 0 ? -common : common;
    return {numerator / divisor, denominator / divisor};
}

} // namespace

std::optional<Rational> sumOf(const Rational& one, const Rational& other)
{
    if (areWhole(one, other)) {
        const auto whole = plusChecked(one.numerator, other.numerator);
        return whole ? std::optional(Rational{*whole, 1}) : std::nullopt;
    }
    const std::int64_t common = std::gcd(one.denominator, other.denominator);
    const auto left = timesChecked(one.numerator, other.denominator / common);
    const auto right = timesChecked(other.numerator, one.denominator / common);
    const auto denominator = timesChecked(one.denominator, other.denominator / common);
    const auto numerator = left && right ? plusChecked(*left, *right) : std::nullopt;
    return numerator && denominator ? std::optional(lowest(*numerator, *denominator)) : std::nullopt;
}

std::optional<Rational> productOf(const Rational& one, const Rational& other)
{
    if (areWhole(one, other)) {
        const auto whole = timesChecked(one.numerator, other.numerator);
        return whole ? std::optional(Rational{*whole, 1}) : std::nullopt;
    }
    const Rational first = lowest(one.numerator, other.denominator); // crosswise, so that less overflows
    const Rational second = lowest(other.numerator, one.denominator);
    const auto numerator = timesChecked(first.numerator, second.numerator);
    const auto denominator = timesChecked(first.denominator, second.denominator);
    return numerator && denominator ? std::optional(Rational{*numerator, *denominator}) : std::nullopt;
}

std::optional<Rational> quotientOf(const Rational& one, const Rational& other)
{
    return other.numerator == 0 ? std::nullopt : productOf(one, lowest(other.denominator, other.numerator));
}

std::optional<std::int64_t> commonMultipleOf(std::int64_t one, std::int64_t other)
{
    return timesChecked(one, other / std::gcd(one, other));
}

} // namespace phial
