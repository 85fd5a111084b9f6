#pragma once

#include "core/Colour.h"
#include "visual/Control.h"
#include "visual/SharedFont.h"

namespace phial
{

/// A field for longer text; the toolkit's own widget. The text is kept plain; `TextRTF` writes it as a
/// rich-text document and reads such a document's text. Lines are parted by CR LF.
class RichTextBox final : public Control
{
public:
    RichTextBox();

    String Text() const { return text_; }
    /// Raises Change when the text differs.
    void Text(String value);
    /// The text as a rich-text document.
    String TextRTF() const;
    /// A text that does not begin as a rich-text document is taken as it stands.
    void TextRTF(StringView value);
    std::int32_t SelStart() const { return selStart_; }
    void SelStart(std::int32_t value);
    std::int32_t SelLength() const { return selLength_; }
    void SelLength(std::int32_t value);
    bool Locked() const { return locked_; }
    void Locked(bool value);
    FontPtr Font() const { return font_.pointer(); }
    /// Shares the font object; null raises 91.
    void Font(FontPtr value);
    Colour BackColor() const { return backColor_; }
    void BackColor(Colour value);

    Event<> Change;
    Event<> Click;
    Event<> GotFocus;
    Event<> LostFocus;
    Event<KeyEvent&> KeyDown;
    Event<KeyPressEvent&> KeyPress;
    Event<KeyEvent&> KeyUp;

    /// The user has edited the text or moved the selection.
    void inputText(const String& text, std::int32_t selStart, std::int32_t selLength);

    StringView typeName() const override { return u"RichTextbox"; }
    MemberTable members() const override;
    ControlFrame& frame() override { return frame_; }
    bool wantsKey(Key key) const override { return key == Key::Return; }
    void click() override { Click.raise(); }
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
    bool locked_ = false;
    SharedFont font_;
    Colour backColor_ = SystemColour::Window;
};

} // namespace phial
