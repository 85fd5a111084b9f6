#include "dialogs/TermPad.h"

#include "app/FormTexts.h"
#include "core/Arithmetic.h"
#include "core/RuntimeError.h"
#include "dialogs/KeysOnWindow.h"
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

TermPad::TermPad(DesignedForm& form, KeyboardWindow& window, const KeyLayout& layout)
    : form_(form), window_(window), input_(form->control<clt_TermInput>(u"txt_Input")),
      keys_(form->control<ctl_Keys>(u"ctl_Keys"))
{
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
}

void TermPad::open()
{
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
