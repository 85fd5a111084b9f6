#pragma once

#include "core/Event.h"
#include "core/Object.h"
#include "visual/FontSpec.h"

#include <memory>

namespace phial
{

/// A font object, shared by reference: whoever holds it sees a change and hears of it through `changed`.
class Font final : public Object
{
public:
    explicit Font(FontSpec traits = {});

    String Name() const { return spec_.name; }
    void Name(String value);
    /// Points; a size that is not above 0 raises 5.
    double Size() const { return spec_.size; }
    void Size(double value);
    bool Bold() const { return spec_.bold; }
    void Bold(bool value);
    bool Italic() const { return spec_.italic; }
    void Italic(bool value);
    bool Underline() const { return spec_.underline; }
    void Underline(bool value);
    bool Strikethrough() const { return spec_.strikethrough; }
    void Strikethrough(bool value);
    std::int32_t Charset() const { return spec_.charset; }
    void Charset(std::int32_t value);
    /// 400 normal, 700 bold; a weight above 550 counts as bold.
    std::int32_t Weight() const { return spec_.bold ? 700 : 400; }
    void Weight(std::int32_t value);

    const FontSpec& traits() const { return spec_; }
    /// Takes over all attributes at once; one `changed`.
    void assign(const FontSpec& traits);
    /// A font of its own with the same attributes.
    std::shared_ptr<Font> clone() const { return std::make_shared<Font>(spec_); }

    /// Raised behind a change of any attribute, not when the old value is set again.
    Event<> changed;

    StringView typeName() const override { return u"Font"; }
    MemberTable members() const override;

private:
    template <typename Value>
    void change(Value& field, Value value);

    FontSpec spec_;
};

using FontPtr = std::shared_ptr<Font>;

/// The value to keep when a property's value is copied: a font becomes a font of its own, all else stays as
/// it is.
Variant ownCopy(const Variant& value);

} // namespace phial
