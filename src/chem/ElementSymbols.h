#pragma once

#include "core/String.h"

namespace phial
{

/// An element as every table has it.
struct ElementSymbol {
    StringView symbol;
    StringView german;  ///< its name
    StringView english; ///< the IUPAC's, as within a sentence
};

inline constexpr int LastElement = 118;

/// The element of that atomic number, 1 to LastElement; source: IUPAC, Periodic Table of the Elements (2022).
const ElementSymbol& elementOf(int atomicNumber);

/// The atomic number of a symbol, which is compared exactly by case; 0 for none.
int atomicNumberOf(StringView symbol);
/// Likewise of a symbol's letters; the second is 0 where there is none.
int atomicNumberOf(char16_t first, char16_t second);

} // namespace phial
