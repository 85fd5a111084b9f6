#pragma once

#include "core/String.h"

#include <cstdint>

namespace phial
{

/// Small operations on texts. They compare exactly.
class CoreStringOps
{
public:
    /// The part before the first delimiter. Without one: the empty text when the flag is true, else the whole
    /// text. An empty delimiter counts as missing.
    static String Before(StringView pText, StringView pDelimiter, bool pEmptyIfMissing = false);
    /// The part behind the first delimiter, by the same rule.
    static String After(StringView pText, StringView pDelimiter, bool pEmptyIfMissing = false);
    /// The field of that number, counted from 1. Gives whether there is one; `rField` is empty if not.
    static bool Field(StringView pText, StringView pSeparator, std::int32_t pIndex, String& rField);
    /// A longer text is cut to the length or less at the last break within it, which is left out. The cut
    /// leaves at least `pMinimum` units. Where no such break is, the text is cut at the length itself, or
    /// left whole when `pCutAnyway` is false. A pair of surrogates is never parted. Raises 5 for a negative
    /// length.
    static String Shorten(StringView pText, std::int32_t pLength, StringView pBreak = u" ",
                          std::int32_t pMinimum = 0, bool pCutAnyway = true);
};

} // namespace phial
