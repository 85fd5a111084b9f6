#pragma once

#include "visual/Form.h"

#include <span>

namespace phial
{

/// One control of a form's design: a row of a constant table.
///
///     constexpr LayoutItem Layout[] = {
///         design<ctl_Title>(u"bar_Header", {0, 0, 6000, 480}, u"Molmasse|Molar mass"),
///         design<TextBox>(u"txt_Input", {240, 900, 3000, 360}).inside(u"ctl_Frame1"),
///     };
struct LayoutItem {
    struct Rectangle {
        double left;
        double top;
        double width;
        double height;
    };

    std::shared_ptr<Control> (*make)();
    StringView name;
    Rectangle place{}; ///< in the container's unit
    StringView text{}; ///< "German|English", goes to Caption, Title or Text
    std::int32_t index = -1;
    StringView container{}; ///< name of a control listed before; empty: the form
    bool visible = true;

    constexpr LayoutItem at(std::int32_t arrayIndex) const
    {
        auto copy = *this;
        copy.index = arrayIndex;
        return copy;
    }
    constexpr LayoutItem inside(StringView holder) const
    {
        auto copy = *this;
        copy.container = holder;
        return copy;
    }
    constexpr LayoutItem hidden() const
    {
        auto copy = *this;
        copy.visible = false;
        return copy;
    }
};

template <typename Class>
constexpr LayoutItem design(StringView name, LayoutItem::Rectangle place, StringView text = {})
{
    return {[]() -> std::shared_ptr<Control> { return makeControl<Class>(); }, name, place, text};
}

/// Makes the controls of a design on the form, in the order of the table, which is the order of the Tab key
/// too. Raises 438 for a container that is not there.
void applyLayout(Form& form, std::span<const LayoutItem> layout);

} // namespace phial
