#pragma once

#include "calc/TermEvaluation.h"
#include "core/Locale.h"
#include "core/String.h"
#include "core/Variant.h"

#include <memory>
#include <span>

namespace phial
{

class RandomSource;

/// The calculator's arithmetic: works out a line such as `2*sin(0,5)+A` as a pupil types it.
///
/// Powers bind most, then `*`, `/` and `%` (remainder of whole numbers), then `+` and `-`, on each level from
/// left to right: `2^3^2` is 64. A sign binds more than any operator: `-2^2` is 4. Functions take their
/// argument in brackets, in any case of letters; angles are radians. Comma and point are decimal signs, a
/// capital E with a sign begins an exponent, and what has no meaning in a term (blanks, umlauts) is skipped.
/// Every intermediate value is rounded to 15 significant digits. A value stands for every failure, so the
/// solver never raises because of a term; docs/calc.md tells the notation and its oddities in full.
///
/// Time and memory grow with the length of the term; brackets may nest as deep as memory allows.
class ExpressionSolver
{
public:
    /// `random` serves RND, which fails without it. Numbers in error texts are written with the decimal sign
    /// of `locale`.
    explicit ExpressionSolver(std::shared_ptr<RandomSource> random = nullptr,
                              const Locale& locale = currentLocale());

    /// Works out a term with variables. `pVars` holds a name at each even index and its value behind it; it
    /// may be empty. `rResult` is 0 or -1 where the term failed, and SolveError then tells why; but an error
    /// inside brackets is forgotten, and only the 0 or -1 goes on.
    ///
    /// Raises 5, 6, 9 or 13 for variables that cannot be put in (see withVariables), unless the term begins
    /// with "!", which is dropped; such a variable then stays a word.
    void SOLVE(StringView pTerm, std::span<const Variant> pVars, double& rResult);

    /// Works out a term as it stands. In contrast to SOLVE, which wraps it in a sum, an empty term is an
    /// error here, and so is an operator at the end.
    double SolveTerm(StringView pTerm);

    /// The error text of the last call, in English; empty when all went well.
    const String& SolveError() const { return solveError_; }

private:
    std::shared_ptr<RandomSource> random_;
    char16_t decimalSign_;
    TermEvaluation evaluation_;
    String solveError_;
};

} // namespace phial
