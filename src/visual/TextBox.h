#pragma once

#include "core/Colour.h"
#include "visual/Alignment.h"
#include "visual/Control.h"
#include "visual/SharedFont.h"

#include <optional>

namespace phial
{

/// A field to type in; the toolkit's own widget. Positions count 16-bit units from 0.
class TextBox final : public Control
{
public:
    TextBox();

    String Text() const { return text_; }
    /// Raises Change when the text differs; the caret goes to the start.
    void Text(String value);
    /// Start and length of the selection, limited to the text; a negative value raises 5. SelStart ends the
    /// selection.
    std::int32_t SelStart() const { return selStart_; }
    void SelStart(std::int32_t value);
    std::int32_t SelLength() const { return selLength_; }
    void SelLength(std::int32_t value);
    String SelText() const;
    /// Replaces the selection and puts the caret behind; raises Change when the text differs.
    void SelText(StringView value);
    /// Makes it ready for being edited in place: it takes the focus, and its whole text is selected. While it
    /// has the focus this happens once; from then on presses place the caret.
    void prepare();

    bool Locked() const { return locked_; }
    void Locked(bool value);
    /// Greatest length that can be typed; 0 for no limit. Text set by the program is not cut.
    std::int32_t MaxLength() const { return maxLength_; }
    void MaxLength(std::int32_t value);
    bool MultiLine() const { return multiLine_; }
    void MultiLine(bool value);
    /// Whether Return makes a line in a field of several. If not, Return is for the form's default control,
    /// where it has one, and Ctrl+Return makes the line. True at first.
    bool AcceptsReturn() const { return acceptsReturn_; }
    void AcceptsReturn(bool value);
    /// Shown for each character; empty shows the text.
    String PasswordChar() const { return passwordChar_; }
    void PasswordChar(String value);
    phial::Alignment Alignment() const { return alignment_; }
    void Alignment(phial::Alignment value);
    FontPtr Font() const { return font_.pointer(); }
    /// Shares the font object; null raises 91.
    void Font(FontPtr value);
    Colour ForeColor() const { return foreColor_; }
    void ForeColor(Colour value);
    Colour BackColor() const { return backColor_; }
    void BackColor(Colour value);

    Event<> Change;
    Event<> Click;
    Event<> DblClick;
    Event<> GotFocus;
    Event<> LostFocus;
    Event<KeyEvent&> KeyDown;
    Event<KeyPressEvent&> KeyPress;
    Event<KeyEvent&> KeyUp;
    Event<const PointerEvent&> MouseDown;
    Event<const PointerEvent&> MouseUp;

    /// The user has edited the text or moved the selection. The echo of what the model says raises nothing.
    void inputText(const String& text, std::int32_t selStart, std::int32_t selLength);

    StringView typeName() const override { return u"TextBox"; }
    MemberTable members() const override;
    ControlFrame& frame() override { return frame_; }
    String accessibleText() const override { return {}; }
    bool wantsKey(Key key) const override { return multiLine_ && acceptsReturn_ && key == Key::Return; }
    void pointerDown(const PointerEvent& event) override { MouseDown.raise(event); }
    void pointerUp(const PointerEvent& event) override { MouseUp.raise(event); }
    void click() override { Click.raise(); }
    void doubleClick() override { DblClick.raise(); }
    void keyDown(KeyEvent& event) override { KeyDown.raise(event); }
    void keyPress(KeyPressEvent& event) override { KeyPress.raise(event); }
    void keyUp(KeyEvent& event) override { KeyUp.raise(event); }
    void gotFocus() override { GotFocus.raise(); }
    void lostFocus() override { LostFocus.raise(); }

private:
    struct Properties;

    ControlFrame frame_;
    String text_;
    std::int32_t selStart_ = 0;
    std::int32_t selLength_ = 0;
    std::optional<std::uint32_t> preparedIn_; ///< turn of the focus
    bool locked_ = false;
    std::int32_t maxLength_ = 0;
    bool multiLine_ = false;
    bool acceptsReturn_ = true;
    String passwordChar_;
    phial::Alignment alignment_ = phial::Alignment::Left;
    SharedFont font_;
    Colour foreColor_ = SystemColour::WindowText;
    Colour backColor_ = SystemColour::Window;
};

} // namespace phial
