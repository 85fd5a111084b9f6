#include "visual/ListBox.h"

#include "visual/PropertyRows.h"

namespace phial
{

struct ListBox::Properties {
    static constexpr rows::Table Table{
        rows::readOnly<u"ListCount">(&ListBox::ListCount),
        rows::property<u"ListIndex">(&ListBox::ListIndex, &ListBox::ListIndex),
        rows::readOnly<u"Text">(&ListBox::Text),
        rows::font<u"Font">(&ListBox::font_),
        rows::property<u"BackColor">(&ListBox::backColor_),
        rows::operation<u"AddItem">(&ListItems::addByName<ListBox>),
        rows::operation<u"Clear">(&ListBox::Clear),
    };
};

ListBox::ListBox() : frame_(*this)
{
    frame_.canFocus(true);
    rows::start<Properties>(*this);
}

MemberTable ListBox::members() const
{
    return rows::membersOf<Properties>();
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
        Click.raise();
    }
}

String ListBox::Text() const
{
    return items_.chosen() < 0 ? String() : items_.line(items_.chosen());
}

// One line a setter.
// clang-format off
void ListBox::Font(FontPtr value) { rows::set<Properties, u"Font">(*this, std::move(value)); }
void ListBox::BackColor(Colour value) { rows::set<Properties, u"BackColor">(*this, value); }
// clang-format on

void ListBox::inputChoice(std::int32_t index)
{
    items_.choose(index);
    Click.raise();
}

} // namespace phial
