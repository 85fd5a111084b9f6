#pragma once

#include "chem/formula/FormulaTree.h"

#include <optional>

namespace phial
{

// Exact arithmetic of fractions in lowest terms; none where a result has no room in 64 bits.

std::optional<Rational> sumOf(const Rational& one, const Rational& other);
std::optional<Rational> productOf(const Rational& one, const Rational& other);
/// None as well where `other` is 0.
std::optional<Rational> quotientOf(const Rational& one, const Rational& other);
/// The least common multiple of two numbers above 0.
std::optional<std::int64_t> commonMultipleOf(std::int64_t one, std::int64_t other);

} // namespace phial
