#include "dialogs/frm_DialogKeyboardPSE.h"

#include "chem/cls_DataElement.h"
#include "core/RuntimeError.h"
#include "dialogs/DialogKeyboardPSEDesign.h"
#include "dialogs/ElementCount.h"
#include "dialogs/PeriodicKeyLayout.h"
#include "dialogs/TermVariants.h"
#include "mascot/ctl_Bubble.h"
#include "periodic/ElementFile.h"
#include "periodic/ctl_PSE.h"
#include "term/clt_TermInput.h"

#include <algorithm>

namespace phial
{

frm_DialogKeyboardPSE::frm_DialogKeyboardPSE()
    : form_(dialog_keyboard_pse_design::Design),
      window_(form_, KeyboardWindow::Leaving::Confirms, dialog_keyboard_pse_design::CellPitch),
      pad_(form_, window_, periodic_key_layout::Layout, {.columns = 2, .rows = 2}),
      table_(form_->control<ctl_PSE>(u"ctl_PSE"))
{
    constexpr ControlDesign::Rectangle Table = dialog_keyboard_pse_design::TableArea;
    table_->frame().pixelRectangle({Table.left, Table.top, Table.width, Table.height});
    window_.placeWords(dialog_keyboard_pse_design::WordsArea);
    table_->BUBBLE(form_->control<ctl_Bubble>(u"ctl_Bubble1"));
    form_.on(form_->Load, [this] { load(); });
    form_.on(form_->TRANSLATE, [this] { TRANSLATE(); });
    form_.on(window_.SCALED, [this] { sizeBubble(); });
    sizeBubble();
    // Whoever taps an element twice wants two of it.
    form_.on(table_->CLICK, [this](const auto& element) { take(*element); });
    form_.on(table_->CLICKAGAIN, [this](const auto& element) { take(*element); });
    form_.on(table_->HELD, [this](const auto& element, bool& isUsed) { isUsed = offerIons(*element); });
    form_.on(form_->KeyDown, [this](const KeyEvent& event) {
        isKeyDown_ = table_->frame().hasFocus() && (event.is(Key::Return) || event.is(Key::Space));
    });
    form_.on(form_->KeyUp, [this](const KeyEvent&) { isKeyDown_ = false; });
    TRANSLATE();
}

void frm_DialogKeyboardPSE::Show()
{
    form_->Show(FormShow::Modal);
}

void frm_DialogKeyboardPSE::TRANSLATE()
{
    pad_.translate();
}

void frm_DialogKeyboardPSE::load()
{
    loadTable();
    pad_.open();
}

/// Its font is no plain member "Font", which the window would scale.
void frm_DialogKeyboardPSE::sizeBubble()
{
    constexpr double BubblePoints = 9;
    const auto bubble = form_->control<ctl_Bubble>(u"ctl_Bubble1");
    const FontPtr font = bubble->TEXTFONT()->clone();
    font->Size(BubblePoints * window_.scale());
    bubble->TEXTFONT(font);
}

/// Without the file the keyboard has no table, and its keys serve all the same.
void frm_DialogKeyboardPSE::loadTable()
{
    const bool isThere = checkElementFile();
    table_->Visible(isThere);
    if (isThere) {
        table_->LOAD(elementFile(), ctl_PSE::ElementFile);
    }
}

/// One more of the element at the end of the term, or else its symbol at the caret. Who taps types on in the
/// field, and who uses the cursor goes on in the table.
void frm_DialogKeyboardPSE::take(const cls_DataElement& element)
{
    clt_TermInput& field = pad_.field();
    if (window_.isEnding() || field.LOCKED()) {
        return;
    }
    if (!isKeyDown_) {
        ignoringErrors([&] { field.frame().SetFocus(); });
    }
    const String term = field.Term();
    const std::int32_t caret = field.CARET();
    const auto counted = countedUp(term, element.SYMBOL());
    if (!counted) {
        if (isKeyDown_) {
            field.edit(static_cast<std::size_t>(caret), 0, element.SYMBOL());
        } else {
            ignoringErrors([&] { pad_.send(element.SYMBOL()); });
        }
        return;
    }
    const bool wasAtEnd = caret == static_cast<std::int32_t>(term.size());
    const auto same = static_cast<std::size_t>(std::ranges::mismatch(term, *counted).in1 - term.begin());
    field.edit(same, term.size() - same, StringView(*counted).substr(same));
    if (!wasAtEnd) {
        field.CARET(caret);
    }
}

/// Gives whether there are some.
bool frm_DialogKeyboardPSE::offerIons(const cls_DataElement& element)
{
    constexpr std::int32_t Seven = 7; // at the corner of the digits
    return !window_.isEnding() && !pad_.field().LOCKED() &&
           pad_.keys().showVariants(ionVariants(element.SYMBOL()), Seven);
}

} // namespace phial
