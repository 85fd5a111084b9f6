#pragma once

#include "core/Colour.h"
#include "visual/Control.h"
#include "visual/ListItems.h"
#include "visual/SharedFont.h"

namespace phial
{

/// A list to choose from; the toolkit's own widget. Lines count from 0.
class ListBox final : public Control
{
public:
    ListBox();

    std::int32_t ListCount() const { return items_.count(); }
    /// Raises 9 outside.
    String List(std::int32_t index) const { return items_.line(index); }
    void List(std::int32_t index, String value);
    /// A number kept with a line.
    std::int32_t ItemData(std::int32_t index) const { return items_.data(index); }
    void ItemData(std::int32_t index, std::int32_t value) { items_.data(index, value); }
    /// At the end, or before the line `index`.
    void AddItem(String value, std::int32_t index = -1);
    void RemoveItem(std::int32_t index);
    void Clear();
    /// The chosen line, -1 for none; setting another one raises Click. Outside raises 380.
    std::int32_t ListIndex() const { return items_.chosen(); }
    void ListIndex(std::int32_t value);
    /// The chosen line's text, or "".
    String Text() const;
    FontPtr Font() const { return font_.pointer(); }
    /// Shares the font object; null raises 91.
    void Font(FontPtr value);
    Colour BackColor() const { return backColor_; }
    void BackColor(Colour value);

    Event<> Click;
    Event<> DblClick;
    Event<> GotFocus;
    Event<> LostFocus;
    Event<KeyEvent&> KeyDown;

    /// The user has chosen a line (again: raises Click all the same).
    void inputChoice(std::int32_t index);

    StringView typeName() const override { return u"ListBox"; }
    MemberTable members() const override;
    ControlFrame& frame() override { return frame_; }
    void doubleClick() override { DblClick.raise(); }
    void keyDown(KeyEvent& event) override { KeyDown.raise(event); }
    void gotFocus() override { GotFocus.raise(); }
    void lostFocus() override { LostFocus.raise(); }

private:
    struct Properties;

    ControlFrame frame_;
    ListItems items_;
    SharedFont font_;
    Colour backColor_ = SystemColour::Window;
};

} // namespace phial
