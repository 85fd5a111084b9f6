#pragma once

#include "chem/formula/ShortList.h"
#include "core/ScriptCharacters.h"

#include <cstdint>

namespace phial
{

/// A sign of a formula, whichever way it was written, how high it stands where the text says so, and where it
/// stood in the text.
struct FormulaUnit {
    char16_t sign = 0;
    ScriptLevel level = ScriptLevel::Normal;
    std::uint32_t start = 0;
    std::uint32_t length = 0;
};

using FormulaUnits = ShortList<FormulaUnit, 64>;

// What stands for signs of several units.
inline constexpr char16_t ForwardArrow = u'\u2192';
inline constexpr char16_t BackwardArrow = u'\u2190';
inline constexpr char16_t BothArrows = u'\u21CC';

/// The signs of a text, which may be plain text, a term (see term/TermDraw.h), Unicode with raised and
/// lowered characters, or markup with `sub` and `sup`:
///
///     H₂SO₄, H<sub>2</sub>SO<sub>4</sub>, H2SO4    the same signs; the levels of digits differ
///     SO₄²⁻, SO4^2-, SO<sub>4</sub><sup>2-</sup>   "2-" raised
///     -> → ⟶ <- ← <-> ⇌ <=>                        one sign each
///     · − and others                               what a keyboard has for them (`typedForm`)
///     ½                                            1, / and 2
///
/// What only colours, strikes through or has no width is left out. Linear in the text's length. They are put
/// behind those that `units` has.
void readFormulaUnits(StringView text, FormulaUnits& units);

} // namespace phial
