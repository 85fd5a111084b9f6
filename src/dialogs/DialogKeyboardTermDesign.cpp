#include "dialogs/DialogKeyboardTermDesign.h"

#include "dialogs/ctl_Keys.h"
#include "dialogs/ctl_Offers.h"
#include "term/clt_TermInput.h"

namespace phial::dialog_keyboard_term_design
{

namespace
{

constexpr ControlDesign TermControls[] = {
    design<ctl_Keys>(u"ctl_Keys", {24, 44, 708, 272}).ground(Palette::Footer).touchable(),
    design<clt_TermInput>(u"txt_Input", {156, 46, 328, 68})
        .set(u"TEXTCOLOR", Palette::Ink)
        .set(u"BACKCOLOR", Palette::Field)
        .keyboarded(),
    design<ctl_Offers>(u"ctl_Offers", OfferArea).ground(Palette::Footer).touchable().hidden(),
};

} // namespace

constexpr FormDesign Design{.name = u"frm_DialogKeyboardTerm",
                            .caption = u"Tastatur für Formeln|Formula keyboard",
                            .size = {750, 340},
                            .border = BorderStyle::None,
                            .ground = Palette::Footer,
                            .isCentred = false,
                            .hearsKeysFirst = true,
                            .controls = TermControls};

} // namespace phial::dialog_keyboard_term_design
