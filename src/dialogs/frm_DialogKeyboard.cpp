#include "dialogs/frm_DialogKeyboard.h"

#include "app/FormTexts.h"
#include "core/RuntimeError.h"
#include "dialogs/DialogKeyboardDesign.h"
#include "dialogs/ScanChoice.h"
#include "dialogs/TextLayout.h"
#include "visual/VisualHost.h"

namespace phial
{

namespace
{

constexpr StringView LineEnd = u"\r\n";

/// CR LF, CR and LF alike become CR LF.
String withLineEnds(const String& text)
{
    return replaced(replaced(replaced(text, LineEnd, u"\r"), u"\n", u"\r"), u"\r", LineEnd);
}

bool takesAway(const KeyDeed& deed)
{
    return deed.kind == KeyDeed::Kind::Clear || deed.strokes.find(u"{bs}") != String::npos;
}

} // namespace

frm_DialogKeyboard::frm_DialogKeyboard()
    : form_(dialog_keyboard_design::Design), window_(form_, KeyboardWindow::Leaving::Stays),
      input_(form_->control<TextBox>(u"txt_Input")), keys_(form_->control<ctl_Keys>(u"ctl_Keys"))
{
    keys_->layout(text_layout::Layout);
    const PixelRectangle area = keys_->designArea();
    keys_->frame().pixelRectangle({area.left / TwipsPerPixel, area.top / TwipsPerPixel,
                                   area.width / TwipsPerPixel, area.height / TwipsPerPixel});
    connect();
    TRANSLATE();
}

void frm_DialogKeyboard::Show()
{
    form_->Show(FormShow::Modal);
}

void frm_DialogKeyboard::connect()
{
    form_.on(form_->Load, [this] { load(); });
    form_.on(form_->TRANSLATE, [this] { TRANSLATE(); });
    form_.on(form_->KeyDown, [this](KeyEvent& event) { previewKey(event); });
    form_.on(form_->Unloaded, [this] {
        if (Accepted() && input_->Text() != written_) {
            writeBack(); // what was typed while the window was closing is on the screen too
        }
    });
    form_.on(window_.CONFIRMED, [this] { accept(); });
    form_.on(window_.DRAGGED, [this] { keys_->cancelPresses(); });
    form_.on(keys_->PRESSED, [this] { window_.press(); });
    form_.on(keys_->RELEASED, [this] { window_.release(); });
    form_.on(keys_->CLICK, [this](std::int32_t index) {
        ignoringErrors([&] { perform(keys_->board().click(index)); });
        keys_->refresh();
    });
    form_.on(keys_->VARIANT, [this](const String& text) {
        ignoringErrors([&] { perform(keys_->board().type(text)); });
        keys_->refresh();
    });
}

/// Escape gives up with modifiers too, which the form's cancel control does not hear.
void frm_DialogKeyboard::previewKey(KeyEvent& event)
{
    keys_->previewKey(event);
    if (event.is(Key::Escape) && event.Shift != 0) {
        event.KeyCode = 0;
        window_.abort();
    }
}

void frm_DialogKeyboard::TRANSLATE()
{
    translateForm(form_);
    window_.translate();
    input_->frame().AccessibleName(window_.question());
    keys_->refresh();
}

void frm_DialogKeyboard::load()
{
    window_.open();
    keys_->scanInterval(rememberedScan());
    TRANSLATE();
    readTarget();
}

void frm_DialogKeyboard::readTarget()
{
    const TargetText& target = window_.target();
    const String text = withLineEnds(target.read());
    const bool hasLines = text.find(LineEnd) != String::npos;
    takesLines_ = target.takesLines();
    input_->MultiLine(takesLines_ || hasLines);
    input_->PasswordChar(target.passwordChar());
    input_->MaxLength(target.maxLength());
    input_->Locked(target.locked());
    input_->Text(text);
    input_->SelStart(static_cast<std::int32_t>(text.size()));
    if (hasLines) {
        showLines();
    }
}

void frm_DialogKeyboard::showLines()
{
    input_->Font()->Size(dialog_keyboard_design::LinesSize * window_.scale());
}

void frm_DialogKeyboard::perform(const KeyDeed& deed)
{
    if (window_.isEnding() && takesAway(deed)) {
        return; // what was accepted stays, though CLEAR lies just above ENTER
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
        accept();
        break;
    case KeyDeed::Kind::AddLine:
        addLine();
        break;
    case KeyDeed::Kind::Abort:
        window_.abortAtOnce();
        break;
    }
}

void frm_DialogKeyboard::send(StringView strokes)
{
    input_->SetFocus();
    SendKeys(strokes, form_.pointer());
}

void frm_DialogKeyboard::clear()
{
    if (!input_->Locked()) {
        input_->Text({});
    }
}

/// At the caret; a field of one line, or one that is full, has no room for it.
void frm_DialogKeyboard::addLine()
{
    const auto length =
        static_cast<std::int32_t>(input_->Text().size() + LineEnd.size()) - input_->SelLength();
    const bool isFull = input_->MaxLength() > 0 && length > input_->MaxLength();
    if (!takesLines_ || input_->Locked() || isFull) {
        return;
    }
    input_->SetFocus();
    input_->SelText(LineEnd);
    showLines();
}

void frm_DialogKeyboard::accept()
{
    if (!window_.isEnding()) {
        writeBack();
        window_.accept();
    }
}

void frm_DialogKeyboard::writeBack()
{
    written_ = input_->Text();
    window_.target().write(written_);
}

} // namespace phial
