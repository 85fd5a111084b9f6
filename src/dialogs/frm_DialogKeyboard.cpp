#include "dialogs/frm_DialogKeyboard.h"

#include "app/FormTexts.h"
#include "core/RuntimeError.h"
#include "dialogs/DialogKeyboardDesign.h"
#include "dialogs/KeysOnWindow.h"
#include "dialogs/ScanChoice.h"
#include "dialogs/TextLayout.h"
#include "visual/VisualHost.h"

#include <algorithm>
#include <utility>

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

/// What a change has put into a text, in the text as it is now.
struct Insertion {
    std::size_t start;
    std::size_t length;
};

Insertion insertionInto(const String& before, const String& now)
{
    const std::size_t common = std::min(before.size(), now.size());
    const auto start = static_cast<std::size_t>(std::ranges::mismatch(before, now).in1 - before.begin());
    std::size_t rest = 0;
    while (rest < common - start && before[before.size() - 1 - rest] == now[now.size() - 1 - rest]) {
        ++rest;
    }
    return {start, now.size() - start - rest};
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
    joinKeys(form_, window_, keys_);
    form_.on(form_->KeyDown, [this](KeyEvent& event) { previewKey(event); });
    form_.on(input_->Change, [this] { edited(); });
    form_.on(form_->Unloaded, [this] {
        if (Accepted() && input_->Text() != written_) {
            writeBack(); // what was typed while the window was closing is on the screen too
        }
    });
    form_.on(window_.CONFIRMED, [this] { accept(); });
    form_.on(window_.SCALED, [this] {
        if (input_->MultiLine()) {
            showLines();
        }
    });
    form_.on(keys_->CLICK,
             [this](std::int32_t index) { ignoringErrors([&] { perform(keys_->board().click(index)); }); });
    form_.on(keys_->VARIANT,
             [this](const String& text) { ignoringErrors([&] { perform(keys_->board().type(text)); }); });
}

/// A field of one line makes nothing of Ctrl and Return, a page makes a line.
void frm_DialogKeyboard::previewKey(KeyEvent& event)
{
    const bool makesLine = event.is(Key::Return) && event.Shift == ShiftMask::Control;
    if (makesLine && !(takesLines_ && input_->MultiLine())) {
        event.KeyCode = 0;
        addLine();
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
    takesLines_ = target.takesLines();
    input_->PasswordChar(target.passwordChar());
    input_->MaxLength(target.maxLength());
    input_->Locked(target.locked());
    if (text.find(LineEnd) != String::npos) {
        showLines();
    }
    replaceText(text, text.size());
}

/// From now on on a page, and smaller, so that two lines are seen.
void frm_DialogKeyboard::showLines()
{
    constexpr PixelRectangle Area = dialog_keyboard_design::PageArea;
    const double scale = window_.scale();
    input_->MultiLine(true);
    input_->frame().pixelRectangle(
        {Area.left * scale, Area.top * scale, Area.width * scale, Area.height * scale});
    input_->Font()->Size(dialog_keyboard_design::LinesSize * scale);
}

/// By the program: no change of the user's.
void frm_DialogKeyboard::replaceText(const String& text, std::size_t caret)
{
    text_ = text;
    input_->Text(text);
    input_->SelStart(static_cast<std::int32_t>(caret));
}

/// Lines come in by being pasted too, and by whatever else the toolkit's field offers.
void frm_DialogKeyboard::edited()
{
    const String before = std::exchange(text_, input_->Text());
    const Insertion insertion = insertionInto(before, text_);
    const StringView inserted = StringView(text_).substr(insertion.start, insertion.length);
    if (inserted.find_first_of(u"\r\n") == StringView::npos) {
        return;
    }
    const String lines = withLineEnds(String(inserted));
    const bool isKept = takesLines_ && hasRoomFor(text_.size() - inserted.size() + lines.size());
    const String taken = isKept ? lines : replaced(lines, LineEnd, u" ");
    if (isKept) {
        showLines();
    }
    if (taken == inserted) {
        return;
    }
    text_.replace(insertion.start, insertion.length, taken);
    input_->SelStart(static_cast<std::int32_t>(insertion.start));
    input_->SelLength(static_cast<std::int32_t>(insertion.length));
    input_->SelText(taken); // which can be undone
}

bool frm_DialogKeyboard::hasRoomFor(std::size_t length) const
{
    return input_->MaxLength() == 0 || length <= static_cast<std::size_t>(input_->MaxLength());
}

void frm_DialogKeyboard::perform(const KeyDeed& deed)
{
    if (window_.isEnding() && deed.takesAway()) {
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
    const auto selected = static_cast<std::size_t>(input_->SelLength());
    if (takesLines_ && !input_->Locked() && hasRoomFor(input_->Text().size() + LineEnd.size() - selected)) {
        input_->SetFocus();
        showLines();
        input_->SelText(LineEnd);
    }
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
