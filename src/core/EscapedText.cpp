#include "core/EscapedText.h"

#include <cstddef>

namespace phial
{

namespace
{

constexpr char16_t EscapeSign = u'%';
constexpr std::size_t EscapeDigits = 4;

bool isHighHalf(char16_t unit)
{
    return unit >= 0xD800 && unit <= 0xDBFF;
}

bool isLowHalf(char16_t unit)
{
    return unit >= 0xDC00 && unit <= 0xDFFF;
}

bool needsEscape(char16_t unit)
{
    const bool control = unit < 0x20 || (unit >= 0x7F && unit <= 0x9F) || unit == 0x2028 || unit == 0x2029;
    return control || unit == EscapeSign || isHighHalf(unit) || isLowHalf(unit);
}

void appendEscape(String& out, char16_t unit)
{
    constexpr StringView Digits = u"0123456789ABCDEF";
    out += EscapeSign;
    for (unsigned shift = 16; shift > 0; shift -= 4) {
        out += Digits[(unit >> (shift - 4)) & 0xFU];
    }
}

std::optional<unsigned> hexDigit(char16_t unit)
{
    if (unit >= u'0' && unit <= u'9') {
        return unit - unsigned{u'0'};
    }
    const char16_t capital = upperCase(unit);
    if (capital >= u'A' && capital <= u'F') {
        return capital - unsigned{u'A'} + 10U;
    }
    return std::nullopt;
}

std::optional<char16_t> unitOf(StringView digits)
{
    if (digits.size() != EscapeDigits) {
        return std::nullopt;
    }
    unsigned unit = 0;
    for (const char16_t sign : digits) {
        const auto digit = hexDigit(sign);
        if (!digit) {
            return std::nullopt;
        }
        unit = unit * 16U + *digit;
    }
    return static_cast<char16_t>(unit);
}

} // namespace

String escapedText(StringView text, StringView alsoThese)
{
    String out;
    out.reserve(text.size());
    for (std::size_t at = 0; at < text.size(); ++at) {
        const char16_t unit = text[at];
        if (isHighHalf(unit) && at + 1 < text.size() && isLowHalf(text[at + 1])) {
            out += text.substr(at++, 2);
        } else if (needsEscape(unit) || alsoThese.find(unit) != StringView::npos) {
            appendEscape(out, unit);
        } else {
            out += unit;
        }
    }
    return out;
}

std::optional<String> unescapedText(StringView escaped)
{
    String text;
    text.reserve(escaped.size());
    for (std::size_t at = 0; at < escaped.size(); ++at) {
        if (escaped[at] != EscapeSign) {
            text += escaped[at];
            continue;
        }
        const auto unit = unitOf(escaped.substr(at + 1, EscapeDigits));
        if (!unit) {
            return std::nullopt;
        }
        text += *unit;
        at += EscapeDigits;
    }
    return text;
}

} // namespace phial
