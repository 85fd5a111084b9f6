#include "visual/ComboBox.h"

#include "visual/Change.h"
#include "visual/FrameMembers.h"

namespace phial
{

namespace
{

constexpr std::int32_t PropertyReadOnly = 383;

constexpr auto Table = joinMembers(
    FrameMembers,
    std::to_array<Member>({
        members::property<ComboBox, ComboStyle, &ComboBox::Style, &ComboBox::Style>(u"Style"),
        members::readOnly<ComboBox, std::int32_t, &ComboBox::ListCount>(u"ListCount"),
        members::property<ComboBox, std::int32_t, &ComboBox::ListIndex, &ComboBox::ListIndex>(u"ListIndex"),
        members::property<ComboBox, String, &ComboBox::Text, &ComboBox::Text>(u"Text"),
        members::property<ComboBox, FontPtr, &ComboBox::Font, &ComboBox::Font>(u"Font"),
        members::property<ComboBox, Colour, &ComboBox::BackColor, &ComboBox::BackColor>(u"BackColor"),
        members::operation<ComboBox, &ComboBox::Clear>(u"Clear"),
    }));

} // namespace

ComboBox::ComboBox() : frame_(*this), font_(std::make_shared<phial::Font>())
{
    frame_.canFocus(true);
    listenToFont();
}

MemberTable ComboBox::members() const
{
    return Table;
}

void ComboBox::listenToFont()
{
    fontChanged_ = font_->changed.connect([this] { frame_.report(ControlAspect::Style); });
}

void ComboBox::Style(ComboStyle value)
{
    if (change(style_, value)) {
        frame_.report(ControlAspect::Style);
    }
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
    Click.emit();
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
        Change.emit();
    }
}

void ComboBox::Font(FontPtr value)
{
    shareFont(font_, fontChanged_, std::move(value), [this] { frame_.report(ControlAspect::Style); });
}

void ComboBox::BackColor(Colour value)
{
    if (change(backColor_, value)) {
        frame_.report(ControlAspect::Style);
    }
}

void ComboBox::inputText(const String& text)
{
    if (change(text_, text)) {
        items_.choose(-1);
        Change.emit();
    }
}

void ComboBox::inputChoice(std::int32_t index)
{
    items_.choose(index);
    text_ = index < 0 ? String() : items_.line(index);
    Click.emit();
}

} // namespace phial
