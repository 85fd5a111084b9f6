#include "core/CoreNumbers.h"

#include "support/Raises.h"

#include <gtest/gtest.h>

namespace phial
{
namespace
{

TEST(CoreNumbersTest, ToDoubleReadsBothDecimalSigns)
{
    double value = 0;
    EXPECT_TRUE(CoreNumbers::ToDouble(u"18,02", value));
    EXPECT_EQ(value, 18.02);
    EXPECT_TRUE(CoreNumbers::ToDouble(u" 18.02 ", value));
    EXPECT_EQ(value, 18.02);
    EXPECT_TRUE(CoreNumbers::ToDouble(u"1EP3", value));
    EXPECT_EQ(value, 1000);
}

TEST(CoreNumbersTest, JunkGivesTheLeadingNumberOrZeroAndFalse)
{
    double value = 7;
    EXPECT_FALSE(CoreNumbers::ToDouble(u"18 g", value));
    EXPECT_EQ(value, 18);
    EXPECT_FALSE(CoreNumbers::ToDouble(u"Wasser", value));
    EXPECT_EQ(value, 0);
    value = 7;
    EXPECT_FALSE(CoreNumbers::ToDouble(u"", value));
    EXPECT_EQ(value, 0);
    value = 7;
    EXPECT_FALSE(CoreNumbers::ToDouble(u"1E999", value));
    EXPECT_EQ(value, 0);
}

TEST(CoreNumbersTest, TheInvariantFormHasAPoint)
{
    EXPECT_EQ(CoreNumbers::Invariant().Format(2.5), u"2.5");
    EXPECT_EQ(CoreNumbers::Invariant().Parse(u"2.5"), 2.5);
    EXPECT_EQ(CoreNumbers::Invariant().Parse(u"2,5"), 2);
    EXPECT_EQ(CoreNumbers::Invariant().Parse(u"x"), 0);
    EXPECT_RAISES(CoreNumbers::Invariant().Parse(u"1E999"), Overflow);
}

TEST(CoreNumbersTest, LerpFollowsTheStraightLine)
{
    EXPECT_EQ(CoreNumbers::Lerp(5, 0, 10, 100, 200), 150);
    EXPECT_EQ(CoreNumbers::Lerp(0, 0, 10, 100, 200), 100);
    EXPECT_EQ(CoreNumbers::Lerp(10, 0, 10, 100, 200), 200);
    EXPECT_EQ(CoreNumbers::Lerp(20, 0, 10, 200, 100), 0);
    EXPECT_EQ(CoreNumbers::Lerp(3, 3, 3, 100, 200), 200);
}

} // namespace
} // namespace phial
