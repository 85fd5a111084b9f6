#pragma once

#include "core/String.h"

namespace phial
{

class RandomSource;

/// A function of the expression solver. All angles are radians.
struct SolverFunction {
    /// The name in capitals.
    StringView name;
    /// The formula. Raises 5, 6 or 11 where it has no value, also where only the formula and not the function
    /// of the textbook has none (ARCSIN of 1); RND raises 91 without a source of random numbers.
    double (*value)(double x, RandomSource* random);
};

/// The longest name of a function, in units.
inline constexpr std::size_t LongestSolverFunction = 11;

/// The function of a name, found without regard to case; null when there is none of that name.
const SolverFunction* findSolverFunction(StringView name);

} // namespace phial
