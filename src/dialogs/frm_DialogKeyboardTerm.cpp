#include "dialogs/frm_DialogKeyboardTerm.h"

#include "dialogs/DialogKeyboardTermDesign.h"
#include "dialogs/FreeTermKeys.h"
#include "dialogs/TermKeyLayout.h"

namespace phial
{

frm_DialogKeyboardTerm::frm_DialogKeyboardTerm()
    : form_(dialog_keyboard_term_design::Design), window_(form_, KeyboardWindow::Leaving::Confirms),
      pad_(form_, window_, term_key_layout::Layout,
           {.columns = 5, .room = dialog_keyboard_term_design::OfferRoom})
{
    window_.placeWords(dialog_keyboard_term_design::WordsArea);
    const auto chosen = FreeTermKeys::current();
    KeyBoard& board = pad_.keys().board();
    board.rename(term_key_layout::FirstFreeKey, chosen->first.caption, chosen->first.tag);
    board.rename(term_key_layout::SecondFreeKey, chosen->second.caption, chosen->second.tag);
    form_.on(form_->Load, [this] { pad_.open(); });
    form_.on(form_->TRANSLATE, [this] { TRANSLATE(); });
    TRANSLATE();
}

void frm_DialogKeyboardTerm::Show()
{
    form_->Show(FormShow::Modal);
}

void frm_DialogKeyboardTerm::TRANSLATE()
{
    pad_.translate();
}

} // namespace phial
