#pragma once

#include "chem/formula/FormulaRefusal.h"
#include "chem/formula/FormulaTree.h"

#include <optional>

namespace phial
{

/// What reading a text has come to: a tree, or a refusal.
struct FormulaReading {
    FormulaTree tree;
    std::optional<FormulaRefusal> refusal;

    explicit operator bool() const { return !refusal; }
};

/// Reads one formula in any notation of readFormulaUnits. Time and memory grow with its length alone, however
/// deep its brackets nest. What is not clear is refused, not guessed.
///
/// | Text            | Read as                                                                  |
/// |-----------------|--------------------------------------------------------------------------|
/// | `2H2O`, `1/2 O2`, `0,5 O2` | a factor, and the formula behind it                            |
/// | `Fe3+`          | one atom, its charge 3                                                    |
/// | `NH4+`          | several atoms: the index 4, the charge 1                                  |
/// | `[Fe(CN)6]4-`   | behind a square bracket: the charge 4                                     |
/// | `SO42-`, `Hg22+`| refused, with both readings                                               |
/// | `CuSO4.5H2O`    | behind an index a point is the dot of a hydrate                           |
/// | `CaSO4*0.5H2O`  | in a factor it is the decimal sign, as the comma is                       |
/// | `NaCl(aq)`      | (s), (l), (g) and (aq), in small letters and at the end only              |
/// | `CH3-CH3`, `CH2=CH2` | `-`, `=` and `≡` between atoms are bonds, and left out               |
/// | `^14C`, `D`, `T`| isotopes                                                                  |
/// | `CH3*`          | a dot at the end: a radical                                               |
/// | `e-`, `n`       | an electron, a neutron                                                    |
/// | `Fe++`, `Fe^+2` | as `Fe^2+`                                                                |
FormulaReading readFormula(StringView text);

/// Reads an equation: formulas divided by plus signs, on both sides of one arrow or equals sign.
FormulaReading readEquation(StringView text);

} // namespace phial
