#include "app/cls_Language.h"
#include "app/sys_Global.h"
#include "headless/ScriptedMixer.h"
#include "media/cls_AppMediaVolume.h"
#include "support/AppSession.h"
#include "support/Raises.h"

#include <cmath>
#include <gmock/gmock-more-matchers.h>
#include <limits>

namespace phial
{
namespace
{

using headless::ScriptedMixer;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// A run whose mixer is scripted.
class Volume : public test::AppSession
{
protected:
    Volume()
    {
        Platform platform = outside.platform();
        platform.mixer = mixer;
        session.reset();
        session.emplace(platform);
    }

    std::shared_ptr<ScriptedMixer> mixer = std::make_shared<ScriptedMixer>();
};

TEST_F(Volume, FetchesBothLinesAndTakesItsLevelFromTheSpeakers)
{
    mixer->bounds(0, 60000);
    mixer->value(15000);
    const cls_AppMediaVolume volume;
    EXPECT_THAT(mixer->calls(), ElementsAre("open", "control 4", "control 4099", "get 1"));
    EXPECT_EQ(volume.WAVE(), 25);
    EXPECT_EQ(volume.FADEOUT(), -1);
    EXPECT_EQ(volume.lastResult(), CoreMixer::Done);
}

TEST_F(Volume, TheMinimumPlaysNoPartInTheLevel)
{
    mixer->bounds(100, 200);
    mixer->value(150);
    cls_AppMediaVolume volume;
    EXPECT_EQ(volume.WAVE(), 75);
    volume.WAVE(60);
    EXPECT_EQ(mixer->value(), 120);
}

TEST_F(Volume, ClosesTheMixerAtItsEnd)
{
    {
        const cls_AppMediaVolume volume;
        mixer->forgetCalls();
    }
    EXPECT_THAT(mixer->calls(), ElementsAre("close"));
}

TEST_F(Volume, ShowsAMessageAndStaysWithoutMixerWhenNoneOpens)
{
    LNG()->CURRENT(ID_Language_German);
    mixer->opens(false);
    outside.dialogs().expect(headless::Box::Error, u"Es wurde kein Mixer gefunden!");
    {
        mixer->takesValues(false);
        cls_AppMediaVolume volume;
        EXPECT_EQ(volume.lastResult(), ScriptedMixer::Failure);
        EXPECT_EQ(volume.FADEOUT(), -1);
        volume.WAVE(80);
        EXPECT_EQ(volume.WAVE(), 80);
        EXPECT_EQ(volume.lastResult(), ScriptedMixer::Failure);
        EXPECT_THAT(mixer->calls(), ElementsAre("open", "set 0 0"));
    }
    EXPECT_EQ(mixer->calls().back(), "set 0 0"); // what was not opened is not closed
}

TEST_F(Volume, SaysSoInEnglish)
{
    LNG()->CURRENT(ID_Language_English);
    mixer->opens(false);
    outside.dialogs().expect(headless::Box::Error, u"No mixer found!");
    const cls_AppMediaVolume volume;
}

TEST_F(Volume, RaisesToItsCreatorWithoutControlOfTheSpeakers)
{
    mixer->hasSpeakers(false);
    EXPECT_RAISES(cls_AppMediaVolume(), DivisionByZero);
    EXPECT_EQ(mixer->calls().back(), "close");
}

TEST_F(Volume, HoldsLevelsToPercent)
{
    cls_AppMediaVolume volume;
    volume.WAVE(150);
    EXPECT_EQ(volume.WAVE(), 100);
    EXPECT_EQ(mixer->value(), 65535);
    volume.WAVE(-1);
    EXPECT_EQ(volume.WAVE(), 0);
    EXPECT_EQ(mixer->value(), 0);
    volume.FADEOUT(101);
    EXPECT_EQ(volume.FADEOUT(), 100);
    EXPECT_EQ(mixer->value(), 65535);
    volume.FADEOUT(-1);
    EXPECT_EQ(volume.FADEOUT(), 0);
    EXPECT_EQ(mixer->value(), 0);
    volume.FADEOUT(std::numeric_limits<double>::infinity());
    EXPECT_EQ(volume.FADEOUT(), 100);
}

TEST_F(Volume, RefusesWhatIsNoNumber)
{
    cls_AppMediaVolume volume;
    EXPECT_RAISES(volume.WAVE(std::nan("")), InvalidArgument);
    EXPECT_RAISES(volume.FADEOUT(std::nan("")), InvalidArgument);
    EXPECT_EQ(volume.WAVE(), 100);
    EXPECT_EQ(volume.FADEOUT(), -1);
}

TEST_F(Volume, RoundsHalvesToTheEvenNeighbour)
{
    cls_AppMediaVolume volume;
    const std::pair<double, std::int32_t> cases[] = {{50, 32768}, {20, 13107}, {80, 52428}, {100, 65535}};
    for (const auto& [percent, value] : cases) {
        volume.WAVE(percent);
        EXPECT_EQ(mixer->value(), value) << percent;
    }
    mixer->bounds(0, 1);
    cls_AppMediaVolume small;
    small.WAVE(50); // 0.5
    EXPECT_EQ(mixer->value(), 0);
}

TEST_F(Volume, AFadeOverridesTheNormalLevelUntilItIsCleared)
{
    cls_AppMediaVolume volume;
    volume.FADEOUT(20);
    volume.WAVE(80);
    EXPECT_EQ(volume.WAVE(), 80);
    EXPECT_EQ(mixer->value(), 13107);
    volume.FADECLEAR();
    EXPECT_EQ(volume.FADEOUT(), -1);
    EXPECT_EQ(mixer->value(), 52428);
}

TEST_F(Volume, ClearingNoFadeWritesNothing)
{
    cls_AppMediaVolume volume;
    mixer->forgetCalls();
    volume.FADECLEAR();
    EXPECT_THAT(mixer->calls(), IsEmpty());
    volume.FADEOUT(0);
    volume.FADECLEAR();
    EXPECT_THAT(mixer->calls(), ElementsAre("set 1 0", "set 1 65535"));
}

TEST_F(Volume, TheLastLevelIsOneAboveTheMinimum)
{
    mixer->bounds(10, 100);
    cls_AppMediaVolume volume;
    volume.WAVE(11);
    EXPECT_EQ(volume.lastLevel(), 11);
    volume.WAVE(10);
    EXPECT_EQ(mixer->value(), 10);
    EXPECT_EQ(volume.lastLevel(), 11);
    volume.WAVE(0); // held to the minimum
    EXPECT_EQ(mixer->value(), 10);
    EXPECT_EQ(volume.lastLevel(), 11);
}

TEST_F(Volume, KeepsTheResultOfAWriteThatFails)
{
    cls_AppMediaVolume volume;
    mixer->takesValues(false);
    volume.WAVE(30);
    EXPECT_EQ(volume.lastResult(), ScriptedMixer::Failure);
    EXPECT_EQ(volume.WAVE(), 30);
    mixer->takesValues(true);
    volume.WAVE(30);
    EXPECT_EQ(volume.lastResult(), CoreMixer::Done);
}

TEST_F(Volume, LeavesATraceOfEachStep)
{
    cls_AppMediaVolume volume;
    outside.settings().forgetTraces();
    volume.WAVE(30);
    EXPECT_THAT(outside.settings().traces(),
                ElementsAre(u"WAVE-1", u"WAVE-2", u"WAVE-3", u"SETWAVE-1", u"SETWAVE-2", u"SETWAVE-3",
                            u"SETWAVE-4", u"SETWAVE-5", u"SETWAVE-6", u"WAVE-4"));
}

} // namespace
} // namespace phial
