#pragma once

#include "core/String.h"

#include <cstddef>
#include <vector>

namespace phial
{

struct FormulaName;

/// Formulas of lessons that go on as the one that a term ends in has begun.
struct FormulaOffers {
    std::size_t length = 0; ///< of what has been begun: the last units of the term
    std::vector<const FormulaName*> formulas;
};

/// At most so many, for a term up to its caret:
///
///     2H2 + H2S    H2SO3, H2SO4, H2S: short ones first, and what stands there already last
///     NACL         NaCl: behind all that begin with the same case
///     4            nothing
FormulaOffers offersBehind(StringView before, std::size_t most);

} // namespace phial
