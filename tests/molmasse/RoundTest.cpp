#include "molmasse/Round.h"

#include <gtest/gtest.h>
#include <set>

namespace molmasse
{
namespace
{

Level levelOf(int tasks)
{
    Level level{u"leicht", u"Leicht", u"Easy", {}};
    for (int i = 0; i < tasks; ++i) {
        level.tasks.push_back({phial::String(u"X") + static_cast<char16_t>(u'a' + i), u"", u""});
    }
    return level;
}

Round roundOf(int tasks, double molarMass = 18.0)
{
    return Round(
        levelOf(tasks), [molarMass](const phial::String&) { return molarMass; }, [](int) { return 0; });
}

TEST(RoundTest, TakesTenDifferentTasks)
{
    int calls = 0;
    const Level level = levelOf(20);
    Round round(
        level, [](const phial::String&) { return 1.0; }, [&calls](int bound) { return ++calls * 7 % bound; });

    std::set<phial::String> seen{round.task().formula};
    while (round.next()) {
        seen.insert(round.task().formula);
    }
    EXPECT_EQ(round.count(), 10);
    EXPECT_EQ(seen.size(), 10U);
}

TEST(RoundTest, AShortLevelGivesAShortRound)
{
    EXPECT_EQ(roundOf(3).count(), 3);
    EXPECT_EQ(roundOf(3).maximum(), 30);
}

TEST(RoundTest, CommaAndPointAreBothDecimalSigns)
{
    EXPECT_EQ(roundOf(1, 18.5).check(u"18,5"), Verdict::Right);
    EXPECT_EQ(roundOf(1, 18.5).check(u" 18.5 "), Verdict::Right);
}

TEST(RoundTest, TheFirstTryGivesFullPoints)
{
    Round round = roundOf(1);
    EXPECT_EQ(round.check(u"18"), Verdict::Right);
    EXPECT_EQ(round.points(), 10);
    EXPECT_EQ(round.solved(), 1);
    EXPECT_TRUE(round.finished());
}

TEST(RoundTest, WrongTriesAndTheHintCostThreePointsEach)
{
    Round round = roundOf(1);
    EXPECT_EQ(round.check(u"17"), Verdict::Wrong);
    EXPECT_EQ(round.triesLeft(), 2);
    round.takeHint();
    round.takeHint();
    EXPECT_EQ(round.check(u"18"), Verdict::Right);
    EXPECT_EQ(round.lastPoints(), 4);
}

TEST(RoundTest, TheThirdWrongTryMissesTheTask)
{
    Round round = roundOf(2);
    round.check(u"1");
    round.check(u"2");
    EXPECT_EQ(round.check(u"3"), Verdict::Missed);
    EXPECT_TRUE(round.decided());
    EXPECT_EQ(round.check(u"18"), Verdict::Missed);
    EXPECT_EQ(round.points(), 0);
    EXPECT_FALSE(round.finished());
    ASSERT_TRUE(round.next());
    EXPECT_EQ(round.triesLeft(), 3);
    EXPECT_EQ(round.check(u"18"), Verdict::Right);
}

TEST(RoundTest, WhatIsNoNumberUsesUpNoTry)
{
    Round round = roundOf(1);
    EXPECT_EQ(round.check(u""), Verdict::NoNumber);
    EXPECT_EQ(round.check(u"viel"), Verdict::NoNumber);
    EXPECT_EQ(round.triesLeft(), 3);
}

TEST(RoundTest, AnAnswerMayDifferByTheTolerance)
{
    EXPECT_DOUBLE_EQ(tolerance(18), 0.1);
    EXPECT_DOUBLE_EQ(tolerance(100), 0.2);
    EXPECT_DOUBLE_EQ(tolerance(1000), 0.5);
    EXPECT_TRUE(isRight(18.1, 18.0));
    EXPECT_FALSE(isRight(18.11, 18.0));
    EXPECT_FALSE(isRight(17.0, 18.0));
}

} // namespace
} // namespace molmasse
