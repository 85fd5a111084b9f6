#include "core/CoreText.h"

#include <gtest/gtest.h>

namespace phial
{
namespace
{

TEST(CoreTextTest, EveryOccurrenceIsReplaced)
{
    EXPECT_EQ(CoreText::Replace(u"3--2--1", u"--", u"+"), u"3+2+1");
    EXPECT_EQ(CoreText::Replace(u"abc", u"", u"x"), u"abc");
    EXPECT_EQ(CoreText::Replace(u"aXbxc", u"x", u"-"), u"aXb-c");
}

TEST(CoreTextTest, CaseIsDisregardedOnDemand)
{
    EXPECT_EQ(CoreText::Replace(u"aXbxc", u"x", u"-", true), u"a-b-c");
    EXPECT_EQ(CoreText::Replace(u"\u00C4pfel", u"\u00E4", u"A", true), u"Apfel");
}

TEST(CoreTextTest, GivesTheOtherServices)
{
    EXPECT_EQ(CoreText().CorePathText().FileName(u"a\\b"), u"b");
    EXPECT_EQ(CoreText().CoreStringOps().Before(u"a|b", u"|"), u"a");
    EXPECT_EQ(CoreText().CoreCmdParser().Split(u"a|b", u"|").Count(), 2);
    EXPECT_EQ(CoreText().CoreValuePacker().Pack({}), u"QV1;0;");
    EXPECT_EQ(CoreText().CoreTextFilter().Clean(u" Natrium \u00E4"), u" Natrium \u00E4");
}

} // namespace
} // namespace phial
