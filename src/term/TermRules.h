#pragma once

#include "core/ScriptCharacters.h"

#include <cstddef>
#include <cstdint>

namespace phial
{

/// What stands at a place of a term.
struct TermSign {
    enum class Kind : std::int32_t {
        Character,      ///< a pair of surrogates is one
        Red,            ///< all behind it is red
        Raise,          ///< back to the anchor, and up
        Lower,          ///< back to the anchor, and down
        EndLevel,       ///< the anchor is here
        Stroke,         ///< strikes through what follows
        Approximately,  ///< ≈
        MiddleDot,      ///< of a hydrate
        RightArrow,     ///< →
        LeftArrow,      ///< ←
        Correspondence, ///< = with ^ above it
    };

    Kind kind = Kind::Character;
    ScriptLevel level = ScriptLevel::Normal; ///< of a character
    bool isAnchor = false;                   ///< what is raised or lowered next begins behind the character
    std::size_t length = 1;                  ///< units of the term
};

/// The rules by which the units of a term, or of a part of it, become signs: what is raised and lowered, and
/// which units make one sign. A fraction is not among them. They are read one behind the other.
class TermRules
{
public:
    /// The sign at that position of the part.
    TermSign read(StringView part, std::size_t position);

    friend bool operator==(const TermRules&, const TermRules&) = default;

private:
    TermSign plainSign(TermSign sign);
    TermSign jump(TermSign::Kind kind, ScriptLevel level);
    TermSign indexed(StringView part, std::size_t position);

    ScriptLevel mode_ = ScriptLevel::Normal;
    bool forced_ = false;
    bool plain_ = true; ///< digits that follow are ordinary ones
};

} // namespace phial
