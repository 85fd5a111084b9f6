#pragma once

#include "core/String.h"

#include <span>

namespace phial
{

/// What a piece of a term is read as: a variable's name by its value and unit, a molar mass with its unit.
struct PieceReading {
    String piece;
    String reading;
};

/// A calculator's term as it would stand in an exercise book, with the markup of visual/Markup.h: "2*10^3" is
/// 2 · 10<sup>3</sup>. Where an exponent is no single number the hat stays.
String readableTerm(StringView term, std::span<const PieceReading> readings);

/// The same for screen readers, "German|English": "2 mal 10 hoch 3|2 times 10 to the power of 3".
String spokenTerm(StringView term, std::span<const PieceReading> readings);

} // namespace phial
