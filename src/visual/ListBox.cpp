#include "visual/ListBox.h"

#include "visual/Change.h"
#include "visual/FrameMembers.h"

namespace phial
{

namespace
{

constexpr auto Table = joinMembers(
    FrameMembers,
    std::to_array<Member>({
        members::readOnly<ListBox, std::int32_t, &ListBox::ListCount>(u"ListCount"),
        members::property<ListBox, std::int32_t, &ListBox::ListIndex, &ListBox::ListIndex>(u"ListIndex"),
        members::readOnly<ListBox, String, &ListBox::Text>(u"Text"),
        members::property<ListBox, FontPtr, &ListBox::Font, &ListBox::Font>(u"Font"),
        members::property<ListBox, Colour, &ListBox::BackColor, &ListBox::BackColor>(u"BackColor"),
        members::operation<ListBox, &ListBox::Clear>(u"Clear"),
    }));

} // namespace

ListBox::ListBox() : frame_(*this), font_(std::make_shared<phial::Font>())
{
    frame_.canFocus(true);
    listenToFont();
}

MemberTable ListBox::members() const
{
    return Table;
}

void ListBox::listenToFont()
{
    fontChanged_ = font_->changed.connect([this] { frame_.report(ControlAspect::Style); });
}

void ListBox::List(std::int32_t index, String value)
{
    items_.line(index, std::move(value));
    frame_.report(ControlAspect::Items);
}

void ListBox::AddItem(String value, std::int32_t index)
{
    items_.add(std::move(value), index);
    frame_.report(ControlAspect::Items);
}

void ListBox::RemoveItem(std::int32_t index)
{
    items_.remove(index);
    frame_.report(ControlAspect::Items);
}

void ListBox::Clear()
{
    items_.clear();
    frame_.report(ControlAspect::Items);
}

void ListBox::ListIndex(std::int32_t value)
{
    if (items_.choose(value)) {
        frame_.report(ControlAspect::Selection);
        Click.emit();
    }
}

String ListBox::Text() const
{
    return items_.chosen() < 0 ? String() : items_.line(items_.chosen());
}

void ListBox::Font(FontPtr value)
{
    shareFont(font_, fontChanged_, std::move(value), [this] { frame_.report(ControlAspect::Style); });
}

void ListBox::BackColor(Colour value)
{
    if (change(backColor_, value)) {
        frame_.report(ControlAspect::Style);
    }
}

void ListBox::inputChoice(std::int32_t index)
{
    items_.choose(index);
    Click.emit();
}

} // namespace phial
