#include "visual/ComboBox.h"

#include "visual/Change.h"
#include "visual/PropertyRows.h"

namespace phial
{

namespace
{

constexpr std::int32_t PropertyReadOnly = 383;

} // namespace

struct ComboBox::Properties {
    static constexpr rows::Table Table{
        rows::property<u"Style">(&ComboBox::style_),
        rows::readOnly<u"ListCount">(&ComboBox::ListCount),
        rows::property<u"ListIndex">(&ComboBox::ListIndex, &ComboBox::ListIndex),
        rows::property<u"Text">(&ComboBox::Text, &ComboBox::Text),
        rows::font<u"Font">(&ComboBox::font_),
        rows::property<u"BackColor">(&ComboBox::backColor_),
        rows::operation<u"AddItem">(&ListItems::addByName<ComboBox>),
        rows::operation<u"Clear">(&ComboBox::Clear),
    };
};

ComboBox::ComboBox() : frame_(*this)
{
    frame_.canFocus(true);
    rows::start<Properties>(*this);
}

MemberTable ComboBox::members() const
{
    return rows::membersOf<Properties>();
}

void ComboBox::Style(ComboStyle value)
{
    rows::set<Properties, u"Style">(*this, value);
}

void ComboBox::AddItem(String value, std::int32_t index)
{
    items_.add(std::move(value), index);
    frame_.report(ControlAspect::Items);
}

void ComboBox::RemoveItem(std::int32_t index)
{
    items_.remove(index);
    if (style_ == ComboStyle::ListOnly && items_.chosen() < 0) {
        text_.clear();
    }
    frame_.report(ControlAspect::Items);
}

void ComboBox::Clear()
{
    items_.clear();
    text_.clear();
    frame_.report(ControlAspect::Items);
}

void ComboBox::ListIndex(std::int32_t value)
{
    if (!items_.choose(value)) {
        return;
    }
    text_ = value < 0 ? String() : items_.line(value);
    frame_.report(ControlAspect::Selection);
    Click.raise();
}

void ComboBox::Text(String value)
{
    if (style_ == ComboStyle::ListOnly) {
        for (std::int32_t i = 0; i < items_.count(); ++i) {
            if (items_.line(i) == value) {
                ListIndex(i);
                return;
            }
        }
        throw RuntimeError(PropertyReadOnly, u"Property is read-only");
    }
    if (change(text_, std::move(value))) {
        items_.choose(-1);
        frame_.report(ControlAspect::Text);
        Change.raise();
    }
}

// One line a setter.
// clang-format off
void ComboBox::Font(FontPtr value) { rows::set<Properties, u"Font">(*this, std::move(value)); }
void ComboBox::BackColor(Colour value) { rows::set<Properties, u"BackColor">(*this, value); }
// clang-format on

void ComboBox::inputText(const String& text)
{
    if (change(text_, text)) {
        items_.choose(-1);
        Change.raise();
    }
}

void ComboBox::inputChoice(std::int32_t index)
{
    items_.choose(index);
    text_ = index < 0 ? String() : items_.line(index);
    Click.raise();
}

} // namespace phial
