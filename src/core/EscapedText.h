#pragma once

#include "core/String.h"

#include <optional>

namespace phial
{

/// A text made fit for one line of well-formed Unicode: control characters (below U+0020, U+007F to U+009F),
/// the separators U+2028 and U+2029, lone surrogate halves, `%`, and each of `alsoThese` become `%` and the
/// unit's four hexadecimal digits.
String escapedText(StringView text, StringView alsoThese = {});

/// The text out of its escaped form; no value when a `%` lacks its four digits.
std::optional<String> unescapedText(StringView escaped);

/// A text in quotation marks as JSON writes it, in one line of well-formed Unicode: quotation marks,
/// backslashes and what escapedText finds unfit for a line stand behind a backslash.
String quotedText(StringView text);

/// Reads a text in quotation marks, with every escape that JSON knows, from the beginning of `rRest`, which
/// then begins behind it; no value, and `rRest` wherever, when there is none or it breaks off.
std::optional<String> takeQuotedText(StringView& rRest);

} // namespace phial
