#include "dialogs/TermPad.h"

#include "app/FormTexts.h"
#include "chem/formula/FormulaNames.h"
#include "core/Arithmetic.h"
#include "core/RuntimeError.h"
#include "dialogs/FormulaOffers.h"
#include "dialogs/KeysOnWindow.h"
#include "dialogs/OfferChoice.h"
#include "dialogs/ScanChoice.h"
#include "dialogs/TermTarget.h"
#include "dialogs/TermVariants.h"
#include "term/clt_TermInput.h"
#include "visual/VisualHost.h"

namespace phial
{

namespace
{

// At scale 1.
constexpr double TermPoints = 16; // two of its lines, as of a fraction, fit into the field
constexpr double FieldInset = 6;  // pixels

} // namespace

TermPad::TermPad(DesignedForm& form, KeyboardWindow& window, const KeyLayout& layout,
                 const OfferPlace& offers)
    : form_(form), window_(window), input_(form->control<clt_TermInput>(u"txt_Input")),
      keys_(form->control<ctl_Keys>(u"ctl_Keys")), offers_(form->control<ctl_Offers>(u"ctl_Offers")),
      room_(offers.room)
{
    offers_->cells(offers.columns, offers.rows);
    keys_->layout(layout);
    keys_->variants(termVariants);
    placeKeys();
    sizeText();
    input_->Term({});
    connect();
}

void TermPad::placeKeys()
{
    const PixelRectangle area = keys_->designArea();
    keys_->frame().pixelRectangle({area.left / TwipsPerPixel, area.top / TwipsPerPixel,
                                   area.width / TwipsPerPixel, area.height / TwipsPerPixel});
}

/// A term's font is no plain member "Font", which the window would scale.
void TermPad::sizeText()
{
    const FontPtr font = input_->TEXTFONT()->clone();
    font->Size(TermPoints * window_.scale());
    input_->TEXTFONT(font);
    input_->inset(toWhole(FieldInset * window_.scale()));
}

void TermPad::connect()
{
    joinKeys(form_, window_, keys_);
    form_.on(window_.SCALED, [this] { sizeText(); });
    form_.on(window_.CONFIRMED, [this] { accept(); });
    form_.on(form_->Unloaded, [this] {
        if (window_.isAccepted() && input_->Term() != written_) {
            writeBack(); // what was typed while the window was closing is on the screen too
        }
    });
    form_.on(keys_->CLICK,
             [this](std::int32_t index) { ignoringErrors([&] { perform(keys_->board().click(index)); }); });
    form_.on(keys_->VARIANT, [this](const String& text) { typeVariant(text); });
    form_.on(input_->CHANGED, [this] { refreshOffers(); });
    form_.on(form_->KeyUp, [this](const KeyEvent&) { followCaret(); });
    form_.on(form_->KeyDown, [this](KeyEvent& event) {
        if (event.KeyCode != 0 && input_->frame().hasFocus()) {
            offers_->previewKey(event);
        }
    });
    form_.on(offers_->TAKEN, [this](std::size_t at) { takeOffer(at); });
    form_.on(offers_->PRESSED, [this](const PointerEvent& event) { window_.press(*offers_, event); });
    form_.on(offers_->MOVED, [this](const PointerEvent& event) { window_.move(*offers_, event); });
    form_.on(offers_->RELEASED, [this](std::int32_t touch) { window_.release(touch); });
    form_.on(window_.DRAGGED, [this] { offers_->cancelPress(); });
}

void TermPad::open()
{
    if (mayOffer()) {
        makeRoom();
    }
    window_.open();
    keys_->scanInterval(rememberedScan());
    translate();
    readTarget();
}

void TermPad::translate()
{
    translateForm(form_);
    window_.translate();
    input_->frame().AccessibleName(window_.question());
    keys_->refresh();
}

void TermPad::readTarget()
{
    const TargetText& target = window_.target();
    input_->Term(readTerm(target.target()));
    input_->CARET(static_cast<std::int32_t>(input_->Term().size()));
    input_->LOCKED(target.locked());
    refreshOffers();
}

void TermPad::perform(const KeyDeed& deed)
{
    if (window_.isEnding() && deed.takesAway()) {
        return; // what was accepted stays, though CLEAR lies just above OK
    }
    switch (deed.kind) {
    case KeyDeed::Kind::Nothing:
        break;
    case KeyDeed::Kind::Send:
        send(deed.strokes);
        break;
    case KeyDeed::Kind::Clear:
        clear();
        break;
    case KeyDeed::Kind::Accept:
    case KeyDeed::Kind::AddLine: // a term has one line
        accept();
        break;
    case KeyDeed::Kind::Abort:
        window_.abortAtOnce();
        break;
    }
}

void TermPad::send(StringView strokes)
{
    input_->frame().SetFocus();
    SendKeys(strokes, form_.pointer());
}

/// As a whole, so that it is undone as a whole.
void TermPad::typeVariant(StringView variant)
{
    keys_->board().type(variant); // modifiers fall back
    const auto at = static_cast<std::size_t>(input_->CARET());
    const String piece = variantBehind(StringView(input_->Term()).substr(0, at), variant);
    replace(at, 0, piece);
    if (!input_->LOCKED()) {
        input_->CARET(static_cast<std::int32_t>(at + caretInVariant(piece)));
    }
}

void TermPad::replace(std::size_t at, std::size_t length, StringView piece)
{
    ignoringErrors([this] { input_->frame().SetFocus(); });
    input_->edit(at, length, piece);
}

// Formulas that are offered.

bool TermPad::mayOffer() const
{
    const TargetText& target = window_.target();
    return OfferLeave::current()->isGiven && wantsOffers() && !target.locked() &&
           target.passwordChar().empty();
}

void TermPad::makeRoom()
{
    offers_->frame().Visible(true);
    if (room_ > 0) {
        const PixelSize size = form_->innerSize();
        form_->innerSize({size.width, size.height + room_});
        for (ControlFrame* frame : {&input_->frame(), &keys_->frame()}) {
            PixelRectangle area = frame->pixelRectangle();
            area.top += room_;
            frame->pixelRectangle(area);
        }
        room_ = 0;
    }
}

/// What is offered goes with the caret, which keys may have moved.
void TermPad::followCaret()
{
    if (input_->CARET() != offeredAt_ && !offers_->chosen()) {
        refreshOffers();
    }
}

void TermPad::refreshOffers()
{
    if (!offers_->frame().Visible()) {
        return;
    }
    offeredAt_ = input_->CARET();
    const String term = input_->Term();
    const StringView before = StringView(term).substr(0, static_cast<std::size_t>(offeredAt_));
    offers_->offer(offersBehind(before, offers_->most()).formulas);
}

/// In the place of what has been begun.
void TermPad::takeOffer(std::size_t at)
{
    const auto caret = static_cast<std::size_t>(input_->CARET());
    const String term = input_->Term();
    const FormulaOffers offers = offersBehind(StringView(term).substr(0, caret), offers_->most());
    if (at < offers.formulas.size() && !window_.isEnding()) {
        replace(caret - offers.length, offers.length, offers.formulas[at]->formula);
        keys_->board().type({}); // modifiers fall back
        keys_->refresh();
    }
}

void TermPad::clear()
{
    input_->edit(0, input_->Term().size(), {});
}

void TermPad::accept()
{
    if (!window_.isEnding()) {
        writeBack();
        window_.accept();
    }
}

void TermPad::writeBack()
{
    written_ = input_->Term();
    writeTerm(window_.target().target(), written_);
}

} // namespace phial
