#include "dialogs/DialogKeyboardPSEDesign.h"

#include "dialogs/ctl_Keys.h"
#include "dialogs/ctl_Offers.h"
#include "mascot/ctl_Bubble.h"
#include "periodic/ctl_PSE.h"
#include "term/clt_TermInput.h"

namespace phial::dialog_keyboard_pse_design
{

namespace
{

constexpr ControlDesign PSEControls[] = {
    design<ctl_Keys>(u"ctl_Keys", {576, 44, 240, 316}).ground(Palette::Footer).touchable(),
    design<clt_TermInput>(u"txt_Input", {24, 44, 536, 54})
        .set(u"TEXTCOLOR", Palette::Ink)
        .set(u"BACKCOLOR", Palette::Field)
        .keyboarded(),
    design<ctl_PSE>(u"ctl_PSE", TableArea)
        .set(u"FIXEDSIZE", true)
        .set(u"BACKCOLOR", Palette::Footer)
        .set(u"Colouring", TableColours::ByTheme),
    design<ctl_Offers>(u"ctl_Offers", {576, 364, 240, 96}).ground(Palette::Footer).touchable().hidden(),
    design<ctl_Bubble>(u"ctl_Bubble1", {0, 0, 170, 90}).hidden(),
};

} // namespace

constexpr FormDesign Design{.name = u"frm_DialogKeyboardPSE",
                            .caption = u"Periodensystem als Tastatur|Periodic keyboard",
                            .size = {840, 472},
                            .border = BorderStyle::None,
                            .ground = Palette::Footer,
                            .isCentred = false,
                            .hearsKeysFirst = true,
                            .controls = PSEControls};

} // namespace phial::dialog_keyboard_pse_design
