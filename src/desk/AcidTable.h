#pragma once

#include "core/String.h"
#include "visual/Font.h"

#include <span>

namespace phial
{

/// An acid with its base and its pKs, as markup.
struct Acid {
    StringView acid;
    StringView base;
    StringView pKs;
};

/// Those of the sheet, from the strongest to the weakest.
std::span<const Acid> acids();

/// The acids of the sheet with their bases and pKs as markup, a line each, ended by LF; `head` stands on top.
/// Blanks lead to the columns: each begins where it begins in the head, whose columns are parted by several
/// blanks. Behind the blanks, hair spaces take up what is less than one, where the font has them.
String acidTable(StringView head, const FontSpec& font);

} // namespace phial
