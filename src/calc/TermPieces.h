#pragma once

#include "core/String.h"

#include <cstdint>
#include <vector>

namespace phial
{

/// A piece of a calculator's term as people read it: numbers with their exponents, names, operators,
/// brackets.
struct TermPiece {
    enum class Kind : std::uint8_t { Number, Name, Operator, Opening, Closing };

    Kind kind{};
    std::size_t start = 0; ///< in the term, in units
    StringView text{};     ///< within the term

    bool isSign() const { return kind == Kind::Operator && (text == u"+" || text == u"-"); }
};

/// In their order. Blanks and what else has no meaning in a term are left out.
std::vector<TermPiece> piecesOf(StringView term);

/// Whether a name of a term can have that unit: a letter without a dot or a tail.
bool isNameSign(char16_t unit);

} // namespace phial
