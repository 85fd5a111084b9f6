#include "core/EscapedText.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace phial
{

namespace
{

constexpr char16_t EscapeSign = u'%';
constexpr std::size_t EscapeDigits = 4;

/// Whether a unit, unless it is half of a surrogate pair, cannot stand in a line.
bool breaksLine(char16_t unit)
{
    const bool control = unit < 0x20 || (unit >= 0x7F && unit <= 0x9F) || unit == 0x2028 || unit == 0x2029;
    return control || isHighSurrogate(unit) || isLowSurrogate(unit);
}

bool isPairAt(StringView text, std::size_t at)
{
    return isHighSurrogate(text[at]) && at + 1 < text.size() && isLowSurrogate(text[at + 1]);
}

void appendDigits(String& out, char16_t unit)
{
    constexpr StringView Digits = u"0123456789ABCDEF";
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

/// The escapes of one letter in quoted texts, and what they stand for.
struct ShortEscape {
    char16_t letter;
    char16_t unit;
};
constexpr std::array ShortEscapes{
    ShortEscape{u'"', u'"'},  ShortEscape{u'\\', u'\\'}, ShortEscape{u'/', u'/'},  ShortEscape{u'b', u'\b'},
    ShortEscape{u'f', u'\f'}, ShortEscape{u'n', u'\n'},  ShortEscape{u'r', u'\r'}, ShortEscape{u't', u'\t'}};
constexpr char16_t AnyUnitLetter = u'u';

void appendQuoted(String& out, char16_t unit)
{
    const auto* known = std::ranges::find(ShortEscapes, unit, &ShortEscape::unit);
    if (known != ShortEscapes.end() && unit != u'/') {
        out += u'\\';
        out += known->letter;
    } else if (breaksLine(unit)) {
        out += u'\\';
        out += AnyUnitLetter;
        appendDigits(out, unit);
    } else {
        out += unit;
    }
}

/// The unit of an escape behind its backslash, which is taken off `rRest`.
std::optional<char16_t> takeEscape(StringView& rRest)
{
    if (rRest.starts_with(AnyUnitLetter)) {
        const auto unit = unitOf(rRest.substr(1, EscapeDigits));
        rRest.remove_prefix(std::min(1 + EscapeDigits, rRest.size()));
        return unit;
    }
    const auto* known = rRest.empty() ? ShortEscapes.end()
                                      : std::ranges::find(ShortEscapes, rRest.front(), &ShortEscape::letter);
    if (known == ShortEscapes.end()) {
        return std::nullopt;
    }
    rRest.remove_prefix(1);
    return known->unit;
}

} // namespace

String escapedText(StringView text, StringView alsoThese)
{
    String out;
    out.reserve(text.size());
    for (std::size_t at = 0; at < text.size(); ++at) {
        const char16_t unit = text[at];
        if (isPairAt(text, at)) {
            out += text.substr(at++, 2);
        } else if (breaksLine(unit) || unit == EscapeSign || alsoThese.find(unit) != StringView::npos) {
            out += EscapeSign;
            appendDigits(out, unit);
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

String quotedText(StringView text)
{
    String out = u"\"";
    out.reserve(text.size() + 2);
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (isPairAt(text, at)) {
            out += text.substr(at++, 2);
        } else {
            appendQuoted(out, text[at]);
        }
    }
    return out + u'"';
}

std::optional<String> takeQuotedText(StringView& rRest)
{
    if (!rRest.starts_with(u'"')) {
        return std::nullopt;
    }
    rRest.remove_prefix(1);
    String text;
    while (!rRest.empty()) {
        const char16_t unit = rRest.front();
        rRest.remove_prefix(1);
        if (unit == u'"') {
            return text;
        }
        if (unit < u' ') {
            return std::nullopt;
        }
        const auto meant = unit == u'\\' ? takeEscape(rRest) : unit;
        if (!meant) {
            return std::nullopt;
        }
        text += *meant;
    }
    return std::nullopt;
}

} // namespace phial
