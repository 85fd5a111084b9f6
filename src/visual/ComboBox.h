#pragma once

#include "core/Colour.h"
#include "visual/Control.h"
#include "visual/ListItems.h"
#include "visual/SharedFont.h"

namespace phial
{

enum class ComboStyle : std::int32_t { Editable = 0, ListOnly = 2 };

/// A line with a list that drops down; the toolkit's own widget. Lines count from 0.
class ComboBox final : public Control
{
public:
    ComboBox();

    ComboStyle Style() const { return style_; }
    void Style(ComboStyle value);
    std::int32_t ListCount() const { return items_.count(); }
    /// Raises 9 outside.
    String List(std::int32_t index) const { return items_.line(index); }
    std::int32_t ItemData(std::int32_t index) const { return items_.data(index); }
    void ItemData(std::int32_t index, std::int32_t value) { items_.data(index, value); }
    void AddItem(String value, std::int32_t index = -1);
    void RemoveItem(std::int32_t index);
    void Clear();
    /// The chosen line, -1 for none; setting another one takes over its text and raises Click. Outside raises
    /// 380.
    std::int32_t ListIndex() const { return items_.chosen(); }
    void ListIndex(std::int32_t value);
    /// Editable: any text, raises Change when it differs. ListOnly: chooses the line of that text; raises 383
    /// when there is none.
    String Text() const { return text_; }
    void Text(String value);
    FontPtr Font() const { return font_.pointer(); }
    /// Shares the font object; null raises 91.
    void Font(FontPtr value);
    Colour BackColor() const { return backColor_; }
    void BackColor(Colour value);

    Event<> Change;
    Event<> Click;
    Event<> GotFocus;
    Event<> LostFocus;

    /// The user has typed a text or chosen a line.
    void inputText(const String& text);
    void inputChoice(std::int32_t index);

    StringView typeName() const override { return u"ComboBox"; }
    MemberTable members() const override;
    ControlFrame& frame() override { return frame_; }
    void gotFocus() override { GotFocus.raise(); }
    void lostFocus() override { LostFocus.raise(); }

private:
    struct Properties;

    ControlFrame frame_;
    ComboStyle style_ = ComboStyle::Editable;
    ListItems items_;
    String text_;
    SharedFont font_;
    Colour backColor_ = SystemColour::Window;
};

} // namespace phial
