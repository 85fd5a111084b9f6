#include "core/CoreStringOps.h"

#include "support/Raises.h"

#include <gtest/gtest.h>

namespace phial
{
namespace
{

TEST(CoreStringOpsTest, TheFirstDelimiterDivides)
{
    EXPECT_EQ(CoreStringOps::Before(u"a::b::c", u"::"), u"a");
    EXPECT_EQ(CoreStringOps::After(u"a::b::c", u"::"), u"b::c");
    EXPECT_EQ(CoreStringOps::Before(u"::b", u"::", true), u"");
    EXPECT_EQ(CoreStringOps::After(u"a::", u"::", false), u"");
}

TEST(CoreStringOpsTest, TheFlagTellsWhatAMissingDelimiterGives)
{
    EXPECT_EQ(CoreStringOps::Before(u"abc", u"|", false), u"abc");
    EXPECT_EQ(CoreStringOps::Before(u"abc", u"|", true), u"");
    EXPECT_EQ(CoreStringOps::After(u"abc", u"|", false), u"abc");
    EXPECT_EQ(CoreStringOps::After(u"abc", u"|", true), u"");
    EXPECT_EQ(CoreStringOps::Before(u"abc", u"", true), u"");
    EXPECT_EQ(CoreStringOps::After(u"abc", u"", false), u"abc");
}

TEST(CoreStringOpsTest, FieldsCountFromOne)
{
    String field;
    EXPECT_TRUE(CoreStringOps::Field(u"a;b;;d", u";", 1, field));
    EXPECT_EQ(field, u"a");
    EXPECT_TRUE(CoreStringOps::Field(u"a;b;;d", u";", 3, field));
    EXPECT_EQ(field, u"");
    EXPECT_TRUE(CoreStringOps::Field(u"a;b;;d", u";", 4, field));
    EXPECT_EQ(field, u"d");
}

TEST(CoreStringOpsTest, AMissingFieldIsEmpty)
{
    String field = u"before";
    EXPECT_FALSE(CoreStringOps::Field(u"a;b", u";", 3, field));
    EXPECT_EQ(field, u"");
    field = u"before";
    EXPECT_FALSE(CoreStringOps::Field(u"a;b", u";", 0, field));
    EXPECT_EQ(field, u"");
    EXPECT_FALSE(CoreStringOps::Field(u"", u";", 1, field));
}

TEST(CoreStringOpsTest, ShortTextsStay)
{
    EXPECT_EQ(CoreStringOps::Shorten(u"a b c", 5, u" ", 0, true), u"a b c");
    EXPECT_EQ(CoreStringOps::Shorten(u"", 0), u"");
}

TEST(CoreStringOpsTest, LongTextsAreCutAtTheLastBreak)
{
    EXPECT_EQ(CoreStringOps::Shorten(u"eins zwei drei", 11, u" ", 0, true), u"eins zwei");
    EXPECT_EQ(CoreStringOps::Shorten(u"eins zwei drei", 9, u" ", 0, true), u"eins zwei");
    EXPECT_EQ(CoreStringOps::Shorten(u"eins zwei drei", 8, u" ", 0, true), u"eins");
}

TEST(CoreStringOpsTest, WithoutABreakTheTextIsCutAtTheLength)
{
    EXPECT_EQ(CoreStringOps::Shorten(String(60, u'x'), 50, u" ", 0, true), String(50, u'x'));
    EXPECT_EQ(CoreStringOps::Shorten(u" xxxxx", 3, u" ", 0, true), u" xx");
    EXPECT_EQ(CoreStringOps::Shorten(u"a xxxxx", 4, u" ", 2, true), u"a xx");
    EXPECT_EQ(CoreStringOps::Shorten(u"xxxxx", 3, u" ", 0, false), u"xxxxx");
    EXPECT_EQ(CoreStringOps::Shorten(u"xxxxx", 3, u"", 0, true), u"xxx");
}

TEST(CoreStringOpsTest, APairOfSurrogatesIsNotParted)
{
    EXPECT_EQ(CoreStringOps::Shorten(u"a\U0001F9EAb", 2), u"a");
    EXPECT_EQ(CoreStringOps::Shorten(u"a\U0001F9EAb", 3), u"a\U0001F9EA");
}

TEST(CoreStringOpsTest, ANegativeLengthRaises)
{
    EXPECT_RAISES(CoreStringOps::Shorten(u"a", -1), InvalidArgument);
}

} // namespace
} // namespace phial
