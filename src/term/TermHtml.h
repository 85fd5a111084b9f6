#pragma once

#include "core/String.h"

namespace phial
{

/// A term as HTML, by simpler rules than TermDraw's: digits are lowered (leading ones, too), a "+" or "-" is
/// raised with the digits behind it, "^" and "µ" raise and lower one character. Nothing is escaped, and the
/// result always ends with a blank: `H2O` gives "H<sub>2</sub>O ".
String termToHtml(StringView term);

} // namespace phial
