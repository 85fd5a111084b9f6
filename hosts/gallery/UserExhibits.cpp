#include "app/cls_App.h"
#include "app/cls_AppUser.h"
#include "app/ctl_Avatar.h"
#include "app/frm_DialogUser.h"
#include "app/sys_Global.h"
#include "gallery/ActionExhibit.h"
#include "gallery/Catalogue.h"

namespace gallery
{

using namespace phial;

namespace
{

ObjectPtr buildAvatar(Stage& stage)
{
    const auto avatar = stage.putMiddle<ctl_Avatar>({300, 60});
    stage.keep(avatar->CLICK.connect([] { QVAPP()->USER()->SCREENNAMEINPUT(); }));
    return avatar;
}

Exhibit avatar()
{
    return {Group::Shown,
            u"ctl_Avatar",
            u"Zeigt, wer mit dem Programm arbeitet.|Shows who works with the program.",
            buildAvatar,
            {sample<ctl_Avatar>(u"Links|Left", [](ctl_Avatar&) {}),
             sample<ctl_Avatar>(u"Mitte|Middle", [](ctl_Avatar& avatar) { avatar.CENTER(true); }),
             sample<ctl_Avatar>(u"Farbig|Coloured",
                                [](ctl_Avatar& avatar) { avatar.TEXTCOLOR(RGB(255, 224, 120)); }),
             sample<ctl_Avatar>(u"Groß|Large", [](ctl_Avatar& avatar) { avatar.frame().Height(104); })}};
}

/// The dialog without its modal wait, so that the gallery goes on.
ObjectPtr buildDialog(Stage& stage)
{
    const auto dialog = std::make_shared<frm_DialogUser>();
    stage.atEnd([dialog] { dialog->form().discard(); });
    putNote(stage, u"Der Knopf unten öffnet den Dialog.|The button below opens the dialog.");
    return dialog->form().shared_from_this();
}

Exhibit dialogUser()
{
    return {Group::Windows,
            u"frm_DialogUser",
            u"Fragt nach Name und Bild.|Asks for name and picture.",
            buildDialog,
            {sample<Form>(u"Geschlossen|Closed", [](Form&) {}),
             sample<Form>(u"Zeigen|Show", [](Form& form) { form.Show(); })}};
}

} // namespace

std::vector<Exhibit> userExhibits()
{
    return {avatar(), dialogUser()};
}

} // namespace gallery
