#pragma once

#include "chem/formula/FormulaComposition.h"

#include <optional>
#include <vector>

namespace phial
{

/// An element, or the charge, of which the sides of an equation do not have the same.
struct Imbalance {
    std::uint8_t element = 0; ///< atomic number; 0 for the charge
    std::int32_t massNumber = 0;
    Rational left{0, 1};
    Rational right{0, 1};
};

/// What the two sides have of each element, and what charge, with these factors in place of those of the
/// tree (one a species; none: the tree's own). Elements by atomic number, the charge last. None for numbers
/// too large or a wrong count of factors.
std::optional<std::vector<Imbalance>> sidesOf(const FormulaTree& equation,
                                              const std::vector<Rational>& factors = {});

/// Those of which the sides differ; empty for a balanced equation.
std::vector<Imbalance> imbalancesOf(const FormulaTree& equation, const std::vector<Rational>& factors = {});

/// The factors that balance an equation.
struct EquationSolution {
    enum class Kind : std::uint8_t {
        One,     ///< these, and their multiples
        Several, ///< independent sets of factors: two reactions stand in one
        None,    ///< no factors above 0 do
        TooLarge ///< the numbers have no room in 64 bits
    };
    Kind kind = Kind::None;
    std::vector<std::int64_t> factors{}; ///< the smallest whole ones, one a species; for One alone
};

/// Balances atoms and charge by exact elimination; the factors of the tree make no difference.
EquationSolution balance(const FormulaTree& equation);

} // namespace phial
