#include "common/Round.h"

#include <gtest/gtest.h>

namespace learning
{
namespace
{

TEST(RoundTest, TheFirstTryGivesFullPoints)
{
    Round round(1);
    EXPECT_EQ(round.count(Judgement::Right), Verdict::Right);
    EXPECT_EQ(round.points(), 10);
    EXPECT_EQ(round.maximum(), 10);
    EXPECT_EQ(round.solved(), 1);
    EXPECT_TRUE(round.finished());
}

TEST(RoundTest, WrongTriesAndTheHintCostThreePointsEach)
{
    Round round(1);
    EXPECT_EQ(round.count(Judgement::Wrong), Verdict::Wrong);
    EXPECT_EQ(round.triesLeft(), 2);
    round.takeHint();
    round.takeHint();
    EXPECT_EQ(round.count(Judgement::Right), Verdict::Right);
    EXPECT_EQ(round.lastPoints(), 4);
}

TEST(RoundTest, TheThirdWrongTryMissesTheTask)
{
    Round round(2);
    round.count(Judgement::Wrong);
    round.count(Judgement::Wrong);
    EXPECT_EQ(round.count(Judgement::Wrong), Verdict::Missed);
    EXPECT_TRUE(round.decided());
    EXPECT_EQ(round.count(Judgement::Right), Verdict::Missed);
    EXPECT_EQ(round.points(), 0);
    EXPECT_FALSE(round.finished());
    ASSERT_TRUE(round.next());
    EXPECT_EQ(round.position(), 2);
    EXPECT_EQ(round.triesLeft(), 3);
    EXPECT_EQ(round.count(Judgement::Right), Verdict::Right);
    EXPECT_FALSE(round.next());
}

TEST(RoundTest, WhatIsNoAnswerUsesUpNoTry)
{
    Round round(1);
    EXPECT_EQ(round.count(Judgement::Unreadable), Verdict::Unreadable);
    EXPECT_EQ(round.triesLeft(), 3);
    EXPECT_FALSE(round.decided());
}

} // namespace
} // namespace learning
