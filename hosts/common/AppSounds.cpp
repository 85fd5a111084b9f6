#include "common/AppSounds.h"

#include "app/cls_App.h"
#include "app/cls_AppConfig.h"
#include "app/sys_Global.h"
#include "common/FrameTexts.h"
#include "core/CoreRegistry.h"
#include "core/CoreRoot.h"
#include "media/cls_AppMedia.h"
#include "visual/ctl_Button.h"

namespace learning
{

using phial::QVAPP;
using phial::String;

namespace
{

String rewardsOnlySetting()
{
    return QVAPP()->REGKEY() + QVAPP()->CONFIG()->IDENT() + u"\\RewardsOnly";
}

/// SOUND belongs to all programs of the user, "rewards only" to this one.
void choose(AppSounds::Choice choice)
{
    const auto config = QVAPP()->CONFIG();
    const bool rewardsOnly = choice == AppSounds::Choice::RewardsOnly;
    config->SOUND(choice != AppSounds::Choice::Off);
    config->SOUNDMODE(rewardsOnly ? phial::ID_SoundMode_OnlyReward : phial::ID_SoundMode_User);
    config->SAVE();
    phial::coreRoot().CoreRegistry().CoreRegistryWrite().WriteBool(phial::SettingsHive::CurrentUser,
                                                                   rewardsOnlySetting(), rewardsOnly);
}

String said(AppSounds::Choice choice)
{
    switch (choice) {
    case AppSounds::Choice::All:
        break;
    case AppSounds::Choice::RewardsOnly:
        return translate(u"Ton: nur Belohnung", u"Sound: rewards only");
    case AppSounds::Choice::Off:
        return translate(u"Ton: aus", u"Sound: off");
    }
    return translate(u"Ton: an", u"Sound: on");
}

AppSounds::Choice behind(AppSounds::Choice choice)
{
    switch (choice) {
    case AppSounds::Choice::All:
        return AppSounds::Choice::RewardsOnly;
    case AppSounds::Choice::RewardsOnly:
        return AppSounds::Choice::Off;
    case AppSounds::Choice::Off:
        break;
    }
    return AppSounds::Choice::All;
}

} // namespace

AppSounds::AppSounds(phial::Form& form) : form_(form)
{
    const auto config = QVAPP()->CONFIG();
    const bool rewardsOnly = phial::coreRoot().CoreRegistry().CoreRegistryRead().ReadBool(
        phial::SettingsHive::CurrentUser, rewardsOnlySetting(), false);
    if (rewardsOnly && config->SOUNDMODE() == phial::ID_SoundMode_User) {
        config->SOUNDMODE(phial::ID_SoundMode_OnlyReward);
    }
    pressing_ = form_.control<phial::ctl_Button>(u"but_Sound")->CLICK.connect([this] { chooseNext(); });
}

AppSounds::Choice AppSounds::choice()
{
    const phial::cls_AppConfig& config = *QVAPP()->CONFIG();
    if (!config.SOUND() || config.SOUNDMODE() == phial::ID_SoundMode_AllOff) {
        return Choice::Off;
    }
    return config.SOUNDMODE() == phial::ID_SoundMode_OnlyReward ? Choice::RewardsOnly : Choice::All;
}

void AppSounds::judged(Verdict verdict) const
{
    switch (verdict) {
    case Verdict::Right:
        QVAPP()->MEDIA()->CORRECT();
        break;
    case Verdict::Wrong:
    case Verdict::Missed:
        QVAPP()->MEDIA()->PLAYCATEGORY(u"wrong", false);
        break;
    case Verdict::Unreadable:
        break;
    }
}

void AppSounds::roundFinished(int points) const
{
    if (points > 0) {
        QVAPP()->MEDIA()->PLAYCATEGORY(u"reward", false);
    }
}

void AppSounds::TRANSLATE()
{
    form_.control<phial::ctl_Button>(u"but_Sound")->Caption(said(choice()));
}

/// The choice is heard at once: by a click, or by nothing.
void AppSounds::chooseNext()
{
    choose(behind(choice()));
    TRANSLATE();
    QVAPP()->MEDIA()->CLICK();
}

} // namespace learning
