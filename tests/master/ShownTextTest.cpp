#include "master/ShownText.h"

#include <gtest/gtest.h>

using namespace phial;
using namespace phial::master;

namespace
{

TEST(ShownText, ShowsWhatCannotBeSeenAsItsNumber)
{
    EXPECT_EQ(shownSafely(u"Zoë"), u"Zoë");
    EXPECT_EQ(shownSafely(u"An\u200Bna"), u"An\u2039200B\u203Ana");
    EXPECT_EQ(shownSafely(u"\u202EannA"), u"\u2039202E\u203AannA");
    EXPECT_EQ(shownSafely(u"A\u00ADB\uFEFF\u2066"), u"A\u203900AD\u203AB\u2039FEFF\u203A\u20392066\u203A");
    EXPECT_EQ(shownSafely(u"a\U000E0041b"), u"a\u2039E0041\u203Ab");
    EXPECT_EQ(shownSafely(u"a\tb\x7F"), u"a\u20390009\u203Ab\u2039007F\u203A");
    EXPECT_EQ(shownSafely(String(u"a\xD800", 2)), u"a\u2039D800\u203A");
}

TEST(ShownText, MakesOneBlankOfAllKindsAndKeepsTwoMarks)
{
    EXPECT_EQ(shownSafely(u"A\u00A0B\u3000C"), u"A B C");
    EXPECT_EQ(shownSafely(u"e\u0301\u0302\u0303\u0304x\u0301"), u"e\u0301\u0302x\u0301");
}

TEST(ShownText, LeavesPicturesWhole)
{
    const String heart = u"Anna \u2764\uFE0F";
    const String family = u"\U0001F468\u200D\U0001F469";
    for (const String& name : {heart, family}) {
        EXPECT_EQ(shownSafely(name), name);
        EXPECT_FALSE(isDoubtful(name));
    }
    EXPECT_TRUE(isDoubtful(u"Anna\uFE0F"));
    EXPECT_TRUE(isDoubtful(u"An\u200Dna"));
}

TEST(ShownText, DoubtsNamesWithHiddenSignsAndMixedAlphabets)
{
    for (const StringView name : {u"Anna", u"Zoë", u"Łukasz", u"Анна", u"Ἀννα", u"Jörg-Peter", u"Ben Анна",
                                  u"حسن", u"李", u"Anna 2", u"e\u0301", u"Д'Артаньян"}) {
        EXPECT_FALSE(isDoubtful(name)) << toUtf8(name);
    }
    for (const StringView name :
         {u"\u0410nna", u"Ann\u0430", u"An\u200Bna", u"\u202EannA", u"\u0391nna", u"\uFF21nna",
          u"\U0001D400nna", u"A\u00A0B", u"A\u0301\u0302\u0303", u"\u2800", u"e\u0301\u0430"}) {
        EXPECT_TRUE(isDoubtful(name)) << toUtf8(name);
    }
}

TEST(ShownText, NamesThatLookAlikeHaveOneLook)
{
    const auto alike = [](StringView left, StringView right) { return lookOf(left) == lookOf(right); };
    EXPECT_TRUE(alike(u"Anna", u"\u0410nn\u0430"));
    EXPECT_TRUE(alike(u"Anna", u"An\u200Bna"));
    EXPECT_TRUE(alike(u"Anna", u" Anna\u00A0"));
    EXPECT_TRUE(alike(u"Ida", u"lda"));
    EXPECT_TRUE(alike(u"Otto", u"0tto"));
    EXPECT_TRUE(alike(u"Zoë", u"Zoe\u0308"));
    EXPECT_TRUE(alike(u"\u00C5", u"A\u030A"));
    EXPECT_TRUE(alike(u"Ben", u"\uFF22\uFF45\uFF4E"));
    EXPECT_TRUE(alike(u"AZaz", u"\U0001D400\U0001D419\U0001D41A\U0001D433"));
    EXPECT_TRUE(alike(u"B", u"\U0001D435")) << "in another of their alphabets";
    EXPECT_FALSE(alike(u"Zoë", u"Zoe"));
    EXPECT_FALSE(alike(u"Anna", u"anna"));
    EXPECT_FALSE(alike(u"Ben", u"Bea"));
    EXPECT_EQ(lookOf(u"×÷"), u"×÷");
}

TEST(ShownText, MarksNamesThatPeopleWouldConfuse)
{
    EXPECT_EQ(doubtfulOf({u"Ida", u"Ben", u"lda", u"IDA"}), (std::vector<bool>{true, false, true, false}));
    EXPECT_EQ(doubtfulOf({u"Anna", u"anna", u"Anna"}), (std::vector<bool>{false, false, false}));
    EXPECT_EQ(doubtfulOf({u"Anna", u"\u0410\u043D\u043D\u0430"}), (std::vector<bool>{false, false}));
    EXPECT_EQ(doubtfulOf({u"HOCCOP", u"\u041D\u041E\u0421\u0421\u041E\u0420"}),
              (std::vector<bool>{true, true}));
}

TEST(ShownText, KeepsWritingFromRightToLeftToItself)
{
    EXPECT_EQ(isolated(u"Anna"), u"Anna");
    EXPECT_EQ(isolated(u"Анна 1"), u"Анна 1");
    EXPECT_EQ(isolated(u"\u05D0\u05D1"), u"\u2068\u05D0\u05D1\u2069");
    EXPECT_EQ(isolated(u"A \u0639"), u"\u2068A \u0639\u2069");
    EXPECT_EQ(isolated(u"\U0001E900"), u"\u2068\U0001E900\u2069");
}

TEST(ShownText, CountsColumnsAsTerminalsDo)
{
    EXPECT_EQ(columnsOf(u"Anna"), 4U);
    EXPECT_EQ(columnsOf(u"e\u0301"), 1U);
    EXPECT_EQ(columnsOf(u"李a"), 3U);
    EXPECT_EQ(columnsOf(u"\U0001F600"), 2U);
    EXPECT_EQ(columnsOf(u"\u2068\u05D0\u2069"), 1U);
    EXPECT_EQ(firstColumns(u"Anna", 3), u"Ann");
    EXPECT_EQ(firstColumns(u"Anna", 4), u"Anna");
    EXPECT_EQ(firstColumns(u"a李b", 2), u"a") << "half a sign is none";
    EXPECT_EQ(firstColumns(u"e\u0301\u0301x", 1), u"e\u0301\u0301");
    EXPECT_EQ(firstColumns(u"\U0001F600\U0001F600", 3), u"\U0001F600");
}

} // namespace
