#include "app/cls_App.h"
#include "app/cls_AppConfig.h"
#include "app/sys_Global.h"
#include "core/AudioOutput.h"
#include "core/CoreRoot.h"
#include "core/CoreSoundFacet.h"
#include "core/SessionState.h"
#include "gallery/ActionExhibit.h"
#include "gallery/Catalogue.h"
#include "media/cls_AppMedia.h"
#include "media/cls_AppMediaVolume.h"
#include "media/frm_DialogSound.h"
#include "visual/Timer.h"
#include "visual/ctl_Pannel.h"

#include <algorithm>

namespace gallery
{

using namespace phial;

namespace
{

constexpr double Quiet = 20; // percent

/// How loud it is just now, of 1, as it leaves the program.
double loudness()
{
    const cls_AppMediaVolume& volume = *QVAPP()->MEDIA()->VOLUME();
    const bool fades = volume.FADEOUT() != cls_AppMediaVolume::NoFade;
    return coreRoot().CoreSoundFacet().level() * (fades ? volume.FADEOUT() : volume.WAVE()) / 100;
}

/// A bar that is as long as the sound is loud.
void putMeter(Stage& stage)
{
    constexpr std::int32_t Interval = 50;
    const PixelRectangle middle = stage.middle({400, 16});
    const PixelRectangle place{middle.left, stage.size().height - 48, middle.width, middle.height};
    const auto back = stage.put<ctl_Pannel>(place);
    back->BackColor(Palette::Divider);
    back->BorderColor(Palette::Divider);
    back->frame().AccessibleName(say(u"Lautstärke|Loudness"));
    const auto bar = stage.put<ctl_Pannel>(place);
    bar->BackColor(Palette::Accent);
    bar->BorderColor(Palette::Accent);
    const auto show = [back, bar] {
        const double length = back->Width() * std::min(1.0, loudness());
        bar->frame().Visible(length >= 1);
        bar->Width(std::max(length, 1.0));
    };
    show();
    const auto timer = std::make_shared<Timer>(u"tmr_Meter", Interval, true);
    stage.addComponent(timer);
    stage.atEnd([timer] { timer->Enabled(false); });
    stage.keep(timer->Tick.connect(show));
}

ObjectPtr buildMedia(Stage& stage)
{
    stage.atEnd([] { QVAPP()->MEDIA()->VOLUME()->FADECLEAR(); });
    const bool isHeard = SessionState::current().platform().audio->available();
    const auto note = putNote(stage, isHeard ? u"Der Balken zeigt, wie laut es gerade ist.|"
                                               u"The bar shows how loud it is just now."
                                             : u"Dieser Computer kann gerade keinen Klang ausgeben.|"
                                               u"This computer cannot play sounds at present.");
    putMeter(stage);
    return note;
}

Exhibit media()
{
    const auto playing = [](StringView name, StringView category) {
        return sample<ctl_Label>(name,
                                 [category](ctl_Label&) { QVAPP()->MEDIA()->PLAYCATEGORY(category, false); });
    };
    const auto commenting = [](StringView name, enm_MediaComment comment) {
        return waitingSample<ctl_Label>(name, [comment](ctl_Label&) { QVAPP()->MEDIA()->COMMENT(comment); });
    };
    return {Group::Sounds,
            u"cls_AppMedia",
            u"Spielt Klänge: Klicks, Lob und Tadel, Hymnen.|Plays sounds: clicks, praise and blame, hymns.",
            buildMedia,
            {sample<ctl_Label>(u"Still|Silent", [](ctl_Label&) {}), playing(u"Klick|Click", u"click"),
             commenting(u"Lob|Praise", ID_MediaComment_Correct),
             commenting(u"Tadel|Blame", ID_MediaComment_Wrong), playing(u"Hymne|Hymn", u"reward"),
             sample<ctl_Label>(u"Hymne, leise|Hymn, quiet",
                               [](ctl_Label&) {
                                   QVAPP()->MEDIA()->VOLUME()->FADEOUT(Quiet);
                                   QVAPP()->MEDIA()->PLAYCATEGORY(u"reward", false);
                               }),
             playing(u"Ergebnis|Result", u"result"), playing(u"Maskottchen|Mascot", u"say")},
            false};
}

/// The gallery keeps no choice: what was set before comes back when the exhibit goes.
ObjectPtr buildSoundChoice(Stage& stage)
{
    const auto config = QVAPP()->CONFIG();
    stage.atEnd([config, sound = config->SOUND(), mode = config->SOUNDMODE()] {
        config->SOUND(sound);
        config->SOUNDMODE(mode);
    });
    const auto note = putNote(stage, u"Ein Knopf unten wählt, was zu hören ist, und spielt Klick und Hymne.|"
                                     u"A button below chooses what is heard, and plays click and hymn.");
    putMeter(stage);
    return note;
}

Exhibit soundChoice()
{
    const auto choosing = [](StringView name, bool isOn, enm_SoundMode mode) {
        return sample<ctl_Label>(name, [isOn, mode](ctl_Label&) {
            QVAPP()->CONFIG()->SOUND(isOn);
            QVAPP()->CONFIG()->SOUNDMODE(mode);
            QVAPP()->MEDIA()->PLAYCATEGORY(u"click", false);
            QVAPP()->MEDIA()->PLAYCATEGORY(u"reward", false);
        });
    };
    return {Group::Sounds,
            u"enm_SoundMode",
            u"Wählt, welche Klänge zu hören sind.|Chooses which sounds are heard.",
            buildSoundChoice,
            {sample<ctl_Label>(u"Wie eingestellt|As set", [](ctl_Label&) {}),
             choosing(u"Alles|All", true, ID_SoundMode_User),
             choosing(u"Nur Belohnung|Rewards only", true, ID_SoundMode_OnlyReward),
             choosing(u"Aus|Off", false, ID_SoundMode_User)},
            false};
}

Exhibit praise()
{
    const auto showing = [](StringView name, StringView word, bool isWrong) {
        return waitingSample<ctl_Label>(name, [word, isWrong](ctl_Label&) {
            frm_DialogSound window;
            window.SoundText(say(word));
            window.SoundWrong(isWrong);
            window.Show();
        });
    };
    return {Group::Sounds,
            u"frm_DialogSound",
            u"Ein Wort zu einer Antwort. Es geht von selbst wieder weg.|"
            u"A word about an answer. It goes away by itself.",
            [](Stage& stage) {
                return putNote(stage, u"Ein Knopf unten zeigt das Fenster.|A button below shows the window.");
            },
            {sample<ctl_Label>(u"Geschlossen|Closed", [](ctl_Label&) {}),
             showing(u"Richtig|Right", u"Das war 1A|That was first-class", false),
             showing(u"Falsch|Wrong", u"Das wird nichts mehr!|That will not work out!", true),
             showing(u"Langer Text|Long text",
                     u"Jede Seite der Gleichung hat jetzt gleich viele Atome von jedem Element.|"
                     u"Each side of the equation now has as many atoms of each element as the other.",
                     false)},
            false};
}

} // namespace

std::vector<Exhibit> soundExhibits()
{
    return {media(), soundChoice(), praise()};
}

} // namespace gallery
