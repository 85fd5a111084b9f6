#pragma once

#include "core/String.h"

namespace phial
{

/// A text from outside (the clipboard, another program) as a term of one line: line ends and tabs become
/// blanks, of which none stand at the ends; further control characters and halves of pairs are left out.
String termOfText(StringView text);

} // namespace phial
