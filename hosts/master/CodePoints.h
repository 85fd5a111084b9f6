#pragma once

#include "core/String.h"

namespace phial::master
{

inline bool isHighHalf(char16_t unit)
{
    return unit >= 0xD800 && unit <= 0xDBFF;
}

inline bool isLowHalf(char16_t unit)
{
    return unit >= 0xDC00 && unit <= 0xDFFF;
}

/// Units that a code point takes.
inline std::size_t unitsOf(char32_t point)
{
    return point > 0xFFFF ? 2 : 1;
}

inline void appendPoint(String& text, char32_t point)
{
    if (point <= 0xFFFF) {
        text += static_cast<char16_t>(point);
        return;
    }
    text += static_cast<char16_t>(0xD800 + ((point - 0x10000) >> 10U));
    text += static_cast<char16_t>(0xDC00 + ((point - 0x10000) & 0x3FFU));
}

/// Calls `visit` with each code point; a surrogate half that stands alone is one.
template <typename Visit>
void forEachPoint(StringView text, Visit visit)
{
    for (std::size_t at = 0; at < text.size(); ++at) {
        const bool isPair = isHighHalf(text[at]) && at + 1 < text.size() && isLowHalf(text[at + 1]);
        char32_t point = text[at];
        if (isPair) {
            point = 0x10000 + ((char32_t{text[at]} - 0xD800) << 10U) + (char32_t{text[at + 1]} - 0xDC00);
            ++at;
        }
        visit(point);
    }
}

} // namespace phial::master
