#include "term/TermLayout.h"

#include "term/TermDraw.h"
#include "term/TermPicture.h"
#include "term/TermRules.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace phial::test
{
namespace
{

TermLayout laidOut(StringView term, TEXTALIGN align = TEXTALIGN::TopLeft)
{
    TermPicture picture;
    return layOutTerm(picture.device(), term, 0, 0, align);
}

std::string drawn(const TermLayout& layout, std::int32_t distance = 0, std::int32_t caret = -1)
{
    TermPicture picture;
    layout.draw(picture.device(), distance, caret);
    return picture.runs();
}

std::size_t textsDrawn(StringView term)
{
    TermPicture picture;
    laidOut(term).draw(picture.device(), 0, -1);
    return picture.lines().size();
}

TEST(TermRulesTest, WhatStandsBeforeAPartIsNotRead)
{
    constexpr StringView Whole = u" +";
    EXPECT_EQ(TermRules().read(Whole, 1).level, ScriptLevel::Normal) << "no charge behind a blank";
    EXPECT_EQ(TermRules().read(Whole.substr(1), 0).level, ScriptLevel::Superscript);
}

TEST(TermLayoutTest, DrawsWhatTermDrawDraws)
{
    for (const StringView term :
         {u"", u"H2O", u"2 H2O", u"SO4^2-", u"Ca(OH)2*5H2O", u"x=^(a+1)/(b|c)~~2|3", u"a§b->(1)/(2§3)c<-d",
          u"2 (1)/(2 a)+|b", u"10^2#^3µ4 Na^+", u"\U0001F600\u0301a"}) {
        for (const auto align : {TEXTALIGN::TopLeft, TEXTALIGN::MiddleCentre, TEXTALIGN::BottomRight}) {
            TermPicture picture;
            TermDraw(picture.device(), term, 0, 0, align);
            EXPECT_EQ(drawn(laidOut(term, align)), picture.runs()) << toUtf8(term);
        }
    }
}

TEST(TermLayoutTest, NeighboursThatLookAlikeAreOneText)
{
    EXPECT_EQ(textsDrawn(u"NaCl"), 1U);
    EXPECT_EQ(textsDrawn(u"Na Cl"), 1U);
    EXPECT_EQ(textsDrawn(u"H12O"), 3U);
    EXPECT_EQ(textsDrawn(u"a§b"), 2U) << "in another colour";
    EXPECT_EQ(textsDrawn(u"aµ#b"), 1U);
    EXPECT_EQ(textsDrawn(u"äµb"), 2U) << "one above the other";
    EXPECT_EQ(textsDrawn(u"a\u0301b"), 3U) << "would look otherwise side by side";
    EXPECT_EQ(textsDrawn(u"a\nb"), 2U) << "the recorder leaves out the line end";
    EXPECT_EQ(textsDrawn(u"~\u02FF"), 1U);
    EXPECT_EQ(textsDrawn(u"~\u0300"), 2U);
}

TEST(TermLayoutTest, GoesToTheRightAsAWhole)
{
    EXPECT_EQ(drawn(laidOut(u"H2(a)/(b)"), 7), "H@7 2@17v a@26,-12 b@26,12 line 26,12.5-36,12.5");
    EXPECT_EQ(drawn(laidOut(u"a|b"), -3, 3), "ab@-3 line 7,25-17,0 line 17,3-17,96");
}

TEST(TermLayoutTest, TheCaretHasTheColourOfItsPlace)
{
    const auto caretLine = [](std::int32_t index) {
        TermPicture picture;
        laidOut(u"a§b").draw(picture.device(), 0, index);
        return picture.lines().back();
    };
    EXPECT_EQ(caretLine(1), "line 10,3 - 10,96 #000000");
    EXPECT_EQ(caretLine(2), "line 10,3 - 10,96 #FF0000");
    EXPECT_EQ(caretLine(3), "line 20,3 - 20,96 #FF0000");
}

TEST(TermLayoutTest, AnIndexWithoutAPlaceHasNoCaret)
{
    const std::string without = drawn(laidOut(u"a->b"));
    EXPECT_EQ(drawn(laidOut(u"a->b"), 0, 2), without);
    EXPECT_EQ(drawn(laidOut(u"a->b"), 0, 9), without);
    EXPECT_EQ(drawn(laidOut(u"a->b"), 0, -1), without);
    EXPECT_EQ(drawn(TermLayout(), 0, 0), "");
}

} // namespace
} // namespace phial::test
