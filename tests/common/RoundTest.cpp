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

TEST(RoundTest, EachTaskKeepsHowItStands)
{
    Round round(4);
    round.count(Judgement::Right);
    round.next();
    round.takeHint();
    round.count(Judgement::Right);
    round.next();
    round.count(Judgement::Wrong);
    EXPECT_EQ(round.outcome(3), Outcome::Open);
    round.count(Judgement::Right);
    round.next();
    for (int tries = 0; tries < Round::Tries; ++tries) {
        round.count(Judgement::Wrong);
    }
    const Outcome expected[] = {Outcome::AtOnce, Outcome::Later, Outcome::Later, Outcome::Missed};
    const int points[] = {10, 7, 7, 0};
    for (int position = 1; position <= 4; ++position) {
        EXPECT_EQ(round.outcome(position), expected[position - 1]) << position;
        EXPECT_EQ(round.pointsOf(position), points[position - 1]) << position;
    }
    EXPECT_EQ(round.points(), 24);
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
