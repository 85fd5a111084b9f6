#include "MediaTest.h"
#include "core/CoreTiming.h"
#include "core/NumberText.h"
#include "headless/ScriptedMixer.h"
#include "media/cls_AppMediaVolume.h"
#include "support/Raises.h"
#include "visual/ListBox.h"
#include "visual/Timer.h"

#include <algorithm>
#include <gmock/gmock-more-matchers.h>

namespace phial
{
namespace
{

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr auto EachMode = {ID_SoundMode_User, ID_SoundMode_OnlyReward, ID_SoundMode_AllOff,
                           ID_SoundMode_AllOn};

class Media : public MediaTest
{
protected:
    /// What a call lets be heard.
    template <typename Call>
    bool isHeard(enm_SoundMode soundMode, bool on, Call&& call)
    {
        mode(soundMode);
        soundOn(on);
        const std::size_t before = marks().size();
        call();
        return heard().size() > before;
    }
};

// PLAYCATEGORY

TEST_F(Media, PlaysASoundOfTheCategoryWhateverItsCase)
{
    sound(u"Wrong\\a.wav", 0.5, 7);
    sound(u"other.wav", 0.5, 8);
    media().PLAYCATEGORY(u"WRONG", false);
    EXPECT_THAT(heard(), ElementsAre(7));
}

TEST_F(Media, PlaysNothingOfACategoryWithoutFolderOrWaveFiles)
{
    sound(u"lonely.wav");
    makeFolder(u"installed\\Resources\\sfx\\empty");
    makeFile(u"installed\\Resources\\sfx\\texts\\a.txt", u"a");
    for (const StringView category : {u"missing", u"empty", u"texts", u"", u"..\\sfx", u"."}) {
        media().PLAYCATEGORY(category, false);
        EXPECT_THAT(heard(), IsEmpty()) << toUtf8(category);
    }
}

TEST_F(Media, CategoriesFollowSoundAndModeAlsoWhereAllIsOn)
{
    sound(u"wrong\\a.wav");
    sound(u"Rewards\\a.wav");
    sound(u"result\\a.wav");
    const auto plays = [&](enm_SoundMode soundMode, bool on, StringView category) {
        return isHeard(soundMode, on, [&] { media().PLAYCATEGORY(category, false); });
    };
    for (const enm_SoundMode soundMode : EachMode) {
        EXPECT_FALSE(plays(soundMode, false, u"wrong")) << soundMode;
        EXPECT_FALSE(plays(soundMode, false, u"Rewards")) << soundMode;
        EXPECT_EQ(plays(soundMode, true, u"Rewards"), soundMode != ID_SoundMode_AllOff) << soundMode;
        EXPECT_EQ(plays(soundMode, true, u"result"), soundMode != ID_SoundMode_AllOff) << soundMode;
    }
    EXPECT_TRUE(plays(ID_SoundMode_User, true, u"wrong"));
    EXPECT_FALSE(plays(ID_SoundMode_OnlyReward, true, u"wrong"));
    EXPECT_TRUE(plays(ID_SoundMode_AllOn, true, u"wrong"));
}

TEST_F(Media, ASoundOfACategoryIsDrawnEvenlyAfterSeedingFromTheClock)
{
    for (int number = 1; number <= 4; ++number) {
        sound(u"click\\c" + plainText(number) + u".wav", 0.1, number);
    }
    outside.random().numbers({0.0, 0.24, 0.25, 0.5, 0.999});
    outside.clock().advance(17.25);
    for (int call = 0; call < 5; ++call) {
        media().CLICK();
    }
    EXPECT_THAT(outside.random().seeds(), ElementsAre(17.25, 17.25, 17.25, 17.25, 17.25));
    EXPECT_THAT(heard(), ElementsAre(1, 1, 2, 3, 4));
}

TEST_F(Media, AnAwaitedSoundBlocksWithoutEventsAheadOfTheQueue)
{
    const String first = sound(u"a.wav", 0.5, 1);
    sound(u"wrong\\b.wav", 2, 2);
    bool ran = false;
    const Connection timer = SessionState::current().platform().pump->startTimer(10, [&] { ran = true; });
    media().PLAYWAVE(first, false);
    const double before = coreRoot().CoreTiming().Now();
    media().PLAYCATEGORY(u"wrong", true);
    EXPECT_DOUBLE_EQ(coreRoot().CoreTiming().Now(), before + 2);
    EXPECT_FALSE(ran);
    EXPECT_THAT(marks(), ElementsAre(2));
    EXPECT_THAT(heard(), ElementsAre(2, 1));
}

// PLAYWAVE

TEST_F(Media, WaveFilesFollowSoundAndModeButAllOnPlaysWhateverSoundSays)
{
    const String plain = sound(u"wrong\\a.wav");
    const String reward = sound(u"REWARD\\a.wav");
    const String result = sound(u"Results of today\\a.wav");
    sound(u"reward.wav");
    const auto plays = [&](enm_SoundMode soundMode, bool on, const String& file) {
        return isHeard(soundMode, on, [&] { media().PLAYWAVE(file, false); });
    };
    for (const bool on : {false, true}) {
        EXPECT_EQ(plays(ID_SoundMode_User, on, plain), on);
        EXPECT_FALSE(plays(ID_SoundMode_OnlyReward, on, plain));
        EXPECT_EQ(plays(ID_SoundMode_OnlyReward, on, reward), on);
        EXPECT_EQ(plays(ID_SoundMode_OnlyReward, on, lowerCase(reward)), on);
        EXPECT_EQ(plays(ID_SoundMode_OnlyReward, on, result), on);
        EXPECT_FALSE(plays(ID_SoundMode_OnlyReward, on, u"reward.wav")); // in no folder of rewards
        EXPECT_FALSE(plays(ID_SoundMode_AllOff, on, reward));
        EXPECT_TRUE(plays(ID_SoundMode_AllOn, on, plain));
    }
}

TEST_F(Media, SoundAndModeAreReadAfreshEachTime)
{
    const String file = sound(u"a.wav");
    media().PLAYWAVE(file, false);
    soundOn(false);
    media().PLAYWAVE(file, false);
    soundOn(true);
    media().PLAYWAVE(file, false);
    EXPECT_EQ(heard().size(), 2U);
}

TEST_F(Media, EachCallSetsTheVolumeEvenOneThatIsRefused)
{
    mode(ID_SoundMode_AllOff);
    media().VOLUME()->WAVE(90);
    media().PLAYWAVE(u"missing", false);
    EXPECT_EQ(media().VOLUME()->WAVE(), 50);
    EXPECT_NEAR(outside.audio().gain(), 0.5, 0.0001);
}

TEST_F(Media, AFadeOutlivesTheVolumeThatEachSoundSets)
{
    media().VOLUME()->FADEOUT(20);
    media().PLAYWAVE(sound(u"a.wav"), true);
    EXPECT_NEAR(outside.audio().gain(), 0.2, 0.0001);
}

TEST_F(Media, PlaysOnWhereTheMixerFails)
{
    const auto mixer = std::make_shared<headless::ScriptedMixer>();
    mixer->hasSpeakers(false);
    Platform platform = outside.platform();
    platform.mixer = mixer;
    session.reset();
    session.emplace(platform);
    start();
    const String file = sound(u"a.wav", 0.5, 3);
    EXPECT_RAISES(media().VOLUME(), DivisionByZero);
    media().PLAYWAVE(file, false);
    media().PLAYWAVE(file, false);
    EXPECT_THAT(heard(), ElementsAre(3, 3));
}

TEST_F(Media, QueuedSoundsBeginInOrderTwentyFiveMillisecondsApartAndMix)
{
    for (int mark = 1; mark <= 3; ++mark) {
        media().PLAYWAVE(sound(u"s" + plainText(mark) + u".wav", 0.5, mark), false);
    }
    EXPECT_THAT(marks(), IsEmpty()); // none begins within the call
    outside.advance(0.024);
    EXPECT_THAT(marks(), IsEmpty());
    outside.advance(0.001);
    EXPECT_THAT(marks(), ElementsAre(1));
    EXPECT_THAT(heard(), ElementsAre(1, 2, 3));
    const auto& sounds = outside.audio().heard();
    EXPECT_NEAR(sounds[1].begin - sounds[0].begin, 0.025, 1e-9);
    EXPECT_NEAR(sounds[2].begin - sounds[1].begin, 0.025, 1e-9);
    EXPECT_NEAR(sounds[0].end - sounds[0].begin, 0.5, 1e-9);
}

TEST_F(Media, ASoundBehindAnotherOneKeepsItsDistance)
{
    const String file = sound(u"a.wav");
    media().PLAYWAVE(file, false);
    outside.advance(0.03); // 5 ms behind the tick that played it
    media().PLAYWAVE(file, false);
    outside.advance(0.1);
    media().PLAYWAVE(file, false); // the timer has rested
    outside.advance(0.1);
    const auto& sounds = outside.audio().heard();
    ASSERT_EQ(sounds.size(), 3U);
    EXPECT_NEAR(sounds[0].begin, 0.025, 1e-9);
    EXPECT_NEAR(sounds[1].begin, 0.05, 1e-9);
    EXPECT_NEAR(sounds[2].begin, 0.155, 1e-9);
}

TEST_F(Media, ABurstLosesNothing)
{
    const String file = sound(u"a.wav", 0.01);
    for (int call = 0; call < 100; ++call) {
        media().PLAYWAVE(file, false);
    }
    outside.advance(100 * 0.025);
    const auto& sounds = outside.audio().heard();
    ASSERT_EQ(sounds.size(), 100U);
    for (std::size_t next = 1; next < sounds.size(); ++next) {
        EXPECT_GE(sounds[next].begin - sounds[next - 1].begin, 0.025 - 1e-9) << next;
    }
}

TEST_F(Media, AFileThatCannotBePlayedHoldsNothingUp)
{
    makeFile(u"installed\\Resources\\sfx\\noise.wav", u"noise");
    media().PLAYWAVE(u"noise", false);
    media().PLAYWAVE(u"missing", false);
    media().PLAYWAVE(sound(u"a.wav", 0.5, 4), false);
    media().PLAYWAVE(u"", true);
    EXPECT_THAT(heard(), ElementsAre(4));
}

TEST_F(Media, EachStepLeavesItsMark)
{
    const String file = sound(u"wrong\\a.wav");
    const auto traced = [&](auto&& call) {
        outside.settings().forgetTraces();
        call();
        std::vector<String> traces = outside.settings().traces();
        std::erase_if(traces, [](const String& mark) { return mark.find(u"WAVE-") <= 3; });
        return traces;
    };
    using List = std::vector<String>;
    const auto marksOf = [](StringView operation, std::initializer_list<int> numbers) {
        List marks;
        for (const int number : numbers) {
            marks.push_back(String(operation) + u"-" + plainText(number));
        }
        return marks;
    };
    EXPECT_EQ(traced([&] { media().PLAYWAVE(file, true); }), marksOf(u"PLAYWAVE", {1, 2, 4, 5, 7, 9}));
    EXPECT_EQ(traced([&] { media().PLAYWAVE(file, false); }), marksOf(u"PLAYWAVE", {1, 2, 4, 5, 8, 9}));
    EXPECT_EQ(traced([&] { media().PLAYWAVE(u"missing", false); }), marksOf(u"PLAYWAVE", {1, 2, 4, 5, 6}));
    EXPECT_EQ(traced([&] { media().PLAYCATEGORY(u"none", false); }), marksOf(u"PLAYCATEGORY", {1, 3, 4, 5}));
    List all = marksOf(u"PLAYCATEGORY", {1, 3, 4, 6, 7, 8, 9});
    std::ranges::copy(marksOf(u"PLAYWAVE", {1, 2, 4, 5, 8, 9}), std::back_inserter(all));
    all.emplace_back(u"PLAYCATEGORY-10");
    EXPECT_EQ(traced([&] { media().PLAYCATEGORY(u"wrong", false); }), all);
    soundOn(false);
    EXPECT_EQ(traced([&] { media().PLAYWAVE(file, true); }), marksOf(u"PLAYWAVE", {1, 2, 3}));
    EXPECT_EQ(traced([&] { media().PLAYCATEGORY(u"wrong", true); }), marksOf(u"PLAYCATEGORY", {1, 2}));
}

// CORRECT

TEST_F(Media, CorrectPlaysAndGivesTheFilesName)
{
    sound(u"Correct\\Bravo.wav", 0.5, 9);
    EXPECT_EQ(media().CORRECT(), u"Bravo.wav");
    EXPECT_THAT(marks(), IsEmpty()); // nobody waits for it
    EXPECT_THAT(heard(), ElementsAre(9));
}

TEST_F(Media, CorrectTakesTheNearestPositionAndSeedsNothing)
{
    for (int number = 1; number <= 4; ++number) {
        sound(u"correct\\c" + plainText(number) + u".wav", 0.1, number);
    }
    // Halves go to the even neighbour: 0.125 * 4 + 1 = 1.5 gives 2, 0.375 gives 2.5 and so 2.
    outside.random().numbers({0.0, 0.12, 0.125, 0.375, 0.38, 0.625, 0.7, 0.9, 0.999});
    std::vector<String> names;
    for (int call = 0; call < 9; ++call) {
        names.push_back(media().CORRECT());
    }
    EXPECT_THAT(names, ElementsAre(u"c1.wav", u"c1.wav", u"c2.wav", u"c2.wav", u"c3.wav", u"c4.wav",
                                   u"c4.wav", u"c4.wav", u"c4.wav"));
    EXPECT_THAT(outside.random().seeds(), IsEmpty());
}

TEST_F(Media, CorrectIsEmptyWhereNothingIsPlayed)
{
    EXPECT_EQ(media().CORRECT(), u"");
    makeFolder(u"installed\\Resources\\sfx\\correct");
    EXPECT_EQ(media().CORRECT(), u"");
    sound(u"correct\\a.wav");
    const auto plays = [&](enm_SoundMode soundMode, bool on) {
        String name;
        const bool audible = isHeard(soundMode, on, [&] { name = media().CORRECT(); });
        EXPECT_EQ(audible, !name.empty()) << soundMode;
        return audible;
    };
    for (const bool on : {false, true}) {
        EXPECT_EQ(plays(ID_SoundMode_User, on), on);
        EXPECT_FALSE(plays(ID_SoundMode_OnlyReward, on));
        EXPECT_FALSE(plays(ID_SoundMode_AllOff, on));
        EXPECT_TRUE(plays(ID_SoundMode_AllOn, on));
    }
}

// HYMNLIST, HYMNPLAY

TEST_F(Media, HymnsAreListedBehindTheEntryForNone)
{
    sound(u"reward\\über den wolken.wav");
    sound(u"REWARD\\FANFARE.wav");
    sound(u"correct\\no hymn.wav");
    ListBox list;
    media().HYMNLIST(list);
    ASSERT_GE(list.ListCount(), 2);
    EXPECT_EQ(list.List(0), u"(Keine)");
    EXPECT_EQ(list.ListIndex(), 1);
}

TEST_F(Media, HymnsHaveCapitalsAtTheBeginningOfWords)
{
    sound(u"reward\\über den WOLKEN.wav");
    sound(u"reward\\FANFARE.wav");
    sound(u"reward\\old\\no hymn.wav");
    ListBox list;
    media().HYMNLIST(list);
    ASSERT_EQ(list.ListCount(), 3);
    EXPECT_EQ(list.List(1), u"Fanfare");
    EXPECT_EQ(list.List(2), u"Über Den Wolken");
}

TEST_F(Media, WithoutHymnsTheOneEntryIsChosen)
{
    LNG()->CURRENT(ID_Language_English);
    ListBox list;
    media().HYMNLIST(list);
    ASSERT_EQ(list.ListCount(), 1);
    EXPECT_EQ(list.List(0), u"(None)");
    EXPECT_EQ(list.ListIndex(), 0);
    Timer noList;
    EXPECT_RAISES(media().HYMNLIST(noList), NoSuchMember);
}

TEST_F(Media, TheChosenHymnIsPlayed)
{
    sound(u"reward\\am ziel.wav", 0.5, 11);
    ListBox list;
    media().HYMNLIST(list);
    EXPECT_EQ(list.Text(), u"Am Ziel");
    EXPECT_TRUE(media().HYMNPLAY(list));
    EXPECT_THAT(marks(), IsEmpty());
    EXPECT_THAT(heard(), ElementsAre(11));
    EXPECT_TRUE(media().HYMNPLAY(list, true));
    EXPECT_THAT(marks(), ElementsAre(11, 11));
}

TEST_F(Media, NoHymnIsPlayedForTheFirstEntryAndForWhatIsMissing)
{
    const String file = sound(u"reward\\a.wav");
    ListBox list;
    media().HYMNLIST(list);
    list.ListIndex(0);
    EXPECT_FALSE(media().HYMNPLAY(list));
    list.ListIndex(-1);
    EXPECT_FALSE(media().HYMNPLAY(list));
    list.ListIndex(1);
    std::filesystem::remove(nativePath(file));
    EXPECT_FALSE(media().HYMNPLAY(list));
    Timer noList;
    EXPECT_FALSE(media().HYMNPLAY(noList));
    EXPECT_THAT(heard(), IsEmpty());
}

// The end

TEST_F(Media, TheEndOfTheSessionStopsWhatPlaysAndWhatIsQueued)
{
    const String file = sound(u"a.wav", 9);
    media().PLAYWAVE(file, false);
    outside.advance(0.1);
    media().PLAYWAVE(file, false);
    session.reset();
    outside.advance(1);
    ASSERT_EQ(outside.audio().heard().size(), 1U);
    EXPECT_NEAR(outside.audio().heard()[0].end, 0.1, 1e-9);
}

TEST_F(Media, TheCommandLineSilencesTheRun)
{
    QVAPP()->INIT(u"/NOSOUND");
    sound(u"click\\a.wav");
    media().CLICK();
    EXPECT_THAT(heard(), IsEmpty());
}

TEST_F(Media, TheObjectsCanBeReplaced)
{
    const auto volume = std::make_shared<cls_AppMediaVolume>();
    media().VOLUME(volume);
    EXPECT_EQ(media().VOLUME(), volume);
    const auto other = std::make_shared<cls_AppMedia>();
    QVAPP()->MEDIA(other);
    EXPECT_EQ(QVAPP()->MEDIA(), other);
}

} // namespace
} // namespace phial
