#include "core/String.h"

#include <gtest/gtest.h>
#include <random>

namespace phial
{
namespace
{

TEST(StringTest, Utf8HoldsEveryLengthOfSequence)
{
    EXPECT_EQ(toUtf8(u"a\u00E4\u20AC\U0001F9EA"), "a\xC3\xA4\xE2\x82\xAC\xF0\x9F\xA7\xAA");
    EXPECT_EQ(fromUtf8("a\xC3\xA4\xE2\x82\xAC\xF0\x9F\xA7\xAA"), u"a\u00E4\u20AC\U0001F9EA");
}

TEST(StringTest, AnySequenceStandsAnywhereInALongText)
{
    for (std::size_t before = 0; before < 100; ++before) {
        const std::string ascii(before, 'x');
        const String same(before, u'x');
        EXPECT_EQ(fromUtf8(ascii + "\xC3\xA4\xF0\x9F\xA7\xAA\xFF" + ascii),
                  same + u"\u00E4\U0001F9EA\uFFFD" + same);
        EXPECT_EQ(toUtf8(same + u"\u00E4\U0001F9EA" + same), ascii + "\xC3\xA4\xF0\x9F\xA7\xAA" + ascii);
    }
}

TEST(StringTest, LoneSurrogateHalvesComeBack)
{
    const String halves = {u'a', 0xD83E, u'b', 0xDDEA, 0xDDEA, 0xD83E};
    EXPECT_EQ(fromUtf8(toUtf8(halves)), halves);
}

TEST(StringTest, EachIllFormedByteBecomesAReplacement)
{
    EXPECT_EQ(fromUtf8("a\xFF\x80z"), u"a\uFFFD\uFFFDz");
    EXPECT_EQ(fromUtf8("\xC3"), u"\uFFFD");
    EXPECT_EQ(fromUtf8("\xE2\x82z"), u"\uFFFD\uFFFDz");
    EXPECT_EQ(fromUtf8("\xF4\x90\x80\x80"), u"\uFFFD\uFFFD\uFFFD\uFFFD"); // beyond U+10FFFF
}

TEST(StringTest, OverlongSequencesAreIllFormed)
{
    EXPECT_EQ(fromUtf8("\xC0\x80"), u"\uFFFD\uFFFD");
    EXPECT_EQ(fromUtf8("\xE0\x80\xAF"), u"\uFFFD\uFFFD\uFFFD");
}

TEST(StringTest, EveryTextSurvivesUtf8)
{
    std::mt19937 random(20);
    std::uniform_int_distribution<int> unit(0, 0xFFFF);
    for (int round = 0; round < 200; ++round) {
        String text;
        for (int i = 0; i < 100; ++i) {
            text += static_cast<char16_t>(unit(random));
        }
        ASSERT_EQ(fromUtf8(toUtf8(text)), text);
    }
}

TEST(StringTest, UpperCaseIsRightForGerman)
{
    EXPECT_EQ(upperCase(u"fl\u00FCssige \u00D6le, \u00DFauer"), u"FL\u00DCSSIGE \u00D6LE, \u00DFAUER");
}

TEST(StringTest, CaseKnowsLatinGreekAndCyrillic)
{
    EXPECT_EQ(upperCase(u"\u0161\u017E\u0142\u00FF"), u"\u0160\u017D\u0141\u0178");
    EXPECT_EQ(upperCase(u"\u03B1\u03C9\u03AC\u03CC"), u"\u0391\u03A9\u0386\u038C");
    EXPECT_EQ(upperCase(u"\u0436\u0451\u0491"), u"\u0416\u0401\u0490");
    EXPECT_EQ(lowerCase(u"\u0160\u017D\u0141\u0178\u0391\u03A9\u0386\u0416\u0401"),
              u"\u0161\u017E\u0142\u00FF\u03B1\u03C9\u03AC\u0436\u0451");
}

TEST(StringTest, BothSigmasHaveOneCapital)
{
    EXPECT_EQ(upperCase(u"\u03C3\u03C2"), u"\u03A3\u03A3");
    EXPECT_EQ(lowerCase(u"\u03A3"), u"\u03C3");
}

TEST(StringTest, SignsWithoutCaseStay)
{
    constexpr StringView Signs = u"0(@[`{\u00D7\u00F7\u00B5\u4E00";
    EXPECT_EQ(upperCase(Signs), Signs);
    EXPECT_EQ(lowerCase(Signs), Signs);
}

TEST(StringTest, CapitalsOfSmallLettersLeadBack)
{
    for (int code = 0; code <= 0xFFFF; ++code) {
        const auto unit = static_cast<char16_t>(code);
        const char16_t small = lowerCase(unit);
        if (small != unit) {
            EXPECT_EQ(upperCase(small), unit) << code;
        }
    }
}

TEST(StringTest, NamesAreEqualWhateverTheirCase)
{
    EXPECT_TRUE(equalsIgnoringCase(u"NoSound", u"NOSOUND"));
    EXPECT_TRUE(equalsIgnoringCase(u"\u00E4", u"\u00C4"));
    EXPECT_FALSE(equalsIgnoringCase(u"NoSound", u"NoSounds"));
    EXPECT_FALSE(equalsIgnoringCase(u"a", u"b"));
}

TEST(StringTest, ComparisonPutsTheShorterTextFirst)
{
    EXPECT_LT(compareIgnoringCase(u"abc", u"ABCD"), 0);
    EXPECT_GT(compareIgnoringCase(u"b", u"A"), 0);
    EXPECT_EQ(compareIgnoringCase(u"abc", u"ABC"), 0);
}

TEST(StringTest, TrimmedLosesBlanksAtBothEndsOnly)
{
    EXPECT_EQ(trimmed(u"  a b  "), u"a b");
    EXPECT_EQ(trimmed(u"\ta"), u"\ta");
    EXPECT_EQ(trimmed(u"   "), u"");
}

TEST(StringTest, ReplacedGoesOnBehindWhatItPutIn)
{
    EXPECT_EQ(replaced(u"a-b-c", u"-", u"--"), u"a--b--c");
    EXPECT_EQ(replaced(u"aaa", u"aa", u"b"), u"ba");
    EXPECT_EQ(replaced(u"abc", u"", u"x"), u"abc");
}

TEST(StringTest, SplitKeepsEmptyPieces)
{
    EXPECT_EQ(split(u",a,,b,", u","), (std::vector<StringView>{u"", u"a", u"", u"b", u""}));
    EXPECT_EQ(split(u"a::b", u"::"), (std::vector<StringView>{u"a", u"b"}));
}

TEST(StringTest, SplitOfNothingGivesNoPiece)
{
    EXPECT_TRUE(split(u"", u",").empty());
    EXPECT_EQ(split(u"a,b", u""), std::vector<StringView>{u"a,b"});
}

} // namespace
} // namespace phial
