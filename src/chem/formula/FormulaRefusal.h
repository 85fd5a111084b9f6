#pragma once

#include "chem/formula/FormulaTree.h"

#include <vector>

namespace phial
{

/// Why a text is no formula.
enum class FormulaFault : std::uint8_t {
    Empty,             ///< nothing there
    UnknownSymbol,     ///< a capital, or a capital and a small letter, that is no element
    SmallLetter,       ///< a small letter where a symbol begins: `h2o`, `Ch3`
    CapitalPair,       ///< two capitals that are elements by themselves and hardly meant so: `CU`
    ZeroCount,         ///< `H0`
    NumberTooLarge,    ///< more than FormulaLimits::Count
    NumberMisplaced,   ///< a number that belongs to nothing: `(2H)`, `^14` at the end
    EmptyBracket,      ///< `()2`
    BracketNotClosed,  ///< `Ca(OH`
    BracketNotOpened,  ///< `CaOH)2`
    BracketsMixed,     ///< `Ca(OH]2`
    ChargeAmbiguous,   ///< `SO42-`: is it `SO4^2-` or `SO42^-`?
    ChargeWithoutSign, ///< `SO4^2`
    ChargeNotAtEnd,    ///< `Na^+Cl`
    SignUnexpected,    ///< what belongs in no formula
    SpeciesMissing,    ///< nothing before or behind a plus sign, a dot or an arrow
    NotOneFormula,     ///< a plus sign or an arrow where one formula is asked for
    ArrowMissing,      ///< an equation without one
    ArrowTwice
};

namespace FormulaLimits
{
inline constexpr std::int64_t Count = 999'999'999; ///< of a number behind a symbol or before a formula
inline constexpr std::int32_t Charge = 99;
inline constexpr std::int32_t MassNumber = 999;
} // namespace FormulaLimits

/// What is wrong with a text, and where.
struct FormulaRefusal {
    FormulaFault fault = FormulaFault::Empty;
    SourceSpan span{};
    String part{};                     ///< what stands there
    std::vector<String> suggestions{}; ///< whole texts that could be meant, the likeliest first
};

// In one sentence for a pupil, or two: what is wrong, and what could be meant.
String germanSentence(const FormulaRefusal& refusal);
String englishSentence(const FormulaRefusal& refusal);

} // namespace phial
