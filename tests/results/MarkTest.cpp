#include "results/Mark.h"

#include <cmath>
#include <gtest/gtest.h>

namespace phial
{

namespace
{

StringView markOf(double points, double pointsMax)
{
    return markFor(points, pointsMax).school;
}

TEST(Mark, BeginsWhereTheOneBelowEnds)
{
    EXPECT_EQ(markOf(0, 100), u"6");
    EXPECT_EQ(markOf(9.99, 100), u"6");
    EXPECT_EQ(markOf(10, 100), u"5-");
    EXPECT_EQ(markOf(1, 10), u"5-");
    EXPECT_EQ(markOf(20, 100), u"5");
    EXPECT_EQ(markOf(30, 100), u"5+");
    EXPECT_EQ(markOf(40, 100), u"4-");
    EXPECT_EQ(markOf(45, 100), u"4");
    EXPECT_EQ(markOf(50, 100), u"4+");
    EXPECT_EQ(markOf(55, 100), u"3-");
    EXPECT_EQ(markOf(60, 100), u"3");
    EXPECT_EQ(markOf(65, 100), u"3+");
    EXPECT_EQ(markOf(70, 100), u"2-");
    EXPECT_EQ(markOf(75, 100), u"2");
    EXPECT_EQ(markOf(80, 100), u"2+");
    EXPECT_EQ(markOf(85, 100), u"1-");
    EXPECT_EQ(markOf(90, 100), u"1");
    EXPECT_EQ(markOf(9.49, 10), u"1");
    EXPECT_EQ(markOf(9.5, 10), u"1+");
    EXPECT_EQ(markOf(100, 100), u"1+");
}

TEST(Mark, IsMeasuredAgainstAHundredWhereNoPointsCanBeReached)
{
    EXPECT_EQ(markFor(0, 0).words, u"Ungenügend");
    EXPECT_EQ(markFor(50, 0).words, u"Ausreichend plus");
    EXPECT_EQ(markFor(50, 0).mark, enm_Mark::ID_Mark_4P);
}

TEST(Mark, KeepsThePointsBetweenNoneAndTheReachable)
{
    EXPECT_EQ(markFor(120, 100).mark, enm_Mark::ID_Mark_1P);
    EXPECT_EQ(markFor(-5, 100).mark, enm_Mark::ID_Mark_6);
    EXPECT_EQ(markFor(50, -100).mark, enm_Mark::ID_Mark_6);
    EXPECT_EQ(markFor(-200, -100).mark, enm_Mark::ID_Mark_6);
}

TEST(Mark, IsTheBetterOneOnlyFromItsLimitOn)
{
    EXPECT_EQ(markFor(std::nextafter(0.95, 0), 1).mark, enm_Mark::ID_Mark_1);
    EXPECT_EQ(markFor(0.95, 1).mark, enm_Mark::ID_Mark_1P);
}

TEST(Mark, HasTheUpperSchoolsPointsAsItsValue)
{
    for (int points = 0; points <= 15; ++points) {
        // The middle of each step, from 0.05 on.
        const double middle = points <= 3 ? 0.05 + 0.1 * points : 0.425 + 0.05 * (points - 4);
        EXPECT_EQ(static_cast<int>(markFor(middle, 1).mark), points);
    }
}

} // namespace

} // namespace phial
