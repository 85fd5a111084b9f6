#include "core/EscapedText.h"

#include <gtest/gtest.h>

namespace phial
{
namespace
{

TEST(EscapedTextTest, PlainTextStaysReadable)
{
    EXPECT_EQ(escapedText(u"2H2 + O2 -> 2H2O, \u00E4\u00F6\u00FC\u00DF \U0001F9EA"),
              u"2H2 + O2 -> 2H2O, \u00E4\u00F6\u00FC\u00DF \U0001F9EA");
}

TEST(EscapedTextTest, WhatBreaksALineIsEscaped)
{
    EXPECT_EQ(escapedText(StringView(u"a\0b\r\n\u0085\u2028", 7)), u"a%0000b%000D%000A%0085%2028");
    EXPECT_EQ(escapedText(u"100 %"), u"100 %0025");
    EXPECT_EQ(escapedText(u"a|b", u"|"), u"a%007Cb");
}

TEST(EscapedTextTest, LoneSurrogateHalvesAreEscaped)
{
    EXPECT_EQ(escapedText(String{0xDDEA, u'a', 0xD83E}), u"%DDEAa%D83E");
}

TEST(EscapedTextTest, SmallHexadecimalDigitsAreRead)
{
    EXPECT_EQ(unescapedText(u"%007c%007C"), u"||");
}

TEST(EscapedTextTest, ABrokenEscapeGivesNoText)
{
    EXPECT_EQ(unescapedText(u"%"), std::nullopt);
    EXPECT_EQ(unescapedText(u"a%007"), std::nullopt);
    EXPECT_EQ(unescapedText(u"%00G0"), std::nullopt);
}

TEST(EscapedTextTest, QuotedTextIsOneReadableLine)
{
    EXPECT_EQ(quotedText(u"J\u00FCrgen \"Jo\", 50 % \U0001F9EA"),
              u"\"J\u00FCrgen \\\"Jo\\\", 50 % \U0001F9EA\"");
    EXPECT_EQ(quotedText(StringView(u"a/\\\r\n\t\0\u0085\u2028", 9)),
              u"\"a/\\\\\\r\\n\\t\\u0000\\u0085\\u2028\"");
    EXPECT_EQ(quotedText(String{0xDDEA, u'a', 0xD83E}), u"\"\\uDDEAa\\uD83E\"");
}

TEST(EscapedTextTest, QuotedTextIsTakenFromTheBeginning)
{
    StringView rest = u"\"a\\\"\\u00e4\\/\\b\\f\" tail\"";
    EXPECT_EQ(takeQuotedText(rest), u"a\"\u00E4/\b\f");
    EXPECT_EQ(rest, u" tail\"");
}

TEST(EscapedTextTest, QuotedTextThatBreaksOffIsNone)
{
    for (StringView rest :
         {u"", u"a", u"\"", u"\"a", u"\"a\\", u"\"a\\\"", u"\"\\u004\"", u"\"\\u", u"\"\\x\"", u"\"a\nb\""}) {
        EXPECT_EQ(takeQuotedText(rest), std::nullopt);
    }
}

} // namespace
} // namespace phial
