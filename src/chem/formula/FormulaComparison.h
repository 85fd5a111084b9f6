#pragma once

#include "chem/formula/FormulaComposition.h"

#include <vector>

namespace phial
{

/// How a formula stands to the right one, the nearest first.
enum class FormulaLikeness : std::uint8_t {
    Same,
    WrittenOtherwise, ///< the same atoms and charge in another order, or with other brackets: `N2H4O3`
    FactorWrong,      ///< the formula is right but for a number before it
    ChargeWrong,      ///< the atoms are right
    BracketForgotten, ///< right if the brackets were not there: `CaOH2` for `Ca(OH)2`
    CountsWrong,      ///< the elements are right, but not how many of each
    ElementsWrong
};

struct ElementDifference {
    std::uint8_t element = 0; ///< atomic number
    Rational given{0, 1};
    Rational right{0, 1};
};

struct FormulaComparison {
    FormulaLikeness likeness = FormulaLikeness::ElementsWrong;
    /// Whether the symbols stand in the right order, whatever their numbers and brackets.
    bool isInOrder = false;
    /// Of which there are not as many as there should be, by atomic number.
    std::vector<ElementDifference> differences{};
    std::int32_t givenCharge = 0;
    std::int32_t rightCharge = 0;
};

/// Compares two formulas, each the first species of its tree. A state of matter makes no difference.
FormulaComparison compareFormulas(const FormulaTree& given, const FormulaTree& right);

} // namespace phial
