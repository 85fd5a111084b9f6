#pragma once

#include "chem/formula/ShortList.h"
#include "core/String.h"

#include <cstddef>
#include <cstdint>

namespace phial
{

/// A part of the text that was read, in its 16-bit units.
struct SourceSpan {
    std::uint32_t start = 0;
    std::uint32_t length = 0;
};

/// A number such as 3, 1/2 or 0.5, in lowest terms, with a denominator above 0.
struct Rational {
    std::int64_t numerator = 1;
    std::int64_t denominator = 1;

    friend bool operator==(const Rational&, const Rational&) = default;
};

enum class FormulaBracket : std::uint8_t { Round, Square, Curly };

enum class FormulaPhase : std::uint8_t { None, Solid, Liquid, Gas, Dissolved };

/// A species that is no formula of atoms.
enum class FormulaParticle : std::uint8_t { None, Electron, Neutron };

/// Where the arrow of an equation points.
enum class FormulaArrow : std::uint8_t { None, Forward, Backward, Both };

/// An atom, or the beginning of a group in brackets, and how often it stands there.
struct FormulaItem {
    std::uint8_t element = 0; ///< atomic number; 0 for a group
    FormulaBracket bracket = FormulaBracket::Round;
    std::int32_t massNumber = 0; ///< 0 for none; D and T are hydrogen of 2 and 3
    std::int64_t count = 1;
    std::uint32_t end = 0; ///< of the group, behind its last item; of an atom, behind itself
    SourceSpan span{};

    bool isGroup() const { return element == 0; }
};

/// A part of a hydrate or double salt, between the dots: `5H2O` of `CuSO4*5H2O`. Others are one part.
struct FormulaPart {
    Rational factor{};
    std::uint32_t first = 0; ///< of its items
    std::uint32_t end = 0;
};

/// What stands between the plus signs of an equation, or a formula by itself.
struct FormulaSpecies {
    Rational factor{};
    std::uint32_t first = 0; ///< of its parts
    std::uint32_t end = 0;
    std::int32_t charge = 0; ///< in elementary charges
    FormulaPhase phase = FormulaPhase::None;
    FormulaParticle particle = FormulaParticle::None;
    bool isRadical = false;
    SourceSpan span{};
};

/// A formula or an equation that was read. All of it lies flat in three lists: a group's items stand behind
/// it, so that any depth of brackets is walked without recursion.
struct FormulaTree {
    ShortList<FormulaItem, 8> items;
    ShortList<FormulaPart, 2> parts;
    ShortList<FormulaSpecies, 1> species;
    std::size_t leftCount = 0; ///< species before the arrow; all of them where there is none
    FormulaArrow arrow = FormulaArrow::None;
};

/// Whether two trees say the same in the same order; where it stood in the text makes no difference.
bool operator==(const FormulaTree& one, const FormulaTree& other);

} // namespace phial
