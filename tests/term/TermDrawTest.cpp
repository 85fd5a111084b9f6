#include "term/TermDraw.h"

#include "support/CaseTable.h"
#include "term/TermPicture.h"

#include <gtest/gtest.h>

namespace phial::test
{
namespace
{

class TermTable : public ::testing::TestWithParam<CaseRow>
{
};

TEST_P(TermTable, IsDrawnAsTold)
{
    const auto& columns = GetParam().columns;
    TermPicture picture;

    const std::int32_t width = TermDraw(picture.device(), columns[0], 0, 0, TEXTALIGN::TopLeft);

    EXPECT_EQ(picture.runs(), toUtf8(columns[2]));
    EXPECT_EQ(std::to_string(width), toUtf8(columns[1]));
}

INSTANTIATE_TEST_SUITE_P(Terms, TermTable, ::testing::ValuesIn(readCaseTable("terms.txt", 3)),
                         caseName<::testing::TestParamInfo<CaseRow>>);

struct Aligned {
    int align;
    const char* runs;
};

class TermAlignment : public ::testing::TestWithParam<Aligned>
{
};

TEST_P(TermAlignment, PlacesTheTermAtItsAnchor)
{
    TermPicture picture;
    TermDraw(picture.device(), u"AB", 100, 50, static_cast<TEXTALIGN>(GetParam().align));
    EXPECT_EQ(picture.runs(), GetParam().runs);
}

std::string alignmentName(const ::testing::TestParamInfo<Aligned>& tested)
{
    const int align = tested.param.align;
    return align < 0 ? "minus" + std::to_string(-align) : std::to_string(align);
}

INSTANTIATE_TEST_SUITE_P(All, TermAlignment,
                         ::testing::Values(Aligned{0, "AB@100,38"}, Aligned{1, "AB@90,38"},
                                           Aligned{2, "AB@80,38"}, Aligned{3, "AB@100,50"},
                                           Aligned{4, "AB@100,50"}, Aligned{5, "AB@90,50"},
                                           Aligned{6, "AB@80,50"}, Aligned{7, "AB@100,50"},
                                           Aligned{8, "AB@100,25"}, Aligned{9, "AB@90,25"},
                                           Aligned{10, "AB@80,25"}, Aligned{11, "AB@100,50"},
                                           Aligned{-5, "AB@100,50"}, Aligned{99, "AB@100,50"}),
                         alignmentName);

TEST(TermDrawTest, AnEmptyTermPrintsNothing)
{
    TermPicture picture;
    EXPECT_EQ(TermDraw(picture.device(), u"", 0, 0), 0);
    EXPECT_EQ(picture.runs(), "");
}

TEST(TermDrawTest, MinusOneStandsForTheCurrentPosition)
{
    TermPicture picture;
    picture.device().CurrentX(30);
    picture.device().CurrentY(40);
    TermDraw(picture.device(), u"A", -1, -1, TEXTALIGN::TopLeft);
    EXPECT_EQ(picture.runs(), "A@30,40");
}

TEST(TermDrawTest, ATermThatBeginsRaisedBeginsAtItsAnchor)
{
    TermPicture picture;
    TermDraw(picture.device(), u"^2H", 100, 0, TEXTALIGN::TopLeft);
    EXPECT_EQ(picture.runs(), "2@100^ H@109");
}

TEST(TermDrawTest, NothingBehindTheTermIsLookedAt)
{
    const StringView more = u"(a)/(b)";
    for (std::size_t length = 1; length < 5; ++length) {
        TermPicture picture;
        TermDraw(picture.device(), more.substr(0, length), 0, 0, TEXTALIGN::TopLeft);
        EXPECT_EQ(picture.runs(), toUtf8(more.substr(0, length)) + "@0");
    }
}

TEST(TermDrawTest, RestoresTheDeviceAndStaysBehindTheTerm)
{
    TermPicture picture;
    DrawDevice& device = picture.device();
    device.ForeColor(RGB(0, 0, 128));
    device.CurrentY(7);
    TermDraw(device, u"2 H§2O", 10, 20, TEXTALIGN::TopLeft);

    EXPECT_EQ(device.ForeColor(), RGB(0, 0, 128));
    EXPECT_EQ(device.FontSize(), TermPicture::Size);
    EXPECT_EQ(device.FontName(), u"Tahoma");
    EXPECT_FALSE(device.FontBold());
    EXPECT_EQ(device.CurrentY(), 7);
    EXPECT_EQ(device.CurrentX(), 10 + 49);
}

TEST(TermDrawTest, AnIndexAtTheEndLeavesTheFontSizeAsItWas)
{
    TermPicture picture;
    TermDraw(picture.device(), u"SO4", 10, 20, TEXTALIGN::TopLeft);
    EXPECT_EQ(picture.device().FontSize(), TermPicture::Size);
}

TEST(TermDrawTest, AFractionAddsNoWidthSoACentredTermStandsOffItsAnchor)
{
    TermPicture picture;
    EXPECT_EQ(TermDraw(picture.device(), u"(a)/(b)", 100, 0, TEXTALIGN::TopCentre), 0);
    EXPECT_EQ(picture.runs(), "a@100,-12 b@100,12 line 100,12.5-110,12.5");
}

TEST(TermDrawTest, AFractionKeepsTheColourItBeganWith)
{
    TermPicture picture;
    TermDraw(picture.device(), u"§(a)/(b)c", 0, 0, TEXTALIGN::TopLeft);
    EXPECT_EQ(picture.runs(), "a@0,-12! b@0,12! line 0,12.5-10,12.5 c@10!");
}

TEST(TermDrawTest, ANumberOfTheNumeratorMakesItBoldAndNothingElse)
{
    TermPicture picture;
    TermDraw(picture.device(), u"(2 a)/(b)c", 0, 0, TEXTALIGN::TopLeft);
    EXPECT_EQ(picture.runs(), "2_a@0,-12* b@0,12 line 0,12.5-30,12.5 c@30");
}

struct Caret {
    std::int32_t x = 0;
    std::int32_t previous = 0;
    std::int32_t next = 0;
    std::string runs;
};

Caret drawWithCaret(StringView term, std::int32_t index)
{
    TermPicture picture;
    Caret caret;
    TermDraw(picture.device(), term, 0, 0, TEXTALIGN::TopLeft, false, index, caret.x, caret.previous,
             caret.next);
    caret.runs = picture.runs();
    return caret;
}

TEST(TermCaretTest, StandsBehindItsCharacterOverTheHeightOfTheDevice)
{
    const Caret caret = drawWithCaret(u"H2O", 2);
    EXPECT_EQ(caret.x, 19);
    EXPECT_EQ(caret.previous, 1);
    EXPECT_EQ(caret.next, 3);
    EXPECT_EQ(caret.runs, "H@0 2@10v line 19,3-19,96 O@19");
}

TEST(TermCaretTest, ZeroStandsBeforeTheFirstCharacter)
{
    const Caret caret = drawWithCaret(u"H2O", 0);
    EXPECT_EQ(caret.x, 0);
    EXPECT_EQ(caret.previous, -1);
    EXPECT_EQ(caret.next, 1);
    EXPECT_TRUE(caret.runs.starts_with("line 0,3-0,96 "));
}

TEST(TermCaretTest, TheLastIndexStandsBehindTheTerm)
{
    EXPECT_EQ(drawWithCaret(u"H2O", 3).x, 29);
    EXPECT_EQ(drawWithCaret(u"", 0).x, 0);
}

TEST(TermCaretTest, IsNotDrawnBeyondTheTerm)
{
    const Caret caret = drawWithCaret(u"H2O", 4);
    EXPECT_EQ(caret.x, -1);
    EXPECT_EQ(caret.previous, -1);
    EXPECT_EQ(caret.next, -1);
}

TEST(TermCaretTest, HasNoPlaceInsideATwoCharacterSignOrAFraction)
{
    EXPECT_EQ(drawWithCaret(u"a->b", 2).x, -1);
    EXPECT_NE(drawWithCaret(u"a->b", 3).x, -1);
    EXPECT_EQ(drawWithCaret(u"(a)/(b)c", 2).next, -1);
    EXPECT_EQ(drawWithCaret(u"(a)/(b)c", 7).x, 10);
}

TEST(TermCaretTest, IsNotDrawnInTheWalksOfAFractionsParts)
{
    EXPECT_EQ(drawWithCaret(u"xy(ab)/(cd)", 1).runs,
              "x@0 line 10,3-10,96 y@10 ab@20,-12 cd@20,12 line 20,12.5-40,12.5");
}

TEST(TermDrawTest, CalculatingOnlyDrawsNothingAndGivesZero)
{
    TermPicture picture;
    std::int32_t x = 5;
    std::int32_t previous = 5;
    std::int32_t next = 5;
    EXPECT_EQ(TermDraw(picture.device(), u"H2O", 0, 0, TEXTALIGN::TopLeft, true, 1, x, previous, next), 0);
    EXPECT_EQ(picture.runs(), "");
    EXPECT_EQ(x, -1);
    EXPECT_EQ(previous, -1);
    EXPECT_EQ(next, -1);
}

String repeated(StringView text, std::size_t count)
{
    String result;
    for (std::size_t i = 0; i < count; ++i) {
        result += text;
    }
    return result;
}

TEST(TermDrawTest, DeepBracketsAndFractionsAreDrawnToTheEnd)
{
    constexpr std::size_t Depth = 10'000;
    TermPicture brackets;
    EXPECT_EQ(TermDraw(brackets.device(), repeated(u"(", Depth), 0, 0, TEXTALIGN::TopLeft),
              10 * static_cast<int>(Depth));

    TermPicture fractions;
    TermDraw(fractions.device(), repeated(u"(", Depth) + u"a" + repeated(u")/(b)", Depth), 0, 0,
             TEXTALIGN::TopLeft);
    EXPECT_EQ(fractions.lines().size(), 1 + 2 * Depth);

    TermPicture denominators;
    TermDraw(denominators.device(), repeated(u"(a)/(", Depth), 0, 0, TEXTALIGN::TopLeft);
    EXPECT_EQ(denominators.lines().size(), 2 * Depth);
}

TEST(TermDrawTest, AnyCharacterIsDrawnSomehow)
{
    String all;
    for (char16_t c = 0; c < 0x250; ++c) {
        all += c;
    }
    TermPicture picture;
    EXPECT_GT(TermDraw(picture.device(), all, 0, 0), 0);
}

} // namespace
} // namespace phial::test
