#include "gallery/PropertyText.h"

#include "core/Colour.h"
#include "core/CoreText.h"
#include "core/Palette.h"

#include <optional>

namespace gallery
{

using phial::Colour;
using phial::String;
using phial::StringView;
using phial::Variant;

namespace
{

constexpr StringView LineEnd = u"\r\n";
constexpr StringView LineEndSign = u"\u00B6";
constexpr StringView HexDigits = u"0123456789ABCDEF";

bool namesColour(StringView name)
{
    return phial::upperCase(name).find(u"COLOR") != String::npos;
}

String colourText(Colour colour)
{
    String text = u"#";
    for (const std::uint8_t part : {colour.red(), colour.green(), colour.blue()}) {
        text += HexDigits[part / 16];
        text += HexDigits[part % 16];
    }
    return text;
}

std::optional<Colour> colourOf(StringView text)
{
    constexpr std::size_t Length = 7;
    if (text.size() != Length || text.front() != u'#') {
        return std::nullopt;
    }
    int parts[3] = {};
    for (std::size_t i = 1; i < Length; ++i) {
        const auto digit = HexDigits.find(phial::upperCase(text.substr(i, 1)));
        if (digit == StringView::npos) {
            return std::nullopt;
        }
        int& part = parts[(i - 1) / 2];
        part = part * 16 + static_cast<int>(digit);
    }
    return phial::RGB(parts[0], parts[1], parts[2]);
}

String objectText(const phial::ObjectPtr& object)
{
    return object ? u"\u2192 " + String(object->typeName()) : String(u"\u2013");
}

} // namespace

String propertyText(StringView name, const Variant& value)
{
    if (value.kind() == Variant::Kind::Object) {
        return objectText(value.object());
    }
    if (value.kind() == Variant::Kind::Array) {
        return u"[" + Variant(static_cast<std::int32_t>(value.array().size())).toText() + u"]";
    }
    if (value.kind() == Variant::Kind::Whole && namesColour(name)) {
        const Colour colour{static_cast<std::uint32_t>(value.toWhole())};
        const bool isSlot = colour.isSystem() && !phial::Palette::has(colour);
        return isSlot ? value.toText() : colourText(phial::defaultColour(colour));
    }
    const String line = phial::CoreText::Replace(value.toText(), LineEnd, LineEndSign);
    return phial::CoreText::Replace(line, u"\n", LineEndSign);
}

Variant propertyValue(StringView name, StringView text)
{
    if (namesColour(name)) {
        if (const auto colour = colourOf(text)) {
            return static_cast<std::int32_t>(colour->value);
        }
    }
    return phial::CoreText::Replace(text, LineEndSign, LineEnd);
}

} // namespace gallery
