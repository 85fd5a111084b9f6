#include "app/cls_Language.h"
#include "molmasse/TrainerTest.h"
#include "support/MarkedWaves.h"

#include <gmock/gmock-more-matchers.h>

namespace molmasse
{
namespace
{

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr int Click = 1;
constexpr int Praise = 2;
constexpr int Blame = 3;
constexpr int Hymn = 4;

/// The trainer with a sound of each kind, and somebody who listens.
class TrainerSounds : public TrainerTest
{
protected:
    TrainerSounds()
    {
        install();
        for (const auto& [category, mark] :
             {std::pair("click", Click), {"correct", Praise}, {"wrong", Blame}, {"reward", Hymn}}) {
            folder.write("installed/Resources/sfx/" + std::string(category) + "/a.wav",
                         phial::test::markedWave(0.2, mark));
        }
        open();
    }

    /// What has been heard since the last call.
    std::vector<int> heard()
    {
        outside.advance(1);
        std::vector<int> marks;
        const auto& all = outside.audio().heard();
        for (; listened_ < all.size(); ++listened_) {
            marks.push_back(phial::test::markOf(*all[listened_].sound));
        }
        return marks;
    }
    /// Closes the trainer and starts it anew, in another run.
    void restart(phial::StringView commandLine = u"NONETWORK")
    {
        trainer.reset();
        session.reset();
        session.emplace(outside.platform());
        open(commandLine);
    }

private:
    std::size_t listened_ = 0;
};

TEST_F(TrainerSounds, TheButtonOfThePadClicks)
{
    touch(u"but_Level", 0);
    EXPECT_THAT(heard(), IsEmpty());
    touchPad(u"18");
    EXPECT_THAT(heard(), ElementsAre(Click));
}

TEST_F(TrainerSounds, AnswersArePraisedAndBlamedWithoutAWindow)
{
    touch(u"but_Level", 0);
    type(u"17{enter}");
    EXPECT_THAT(heard(), ElementsAre(Blame));
    type(u"17{enter}"); // the same once more
    EXPECT_THAT(heard(), IsEmpty());
    type(u"nichts{enter}"); // no answer at all
    EXPECT_THAT(heard(), IsEmpty());
    type(u"18,0{enter}");
    EXPECT_THAT(heard(), ElementsAre(Praise));
    type(u"{enter}1{enter}2{enter}");
    EXPECT_THAT(heard(), ElementsAre(Blame, Blame));
    type(u"3{enter}"); // missed
    EXPECT_THAT(heard(), ElementsAre(Blame));
}

TEST_F(TrainerSounds, AHymnIsPlayedBehindARoundWithPoints)
{
    expectRankBox();
    playRound();
    EXPECT_THAT(heard(), ElementsAre(Praise, Praise, Hymn));
}

TEST_F(TrainerSounds, ARoundWithoutPointsHasNoHymn)
{
    touch(u"but_Level", 1);
    type(u"1{enter}2{enter}3{enter}");
    heard();
    outside.dialogs().expect(phial::headless::Box::Info);
    type(u"{enter}");
    EXPECT_THAT(heard(), IsEmpty());
}

TEST_F(TrainerSounds, TheSwitchGoesFromAllToRewardsToNothing)
{
    EXPECT_EQ(buttonText(u"but_Sound"), u"Ton: an");
    touch(u"but_Sound");
    EXPECT_EQ(buttonText(u"but_Sound"), u"Ton: nur Belohnung");
    EXPECT_THAT(heard(), IsEmpty());
    expectRankBox();
    playRound();
    EXPECT_THAT(heard(), ElementsAre(Hymn));
    touch(u"but_Sound");
    EXPECT_EQ(buttonText(u"but_Sound"), u"Ton: aus");
    touch(u"but_Again");
    expectRankBox();
    playRound();
    EXPECT_THAT(heard(), IsEmpty());
    touch(u"but_Sound");
    EXPECT_EQ(buttonText(u"but_Sound"), u"Ton: an");
    EXPECT_THAT(heard(), ElementsAre(Click));
}

TEST_F(TrainerSounds, TheSwitchSpeaksEnglish)
{
    phial::LNG()->CURRENT(phial::ID_Language_English);
    EXPECT_EQ(buttonText(u"but_Sound"), u"Sound: on");
    touch(u"but_Sound");
    EXPECT_EQ(buttonText(u"but_Sound"), u"Sound: rewards only");
    touch(u"but_Sound");
    EXPECT_EQ(buttonText(u"but_Sound"), u"Sound: off");
}

TEST_F(TrainerSounds, TheChoiceIsKept)
{
    touch(u"but_Sound");
    restart();
    EXPECT_EQ(buttonText(u"but_Sound"), u"Ton: nur Belohnung");
    touch(u"but_Sound");
    restart();
    EXPECT_EQ(buttonText(u"but_Sound"), u"Ton: aus");
    touch(u"but_Sound");
    restart();
    EXPECT_EQ(buttonText(u"but_Sound"), u"Ton: an");
}

TEST_F(TrainerSounds, ARunWithoutSoundLeavesTheChoice)
{
    touch(u"but_Sound");
    restart(u"NONETWORK NOSOUND");
    EXPECT_EQ(buttonText(u"but_Sound"), u"Ton: aus");
    touch(u"but_Level", 0);
    touchPad(u"1");
    EXPECT_THAT(heard(), IsEmpty());
    restart();
    EXPECT_EQ(buttonText(u"but_Sound"), u"Ton: nur Belohnung");
}

TEST_F(TrainerSounds, TheSwitchIsSeenOnEachPage)
{
    EXPECT_TRUE(isSeen(u"but_Sound"));
    touch(u"but_Level", 0);
    EXPECT_TRUE(isSeen(u"but_Sound"));
}

} // namespace
} // namespace molmasse
