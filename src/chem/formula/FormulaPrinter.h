#pragma once

#include "chem/formula/FormulaTree.h"

namespace phial
{

// A tree as a text, which reads as the same tree again.

/// As one types it: `2SO4^2-`, `CuSO4*5H2O`, `2H2 + O2 -> 2H2O`.
String plainFormula(const FormulaTree& tree);
/// With raised and lowered characters: `2SO₄²⁻`, `CuSO₄·5H₂O`, `2H₂ + O₂ → 2H₂O`.
String unicodeFormula(const FormulaTree& tree);
/// With the markup of labels: `SO<sub>4</sub><sup>2-</sup>`, `CuSO<sub>4</sub>·5H<sub>2</sub>O`.
String formulaMarkup(const FormulaTree& tree);
/// As TermDraw reads it, with `#^` where a charge would stand upon a bracket or its index.
String formulaTerm(const FormulaTree& tree);

} // namespace phial
