#include "core/SettingsEncoding.h"

#include <charconv>
#include <string>
#include <utility>

namespace phial
{

namespace
{

constexpr StringView TextTag = u"text:";
constexpr StringView NumberTag = u"number:";
constexpr StringView BooleanTag = u"boolean:";
constexpr StringView ListTag = u"list:";

constexpr char16_t EscapeSign = u'%';
constexpr char16_t ItemSign = u'|';
constexpr std::size_t EscapeDigits = 4;

bool isHighHalf(char16_t unit)
{
    return unit >= 0xD800 && unit <= 0xDBFF;
}
bool isLowHalf(char16_t unit)
{
    return unit >= 0xDC00 && unit <= 0xDFFF;
}

void appendEscaped(String& out, char16_t unit)
{
    constexpr StringView Digits = u"0123456789ABCDEF";
    out += EscapeSign;
    for (int shift = 12; shift >= 0; shift -= 4) {
        out += Digits[(unit >> static_cast<unsigned>(shift)) & 0xFU];
    }
}

// Escapes what a line of UTF-8 cannot carry or what has a meaning here: control characters, lone surrogate
// halves, the two signs of this form and any of `alsoThese`.
void appendText(String& out, StringView text, StringView alsoThese = {})
{
    for (std::size_t at = 0; at < text.size(); ++at) {
        const char16_t unit = text[at];
        if (isHighHalf(unit) && at + 1 < text.size() && isLowHalf(text[at + 1])) {
            out += text.substr(at++, 2);
        } else if (unit < u' ' || unit == 0x7F || unit == EscapeSign || unit == ItemSign ||
                   isHighHalf(unit) || isLowHalf(unit) || alsoThese.find(unit) != StringView::npos) {
            appendEscaped(out, unit);
        } else {
            out += unit;
        }
    }
}

std::optional<unsigned> hexDigit(char16_t unit)
{
    if (unit >= u'0' && unit <= u'9') {
        return static_cast<unsigned>(unit - u'0');
    }
    if (unit >= u'A' && unit <= u'F') {
        return static_cast<unsigned>(unit - u'A') + 10U;
    }
    return std::nullopt;
}

std::optional<char16_t> escapedUnit(StringView digits)
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

std::optional<String> decodeText(StringView encoded)
{
    String text;
    text.reserve(encoded.size());
    for (std::size_t at = 0; at < encoded.size(); ++at) {
        if (encoded[at] != EscapeSign) {
            text += encoded[at];
            continue;
        }
        const auto unit = escapedUnit(encoded.substr(at + 1, EscapeDigits));
        if (!unit) {
            return std::nullopt;
        }
        text += *unit;
        at += EscapeDigits;
    }
    return text;
}

std::optional<Variant> decodeNumber(StringView encoded)
{
    std::string digits;
    for (const char16_t unit : encoded.substr(0, 12)) {
        digits += unit < 0x80 ? static_cast<char>(unit) : '?';
    }
    std::int32_t number = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    if (error != std::errc() || end != digits.data() + digits.size() || digits.size() != encoded.size()) {
        return std::nullopt;
    }
    return Variant(number);
}

std::optional<Variant> decodeBoolean(StringView encoded)
{
    if (encoded == u"true" || encoded == u"false") {
        return Variant(encoded == u"true");
    }
    return std::nullopt;
}

// Each item stands behind a sign of its own, so that no item and one empty item are two things.
std::optional<Variant> decodeList(StringView encoded)
{
    Variant::Array items;
    while (!encoded.empty()) {
        if (encoded.front() != ItemSign) {
            return std::nullopt;
        }
        encoded.remove_prefix(1);
        const StringView item = encoded.substr(0, encoded.find(ItemSign));
        encoded.remove_prefix(item.size());
        auto text = decodeText(item);
        if (!text) {
            return std::nullopt;
        }
        items.emplace_back(*std::move(text));
    }
    return Variant(std::move(items));
}

String numberLine(std::int32_t number)
{
    String line(NumberTag);
    for (const char digit : std::to_string(number)) {
        line += static_cast<char16_t>(digit);
    }
    return line;
}

String listLine(const Variant::Array& items)
{
    String line(ListTag);
    for (const Variant& item : items) {
        line += ItemSign;
        appendText(line, item.text());
    }
    return line;
}

} // namespace

String encodeSetting(const Variant& value)
{
    switch (value.kind()) {
    case Variant::Kind::Boolean:
        return String(BooleanTag) + (value.toBoolean() ? u"true" : u"false");
    case Variant::Kind::Whole:
        return numberLine(value.toWhole());
    case Variant::Kind::Array:
        return listLine(value.array());
    case Variant::Kind::Text:
    case Variant::Kind::Empty:
    case Variant::Kind::Real:
    case Variant::Kind::Moment:
    case Variant::Kind::Object:
        break;
    }
    String line(TextTag);
    appendText(line, value.text());
    return line;
}

std::optional<Variant> decodeSetting(StringView line)
{
    if (line.size() > MaxSettingLength) {
        return std::nullopt;
    }
    if (line.starts_with(TextTag)) {
        auto text = decodeText(line.substr(TextTag.size()));
        return text ? std::optional<Variant>(Variant(*std::move(text))) : std::nullopt;
    }
    if (line.starts_with(NumberTag)) {
        return decodeNumber(line.substr(NumberTag.size()));
    }
    if (line.starts_with(BooleanTag)) {
        return decodeBoolean(line.substr(BooleanTag.size()));
    }
    if (line.starts_with(ListTag)) {
        return decodeList(line.substr(ListTag.size()));
    }
    return std::nullopt;
}

String settingKey(StringView path)
{
    String key;
    for (const StringView part : split(path, u"\\")) {
        if (part.empty()) {
            continue;
        }
        if (!key.empty()) {
            key += u'/';
        }
        appendText(key, lowerCase(part), u"/");
    }
    return key;
}

} // namespace phial
