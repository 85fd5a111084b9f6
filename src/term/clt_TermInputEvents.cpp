#include "term/TermCopy.h"
#include "term/TermPaste.h"
#include "term/clt_TermInput.h"
#include "visual/Typing.h"
#include "visual/VisualHost.h"

#include <cmath>

/// The part of a term field that deals with what the user does: pointer, drops, keys.
namespace phial
{

namespace
{

constexpr double MouseDragStart = 4;
constexpr double TouchDragStart = 10;

/// What a drop of another control brings: its text, else its caption, else its term.
std::optional<String> textOf(Control& source)
{
    const std::optional<Variant> text = tryGet(source, u"TEXT");
    if (text && !text->toText().empty()) {
        return text->toText();
    }
    for (const StringView name : {u"Caption", u"Term"}) {
        if (const std::optional<Variant> value = tryGet(source, name)) {
            return value->toText();
        }
    }
    return std::nullopt;
}

} // namespace

// The pointer.

void clt_TermInput::pointerDown(const PointerEvent& event)
{
    const auto self = shared_from_this(); // a handler may take it away
    if (!frame_.hasFocus()) {
        ignoringErrors([this] { frame_.SetFocus(); });
    }
    showCaret();
    edit_.caret(places_.indexAt(event.X - shift_));
    caretMoved();
    pressed_.reset();
    if (event.Button == PointerButton::Left) {
        pressed_ = event;
    }
    MouseDown.raise(event);
}

void clt_TermInput::pointerMove(const PointerEvent& event)
{
    const auto self = shared_from_this();
    const auto isFar = [&] {
        const double start = event.Touch == 0 ? MouseDragStart : TouchDragStart;
        return std::hypot(event.X - pressed_->X, event.Y - pressed_->Y) >= start;
    };
    if (event.Button == PointerButton::Left && dragsByItself_ && pressed_ && isFar()) {
        pressed_.reset(); // one drag a press
        OLEDrag();
    }
    MouseMove.raise(event);
}

void clt_TermInput::pointerUp(const PointerEvent& event)
{
    pressed_.reset();
    MouseUp.raise(event);
}

void clt_TermInput::OLEDrag()
{
    frame_.Drag();
}

void clt_TermInput::dragDrop(Control& source, double /*x*/, double /*y*/)
{
    if (locked_ || &source == this) {
        return;
    }
    ignoringErrors([&] {
        if (const std::optional<String> text = textOf(source)) {
            changedBy(edit_.replace(*text));
        }
    });
}

void clt_TermInput::textDropped(const String& text)
{
    if (!locked_) {
        changedBy(edit_.replace(termOfText(text)));
    }
}

// Keys.

void clt_TermInput::keyDown(KeyEvent& event)
{
    if (command(event)) {
        event.KeyCode = 0;
        return;
    }
    if (!event.isRepeat && (event.is(Key::Return) || event.is(Key::Escape))) {
        keyDown_ = event.KeyCode;
    }
    if (!locked_) {
        strike(static_cast<Key>(event.KeyCode));
    }
}

void clt_TermInput::strike(Key key)
{
    switch (key) {
    case Key::Backspace:
        return changedBy(edit_.eraseBefore());
    case Key::Delete:
        return changedBy(edit_.eraseBehind());
    case Key::End:
        edit_.moveToEnd();
        return moved();
    case Key::Home:
        edit_.moveToStart();
        return moved();
    case Key::Left:
        edit_.moveLeft();
        return moved();
    case Key::Right:
        edit_.moveRight();
        return moved();
    default:
        return;
    }
}

/// Gives whether the key is one of the field's commands.
bool clt_TermInput::command(const KeyEvent& event)
{
    constexpr std::int32_t Modifiers = ShiftMask::Shift | ShiftMask::Control | ShiftMask::Alt;
    const std::int32_t shift = event.Shift & Modifiers;
    const bool isRedo = shift == (ShiftMask::Shift | ShiftMask::Control) && event.KeyCode == u'Z';
    if (shift != ShiftMask::Control && !isRedo) {
        return false;
    }
    switch (event.KeyCode) {
    case u'C':
        copy();
        return true;
    case u'X':
        copy();
        changedBy(!locked_ && edit_.clear());
        return true;
    case u'V':
        changedBy(!locked_ &&
                  edit_.insert(termOfClipboard(visualHost().clipboardText(), visualHost().clipboardHtml())));
        return true;
    case u'Z':
        changedBy(!locked_ && (isRedo ? edit_.redo() : edit_.undo()));
        return true;
    case u'Y':
        changedBy(!locked_ && edit_.redo());
        return true;
    default:
        return false;
    }
}

void clt_TermInput::edit(std::size_t at, std::size_t length, StringView piece)
{
    changedBy(!locked_ && edit_.replace(at, length, piece));
}

void clt_TermInput::copy() const
{
    if (!edit_.view().empty()) {
        visualHost().clipboard(textOfTerm(edit_.view()), htmlOfTerm(edit_.view()));
    }
}

void clt_TermInput::keyPress(KeyPressEvent& event)
{
    if (!locked_ && event.KeyAscii >= u' ') {
        changedBy(edit_.type(event.KeyAscii));
    }
}

void clt_TermInput::keyUp(KeyEvent& event)
{
    const bool wentDownHere = keyDown_ != 0 && keyDown_ == event.KeyCode;
    if (!wentDownHere) {
        return;
    }
    const auto self = shared_from_this();
    keyDown_ = 0;
    if (locked_) {
        return;
    }
    if (event.is(Key::Return)) {
        ignoringErrors([this] { frame_.SetFocus(); });
        ENTER.raise();
    } else {
        Cancel.raise();
    }
}

void clt_TermInput::moved()
{
    showCaret();
    caretMoved();
}

/// What follows an edit, if it has changed the term.
void clt_TermInput::changedBy(bool isChange)
{
    if (!isChange) {
        return;
    }
    const auto self = shared_from_this();
    showCaret();
    refresh();
    CHANGED.raise();
}

} // namespace phial
