#include "molmasse/MassJudge.h"

#include "common/NumberAnswer.h"

#include <cmath>
#include <gtest/gtest.h>

namespace molmasse
{
namespace
{

using learning::Judgement;

TEST(MassJudgeTest, CommaAndPointAreBothDecimalSigns)
{
    EXPECT_EQ(judgeMass(learning::typedNumber(u"18,5"), TaskMasses{18.5, 18.5, true}), Judgement::Right);
    EXPECT_EQ(judgeMass(learning::typedNumber(u" 18.5 "), TaskMasses{18.5, 18.5, true}), Judgement::Right);
}

TEST(MassJudgeTest, WhatIsNoNumberIsNoAnswer)
{
    EXPECT_EQ(judgeMass(learning::typedNumber(u""), TaskMasses{18, 18, true}), Judgement::Unreadable);
    EXPECT_EQ(judgeMass(learning::typedNumber(u"viel"), TaskMasses{18, 18, true}), Judgement::Unreadable);
}

TEST(MassJudgeTest, TheExactMassIsAsRightAsTheSchools)
{
    EXPECT_EQ(judgeMass(114.0, TaskMasses{114.0, 114.232, true}), Judgement::Right);
    EXPECT_EQ(judgeMass(114.23, TaskMasses{114.0, 114.232, true}), Judgement::Right);
    EXPECT_EQ(judgeMass(113.2, TaskMasses{114.0, 114.232, true}), Judgement::Wrong);
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

TEST(MassJudgeTest, AForgottenHydrogenAtomIsWrongInLargeMoleculesToo)
{
    struct Fat {
        const char* name;
        phial::String formula;
        double school;
        double exact;
    };
    for (const auto& [name, formula, school, exact] :
         {Fat{"tristearin", u"C57H110O6", 890.0, 891.501}, Fat{"triolein", u"C57H104O6", 884.0, 885.453}}) {
        SCOPED_TRACE(name);
        const TaskMasses masses = massesOf(formula, school, exact);
        EXPECT_TRUE(canBeJudged(masses));
        for (const double right : {school, exact, std::round(exact * 10) / 10}) {
            EXPECT_EQ(judgeMass(right, masses), Judgement::Right) << right;
        }
        for (const double wrong : {school - 1, school + 1, exact - 1.008, exact + 1.008}) {
            EXPECT_EQ(judgeMass(wrong, masses), Judgement::Wrong) << wrong;
        }
    }
}

TEST(MassJudgeTest, MassesThatLieAHydrogenAtomApartCannotBeJudged)
{
    EXPECT_FALSE(canBeJudged(massesOf(u"C38H74O4", 594.0, 595.0)));
    EXPECT_TRUE(canBeJudged(massesOf(u"C38H74O4", 594.0, 594.8)));
    EXPECT_TRUE(canBeJudged(massesOf(u"C38O4", 594.0, 595.0))) << "there is no hydrogen to be forgotten";
    EXPECT_EQ(judgeMass(594.5, massesOf(u"C38O4", 594.0, 595.0)), Judgement::Right);
}

} // namespace
} // namespace molmasse
