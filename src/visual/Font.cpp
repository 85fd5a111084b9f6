#include "visual/Font.h"

#include "core/Members.h"
#include "core/RuntimeError.h"

namespace phial
{

Font::Font(FontSpec traits) : spec_(std::move(traits)) {}

template <typename Value>
void Font::change(Value& field, Value value)
{
    if (field == value) {
        return;
    }
    field = std::move(value);
    changed.raise();
}

void Font::Name(String value)
{
    change(spec_.name, std::move(value));
}

void Font::Size(double value)
{
    if (!(value > 0)) {
        throw RuntimeError(ErrorNumber::InvalidArgument);
    }
    change(spec_.size, value);
}

void Font::Bold(bool value)
{
    change(spec_.bold, value);
}

void Font::Italic(bool value)
{
    change(spec_.italic, value);
}

void Font::Underline(bool value)
{
    change(spec_.underline, value);
}

void Font::Strikethrough(bool value)
{
    change(spec_.strikethrough, value);
}

void Font::Charset(std::int32_t value)
{
    change(spec_.charset, value);
}

void Font::Weight(std::int32_t value)
{
    constexpr std::int32_t BoldFrom = 551;
    Bold(value >= BoldFrom);
}

void Font::assign(const FontSpec& traits)
{
    change(spec_, traits);
}

Variant ownCopy(const Variant& value)
{
    if (value.kind() == Variant::Kind::Object) {
        if (const auto font = std::dynamic_pointer_cast<Font>(value.object())) {
            return Variant(ObjectPtr(font->clone()));
        }
    }
    return value;
}

MemberTable Font::members() const
{
    using members::property;
    static constexpr auto Table = std::to_array<Member>({
        property<Font, String, &Font::Name, &Font::Name>(u"Name"),
        property<Font, double, &Font::Size, &Font::Size>(u"Size"),
        property<Font, bool, &Font::Bold, &Font::Bold>(u"Bold"),
        property<Font, bool, &Font::Italic, &Font::Italic>(u"Italic"),
        property<Font, bool, &Font::Underline, &Font::Underline>(u"Underline"),
        property<Font, bool, &Font::Strikethrough, &Font::Strikethrough>(u"Strikethrough"),
        property<Font, std::int32_t, &Font::Charset, &Font::Charset>(u"Charset"),
        property<Font, std::int32_t, &Font::Weight, &Font::Weight>(u"Weight"),
    });
    return Table;
}

} // namespace phial
