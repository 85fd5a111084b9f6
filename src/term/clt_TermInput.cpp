#include "term/clt_TermInput.h"

#include "core/Arithmetic.h"
#include "core/CoreDisplay.h"
#include "core/CoreMachine.h"
#include "core/CoreRoot.h"
#include "core/CoreSystem.h"
#include "term/TermCopy.h"
#include "term/TermPaste.h"
#include "visual/PropertyRows.h"
#include "visual/Typing.h"
#include "visual/VisualHost.h"

#include <algorithm>
#include <cmath>

namespace phial
{

namespace
{

constexpr std::int32_t BlinkTime = 500; // milliseconds
constexpr std::int32_t CaretGap = 3;    // above and below the caret
constexpr std::int32_t SightGap = 2;    // between the caret of a long term and the field's edge
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

struct clt_TermInput::Properties {
    static constexpr rows::Table Table{
        rows::readOnly<u"CTRLID">(&clt_TermInput::CTRLID),
        rows::property<u"OLEDRAGAUTO">(&clt_TermInput::dragsByItself_).kept(),
        rows::property<u"Term">(&clt_TermInput::edit_, &TermEdit::text, &TermEdit::text, u"H2O").kept(),
        rows::property<u"LOCKED">(&clt_TermInput::locked_).kept(),
        rows::property<u"TEXTALIGN">(&clt_TermInput::align_).kept(),
        rows::font<u"TEXTFONT">(&clt_TermInput::font_).kept().nullGivesDefault(),
        rows::property<u"TEXTCOLOR">(&clt_TermInput::textColour_, SystemColour::WindowText).kept(u"T1"),
        rows::property<u"BACKCOLOR">(&clt_TermInput::backColour_, SystemColour::Window).kept(u"M1"),
        rows::operation<u"UserControl_Initialize">(&clt_TermInput::UserControl_Initialize),
        rows::operation<u"REDRAW">(&clt_TermInput::REDRAW),
        rows::operation<u"OLEDrag">(&clt_TermInput::OLEDrag),
    };
    static constexpr bool Always = true;
    static constexpr auto Effect = &clt_TermInput::refresh;
};

clt_TermInput::clt_TermInput() : frame_(*this), surface_(*this), cursor_(u"tmr_Cursor", BlinkTime)
{
    frame_.canFocus(true);
    frame_.takesTouch(true);
    frame_.MousePointer(MousePointer::Text);
    ticking_ = cursor_.Tick.connect([this] { tick(); });
    rows::start<Properties>(*this);
    tellText();
    UserControl_Initialize();
}

MemberTable clt_TermInput::members() const
{
    return rows::membersOf<Properties>();
}

void clt_TermInput::UserControl_Initialize()
{
    ignoringErrors([this] { id_ = coreRoot().CoreSystem().CoreMachine().NewUniqueID(); });
}

// One line a setter.
// clang-format off
void clt_TermInput::OLEDRAGAUTO(bool value) { rows::set<Properties, u"OLEDRAGAUTO">(*this, value); }
void clt_TermInput::Term(String value) { rows::set<Properties, u"Term">(*this, std::move(value)); }
void clt_TermInput::LOCKED(bool value) { rows::set<Properties, u"LOCKED">(*this, value); }
void clt_TermInput::TEXTALIGN(phial::TEXTALIGN value) { rows::set<Properties, u"TEXTALIGN">(*this, value); }
void clt_TermInput::TEXTFONT(FontPtr value) { rows::set<Properties, u"TEXTFONT">(*this, std::move(value)); }
void clt_TermInput::TEXTCOLOR(Colour value) { rows::set<Properties, u"TEXTCOLOR">(*this, value); }
void clt_TermInput::BACKCOLOR(Colour value) { rows::set<Properties, u"BACKCOLOR">(*this, value); }
// clang-format on

void clt_TermInput::CARET(std::int32_t value)
{
    edit_.caret(value);
    refresh();
}

void clt_TermInput::readProperties(const PropertyBag& bag)
{
    rows::read<Properties>(*this, bag);
    refresh();
}

void clt_TermInput::writeProperties(PropertyBag& bag)
{
    rows::write<Properties>(*this, bag);
}

void clt_TermInput::shown()
{
    cursor_.Enabled(focused_);
    refresh();
}

void clt_TermInput::resized()
{
    surface_.resized();
    refresh();
}

// Drawing.

/// What is composed stands in the term as it is shown, at the caret.
String clt_TermInput::shownTerm() const
{
    return edit_.text().insert(static_cast<std::size_t>(edit_.caret()), frame_.composition().text);
}

std::int32_t clt_TermInput::shownCaret() const
{
    return edit_.caret() + frame_.composition().caret;
}

/// For whatever has changed what is seen: the next painting draws it.
void clt_TermInput::refresh()
{
    measure();
    tellText();
    surface_.invalidate();
}

void clt_TermInput::REDRAW()
{
    measure();
    tellText();
    draw();
}

DrawDevice& clt_TermInput::prepared()
{
    DrawDevice& device = surface_.device();
    device.font(font_->traits());
    device.ForeColor(textColour_);
    return device;
}

/// The anchor point of a term that fits.
PixelPoint clt_TermInput::anchor() const
{
    const PixelSize size = surface_.size();
    const TextPlace place = placeOf(align_);
    return {std::rint(along(size.width, place.horizontal)), std::rint(along(size.height, place.vertical))};
}

void clt_TermInput::measure()
{
    ignoringErrors([this] {
        const PixelPoint at = anchor();
        places_ = TermCaret(prepared(), shownTerm(), toWhole(at.x), toWhole(at.y), align_);
        shift_ = shiftFor(places_);
        places_.moveBy(shift_);
    });
}

/// By how much the term has to be moved for its caret to be in sight. A term that fits stays at its anchor,
/// but for the pixel that its caret needs at the field's far edge; a longer one moves as little as may be
/// from where it is, and never further than it reaches.
std::int32_t clt_TermInput::shiftFor(const TermCaret& unmoved) const
{
    const auto width = static_cast<std::int32_t>(surface_.size().width);
    const std::int32_t caret = unmoved.shownAt(shownCaret()).x;
    if (unmoved.left() >= 0 && unmoved.right() <= width) {
        return std::min(0, width - 1 - caret);
    }
    const std::int32_t far = width - 1 - SightGap;
    const auto [least, most] = std::minmax({far - unmoved.right(), SightGap - unmoved.left()});
    const std::int32_t inSight = std::max(SightGap, std::min(caret + shift_, far)) - caret;
    return std::clamp(inSight, least, most);
}

void clt_TermInput::draw()
{
    surface_.BackColor(backColour_);
    DrawDevice& device = prepared();
    device.Cls();
    ignoringErrors([&] {
        const PixelPoint at = anchor();
        const std::int32_t x = toWhole(at.x) + shift_;
        const std::int32_t caret = isCaretSeen() ? places_.shownAt(shownCaret()).index : -1;
        std::int32_t caretX = 0;
        std::int32_t previous = 0;
        std::int32_t next = 0;
        device.CurrentX(x); // which -1 stands for
        TermDraw(device, shownTerm(), x, toWhole(at.y), align_, false, caret, caretX, previous, next);
    });
}

void clt_TermInput::tellText()
{
    const double height = std::max(0.0, surface_.size().height - 1 - 2 * CaretGap);
    const double x = places_.shownAt(shownCaret()).x;
    frame_.textEntry(TextEntry{edit_.text(), edit_.caret(), {x, CaretGap, 1, height}, locked_});
}

// Focus and blinking.

void clt_TermInput::gotFocus()
{
    focused_ = true;
    blinkOn_ = blinkOn_ || !mayBlink();
    cursor_.Enabled(true);
    surface_.invalidate();
}

void clt_TermInput::lostFocus()
{
    focused_ = false;
    cursor_.Enabled(false);
    blinkOn_ = false;
    keyDown_ = 0;
    pressed_.reset();
    surface_.invalidate();
}

void clt_TermInput::tick()
{
    const bool wasSeen = isCaretSeen();
    if (!focused_) {
        cursor_.Enabled(false);
    }
    blinkOn_ = focused_ && (!blinkOn_ || !mayBlink());
    if (isCaretSeen() != wasSeen) {
        surface_.invalidate();
    }
}

bool clt_TermInput::mayBlink() const
{
    const CoreDisplay& display = coreRoot().CoreDisplay();
    return display.BlinksCaret() && !display.ReducesMotion();
}

/// The caret is seen for a whole phase from now on, while the field has the focus.
void clt_TermInput::showCaret()
{
    blinkOn_ = focused_;
    cursor_.Enabled(false);
    cursor_.Enabled(focused_);
}

// The pointer.

void clt_TermInput::pointerDown(const PointerEvent& event)
{
    const auto self = shared_from_this(); // a handler may take it away
    if (!frame_.hasFocus()) {
        ignoringErrors([this] { frame_.SetFocus(); });
    }
    showCaret();
    edit_.caret(places_.indexAt(event.X));
    refresh();
    pressed_.reset();
    if (event.Button == PointerButton::Left) {
        pressed_ = event;
    }
    MouseDown.emit(event);
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
    MouseMove.emit(event);
}

void clt_TermInput::pointerUp(const PointerEvent& event)
{
    pressed_.reset();
    MouseUp.emit(event);
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
        ENTER.emit();
    } else {
        Cancel.emit();
    }
}

void clt_TermInput::moved()
{
    showCaret();
    refresh();
}

/// What follows an edit, if it has changed the term.
void clt_TermInput::changedBy(bool isChange)
{
    if (!isChange) {
        return;
    }
    const auto self = shared_from_this();
    moved();
    CHANGED.emit();
}

} // namespace phial
