#pragma once

#include "term/TermCaret.h"
#include "term/TermEdit.h"
#include "term/TermLayout.h"
#include "visual/PaintHints.h"
#include "visual/PaintSurface.h"
#include "visual/SharedFont.h"
#include "visual/Timer.h"
#include "visual/UserControl.h"

#include <optional>

namespace phial
{

/// A field of one line into which a term is typed; it shows it as TermDraw draws it, with a blinking caret.
///
/// The caret's index counts the units of the term. Where the drawn term has no place for it (within an arrow
/// or a fraction) the caret is shown at the nearest place before; a press never leads there. A term that is
/// longer than the field is moved along so that the caret stays in sight.
///
/// A locked field takes no key, no text and no drop; it can be read, copied and dragged from. Ctrl+C copies
/// the whole term, since nothing can be selected, Ctrl+X takes it out, Ctrl+Z and Ctrl+Y (or Ctrl+Shift+Z)
/// undo and redo what the user has done.
///
/// Every writer stores its value, tells the change and draws. Persisted: "TERM" (default "H2O"), "TEXTALIGN"
/// (0), "T1" (the text's colour), "M1" (the ground's), "LOCKED" and "OLEDRAGAUTO" (False), and the font under
/// "TEXTFONT" (Tahoma 8 when none is stored).
class clt_TermInput final : public UserControl, public PaintHints
{
public:
    clt_TermInput();

    /// Unique in the installation; empty before UserControl_Initialize.
    String CTRLID() const { return id_; }
    /// A drag of the left button gives the term away.
    bool OLEDRAGAUTO() const { return dragsByItself_; }
    void OLEDRAGAUTO(bool value);
    /// The caret's index stays as it is, and what the user did before cannot be undone.
    String Term() const { return edit_.text(); }
    void Term(String value);
    bool LOCKED() const { return locked_; }
    void LOCKED(bool value);
    phial::TEXTALIGN TEXTALIGN() const { return align_; }
    void TEXTALIGN(phial::TEXTALIGN value);
    /// A change of its attributes shows at once; null brings back the font of a fresh field.
    FontPtr TEXTFONT() const { return font_.pointer(); }
    void TEXTFONT(FontPtr value);
    Colour TEXTCOLOR() const { return textColour_; }
    void TEXTCOLOR(Colour value);
    Colour BACKCOLOR() const { return backColour_; }
    void BACKCOLOR(Colour value);

    void UserControl_Initialize();
    /// Draws the term anew; nothing that fails while drawing is told.
    void REDRAW();
    /// Begins a drag that carries the term.
    void OLEDrag();

    /// The caret's index: 0 before the first unit, k behind unit k. Any value may be set; the index is held
    /// to the term, and never stands between the halves of a pair. No member by name.
    std::int32_t CARET() const { return edit_.caret(); }
    void CARET(std::int32_t value);
    /// A change of the user's by other means than the field's own keys, such as a key beside it: so many
    /// units from a place on become the piece, behind which the caret comes. It can be undone and raises
    /// CHANGED; a locked field stays as it is.
    void edit(std::size_t at, std::size_t length, StringView piece);
    /// How far the term stays away from the field's left and right edge, in pixels; 0 at first.
    std::int32_t inset() const { return inset_; }
    void inset(std::int32_t pixels);

    Event<> CLICK;
    Event<const PointerEvent&> MouseDown;
    Event<const PointerEvent&> MouseMove;
    Event<const PointerEvent&> MouseUp;
    Event<> DBLCLICK;
    /// The user has changed the term; not for what the program sets.
    Event<> CHANGED;
    /// Return, or Escape, has gone down and up here.
    Event<> ENTER;
    Event<> Cancel;

    StringView typeName() const override { return u"clt_TermInput"; }
    MemberTable members() const override;
    PixelSize contentSize(std::optional<double> width = std::nullopt) const override;
    ControlFrame& frame() override { return frame_; }
    PaintSurface& surface() override { return surface_; }
    PartRole role() const override { return PartRole::Editable; }
    /// The term in words, without its name: the field may be that of an answer.
    String accessibleText() const override;
    bool coversAll() const override { return true; }
    std::optional<PixelRectangle> currentPartArea() const override { return std::nullopt; }
    void initProperties() override { refresh(); }
    void readProperties(const PropertyBag& bag) override;
    void writeProperties(PropertyBag& bag) override;
    void shown() override { refresh(); }
    void hidden() override { lostFocus(); } // a form that is hidden does not tell it
    void ended() override { cursor_.Enabled(false); }
    void resized() override;
    void paint() override { draw(); }

    void pointerDown(const PointerEvent& event) override;
    void pointerMove(const PointerEvent& event) override;
    void pointerUp(const PointerEvent& event) override;
    void click() override { CLICK.raise(); }
    void doubleClick() override { DBLCLICK.raise(); }
    void keyDown(KeyEvent& event) override;
    void keyPress(KeyPressEvent& event) override;
    void keyUp(KeyEvent& event) override;
    void composing() override { refresh(); }
    void gotFocus() override;
    void lostFocus() override;
    void dragDrop(Control& source, double x, double y) override;
    void textDropped(const String& text) override;
    std::optional<String> dragText() override { return edit_.text(); }

private:
    struct Properties;

    void refresh();
    void layOut();
    void caretMoved();
    void followCaret();
    void draw();
    void tellText();
    String shownTerm() const;
    std::int32_t shownCaret() const;
    bool isCaretSeen() const { return focused_ && blinkOn_ && isInActiveWindow(); }
    bool isInActiveWindow() const;
    void showChangedCaret();
    std::int32_t shiftForCaret() const;
    PixelPoint anchor() const;

    void tick();
    bool mayBlink() const;
    void showCaret();
    void edited();
    void strike(Key key);
    bool command(const KeyEvent& event);
    void copy() const;
    void moved();
    void changedBy(bool isChange);

    ControlFrame frame_;
    PaintSurface surface_;
    Timer cursor_;
    Connection ticking_;
    String id_;
    TermEdit edit_;
    bool dragsByItself_{};
    bool locked_{};
    phial::TEXTALIGN align_{};
    Colour textColour_;
    Colour backColour_;
    SharedFont font_;

    TermLayout layout_; ///< of the term as it is shown, before it is moved
    TermCaret places_;  ///< the layout's
    std::int32_t inset_ = 0;
    std::int32_t shift_ = 0; ///< by which a long term is moved, in pixels
    bool focused_ = false;
    bool blinkOn_ = false;
    bool caretDrawn_ = false;             ///< as it was drawn last
    Connections activation_;              ///< to the form while the field has the focus
    std::optional<PointerEvent> pressed_; ///< while a drag may begin
    std::int32_t keyDown_ = 0;            ///< Return or Escape that has gone down here
};

} // namespace phial
