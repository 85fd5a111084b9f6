#pragma once

#include "core/String.h"

#include <functional>
#include <optional>

namespace molmasse
{

/// What a wrong molar mass shows about the way it was worked out.
enum class Mistake {
    IndexForgotten,   ///< the number behind one symbol, or behind each, was left out
    BracketForgotten, ///< the number behind a bracket was left out, or multiplied its last atom only
    PartForgotten,    ///< what stands behind a dot was left out, such as the water of a hydrate
    FactorForgotten,  ///< the number behind a dot was left out, or multiplied the next atom only
    OneElementOnly,   ///< the mass of one element of the compound, once or as often as it occurs
    AtomsCounted,     ///< the number of atoms instead of their masses
    AtomicNumbers,    ///< the sum of the atomic numbers
    CommaShifted,     ///< the right digits, ten to ten thousand times too large or too small
    RoundedTooFar     ///< atomic masses rounded to whole numbers
};

/// A mistake, and where in the formula it was made.
struct Diagnosis {
    Mistake mistake = Mistake::IndexForgotten;
    /// The element that it is about, such as "H"; "" where it is about several or the whole formula.
    phial::String symbol;
    /// The number that was left out, such as "2"; "" where there is none.
    phial::String number;

    friend bool operator==(const Diagnosis&, const Diagnosis&) = default;
};

/// What a diagnosis needs to know about formulas in plain notation and about elements.
struct MassSource {
    std::function<double(const phial::String& formula)> molarMass; ///< in g/mol, as it is taught
    std::function<double(const phial::String& formula)> exactMass; ///< in g/mol, with all digits
    std::function<int(const phial::String& symbol)> atomicNumber;  ///< 0 for an unknown element
};

/// The mistake that explains a wrong answer, in g/mol: the formula is worked out again with each usual
/// mistake, with the masses as they are taught and with the exact ones; the one whose result lies nearest
/// counts, if the answer would be right for it. Empty where none does. The answer must not be right.
///
/// Where two mistakes come to the same number, the one that stands first in `Mistake` is told.
std::optional<Diagnosis> mistakeOf(phial::StringView formula, double answer, const MassSource& source);

/// The mistake as a sentence for the pupil, in the language in force. It never gives the solution.
phial::String explained(const Diagnosis& diagnosis);

} // namespace molmasse
