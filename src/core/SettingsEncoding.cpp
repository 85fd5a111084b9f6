#include "core/SettingsEncoding.h"

#include "core/EscapedText.h"
#include "core/ExactNumber.h"
#include "core/NumberText.h"

#include <utility>

namespace phial
{

namespace
{

constexpr StringView TextTag = u"text:";
constexpr StringView NumberTag = u"number:";
constexpr StringView BooleanTag = u"boolean:";
constexpr StringView ListTag = u"list:";

constexpr char16_t ItemSign = u'|';
constexpr StringView EscapedInSettings = u"|";
constexpr StringView AlsoEscapedInKeys = u"|/";

std::optional<Variant> decodeNumber(StringView encoded)
{
    const auto number = exactWhole(encoded);
    return number ? std::optional<Variant>(*number) : std::nullopt;
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
        auto text = unescapedText(item);
        if (!text) {
            return std::nullopt;
        }
        items.emplace_back(*std::move(text));
    }
    return Variant(std::move(items));
}

String listLine(const Variant::Array& items)
{
    String line(ListTag);
    for (const Variant& item : items) {
        line += ItemSign;
        line += escapedText(item.text(), EscapedInSettings);
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
        return String(NumberTag) + plainText(value.toWhole());
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
    line += escapedText(value.text(), EscapedInSettings);
    return line;
}

std::optional<Variant> decodeSetting(StringView line)
{
    if (line.size() > MaxSettingLength) {
        return std::nullopt;
    }
    if (line.starts_with(TextTag)) {
        auto text = unescapedText(line.substr(TextTag.size()));
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
        key += escapedText(lowerCase(part), AlsoEscapedInKeys);
    }
    return key;
}

} // namespace phial
