#pragma once

#include "core/String.h"

namespace phial::qt
{

/// Whether a font is one of those whose codes name signs instead of letters: Symbol, Wingdings, Marlett.
bool isSymbolFont(StringView fontName);

/// The sign that a code of a symbol font stands for; 0 when it is not in the table.
char16_t symbolSign(StringView fontName, char16_t code);

} // namespace phial::qt
