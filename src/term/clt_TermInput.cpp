#include "term/clt_TermInput.h"

#include "core/Arithmetic.h"
#include "core/CoreDisplay.h"
#include "core/CoreMachine.h"
#include "core/CoreRoot.h"
#include "core/CoreSystem.h"
#include "term/TermDraw.h"
#include "term/TermSpeech.h"
#include "visual/Form.h"
#include "visual/OneLine.h"
#include "visual/PropertyRows.h"
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
    UserControl_Initialize();
}

PixelSize clt_TermInput::contentSize(std::optional<double> /*width*/) const
{
    const PixelSize field = fieldSize(font_->traits());
    return {field.width + 2.0 * inset_, std::max(field.height, termSize(u"A2^2", font_->traits()).height)};
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
    caretMoved();
}

void clt_TermInput::inset(std::int32_t pixels)
{
    inset_ = pixels;
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

void clt_TermInput::resized()
{
    surface_.resized();
    refresh();
}

String clt_TermInput::accessibleText() const
{
    return spelledTerm(edit_.text());
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

/// The anchor point of a term that fits.
PixelPoint clt_TermInput::anchor() const
{
    const PixelSize size = surface_.size();
    const TextPlace place = placeOf(align_);
    const double room = size.width - 2.0 * inset_;
    return {inset_ + std::rint(along(room, place.horizontal)), std::rint(along(size.height, place.vertical))};
}

void clt_TermInput::layOut()
{
    ignoringErrors([this] {
        DrawDevice& device = surface_.device();
        device.font(font_->traits());
        device.ForeColor(textColour_);
        const PixelPoint at = anchor();
        layout_ = layOutTerm(device, shownTerm(), toWhole(at.x), toWhole(at.y), align_);
        places_ = TermCaret(layout_);
    });
}

/// For whatever has changed what is seen: the next painting draws it.
void clt_TermInput::refresh()
{
    layOut();
    followCaret();
    surface_.invalidate();
}

void clt_TermInput::REDRAW()
{
    layOut();
    followCaret();
    draw();
}

/// What is composed stands at the caret and goes along.
void clt_TermInput::caretMoved()
{
    if (!frame_.composition().text.empty()) {
        refresh();
        return;
    }
    followCaret();
    surface_.invalidate();
}

void clt_TermInput::followCaret()
{
    shift_ = shiftForCaret();
    tellText();
}

/// By how much the term has to be moved for its caret to be in sight. A term that fits stays at its anchor,
/// but for the pixel that its caret needs at the field's far edge; a longer one moves as little as may be
/// from where it is, and never further than it reaches.
std::int32_t clt_TermInput::shiftForCaret() const
{
    const auto width = static_cast<std::int32_t>(surface_.size().width);
    const std::int32_t caret = places_.shownAt(shownCaret()).x;
    const std::int32_t left = places_.left();
    const std::int32_t right = places_.right();
    if (left >= inset_ && right <= width - inset_) {
        return std::min(0, width - 1 - caret);
    }
    const std::int32_t near = std::max(SightGap, inset_);
    const std::int32_t far = width - 1 - near;
    const auto [least, most] = std::minmax({far - right, near - left});
    const std::int32_t inSight = std::max(near, std::min(caret + shift_, far)) - caret;
    return std::clamp(inSight, least, most);
}

void clt_TermInput::draw()
{
    surface_.BackColor(backColour_);
    DrawDevice& device = surface_.device();
    device.Cls();
    caretDrawn_ = isCaretSeen();
    layout_.draw(device, shift_, caretDrawn_ ? places_.shownAt(shownCaret()).index : -1);
}

void clt_TermInput::tellText()
{
    const double height = std::max(0.0, surface_.size().height - 1 - 2 * CaretGap);
    const double x = places_.shownAt(shownCaret()).x + shift_;
    frame_.textEntry(TextEntry{edit_.text(), edit_.caret(), {x, CaretGap, 1, height}, locked_});
}

// Focus and blinking.

void clt_TermInput::gotFocus()
{
    focused_ = true;
    blinkOn_ = blinkOn_ || !mayBlink();
    cursor_.Enabled(true);
    activation_.clear();
    if (const auto form = frame_.form()) {
        activation_ += form->Activate.connect([this] { showChangedCaret(); });
        activation_ += form->Deactivate.connect([this] { showChangedCaret(); });
    }
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
    blinkOn_ = !blinkOn_ || !mayBlink();
    showChangedCaret();
}

/// The field keeps the focus of a form whose window is not active; in a window of plain Qt it does not.
bool clt_TermInput::isInActiveWindow() const
{
    const auto form = frame_.form();
    return !form || visualHost().forms().ActiveForm() == form;
}

/// A form is not told of each window that comes before its own, so each tick looks as well.
void clt_TermInput::showChangedCaret()
{
    if (isCaretSeen() != caretDrawn_) {
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

} // namespace phial
