#include "molmasse/MassJudge.h"

#include "common/NumberAnswer.h"

#include <gtest/gtest.h>

namespace molmasse
{
namespace
{

using learning::Judgement;

TEST(MassJudgeTest, CommaAndPointAreBothDecimalSigns)
{
    EXPECT_EQ(judgeMass(learning::typedNumber(u"18,5"), 18.5, 18.5), Judgement::Right);
    EXPECT_EQ(judgeMass(learning::typedNumber(u" 18.5 "), 18.5, 18.5), Judgement::Right);
}

TEST(MassJudgeTest, WhatIsNoNumberIsNoAnswer)
{
    EXPECT_EQ(judgeMass(learning::typedNumber(u""), 18, 18), Judgement::Unreadable);
    EXPECT_EQ(judgeMass(learning::typedNumber(u"viel"), 18, 18), Judgement::Unreadable);
}

TEST(MassJudgeTest, TheExactMassIsAsRightAsTheSchools)
{
    EXPECT_EQ(judgeMass(114.0, 114.0, 114.232), Judgement::Right);
    EXPECT_EQ(judgeMass(114.23, 114.0, 114.232), Judgement::Right);
    EXPECT_EQ(judgeMass(113.2, 114.0, 114.232), Judgement::Wrong);
}

TEST(MassJudgeTest, AnAnswerMayDifferByTheTolerance)
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
