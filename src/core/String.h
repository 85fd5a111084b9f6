#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace phial
{

/// Text of the system: 16-bit units, so lengths and positions count units.
using String = std::u16string;
using StringView = std::u16string_view;

/// Halves of a pair that stands for one character beyond U+FFFF.
constexpr bool isHighSurrogate(char32_t code)
{
    return code >= 0xD800 && code <= 0xDBFF;
}
constexpr bool isLowSurrogate(char32_t code)
{
    return code >= 0xDC00 && code <= 0xDFFF;
}

/// One of the ten signs 0 to 9.
constexpr bool isDigit(char16_t unit)
{
    return unit >= u'0' && unit <= u'9';
}

/// UTF-8 to text. Ill-formed bytes become U+FFFD each; a surrogate half encoded in three bytes comes back as
/// that half, so that `fromUtf8(toUtf8(text)) == text` holds for every text.
String fromUtf8(std::string_view bytes);

/// Text to UTF-8. A lone surrogate half is written in its three-byte form (see fromUtf8).
std::string toUtf8(StringView text);

/// Case mapping independent of the process locale: Latin, Greek and Cyrillic letters one to one; `ß` stays
/// `ß`.
char16_t upperCase(char16_t unit);
char16_t lowerCase(char16_t unit);
String upperCase(StringView text);
String lowerCase(StringView text);

/// Whether two texts are equal when case is disregarded; this is how names are compared everywhere.
bool equalsIgnoringCase(StringView left, StringView right);

/// Three-way comparison disregarding case: negative, 0 or positive.
int compareIgnoringCase(StringView left, StringView right);

/// The text without the blanks (U+0020) at both ends.
String trimmed(StringView text);

/// The text with every occurrence of `find` replaced; an empty `find` changes nothing.
String replaced(StringView text, StringView find, StringView with);

/// The pieces between separators, empty ones included. The empty text gives no piece; an empty separator
/// gives the whole text as one.
std::vector<StringView> split(StringView text, StringView separator);

} // namespace phial
