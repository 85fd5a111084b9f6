#include "term/TermCaret.h"

#include "term/TermPicture.h"

#include <gmock/gmock-matchers.h>
#include <gtest/gtest.h>
#include <random>

namespace phial::test
{
namespace
{

using ::testing::ElementsAre;

/// All that has a rule of its own, and what the rules look at beside it.
constexpr StringView Pieces[] = {u"H", u"O",  u"a",  u"2",  u"10", u"3", u"(",          u")", u")/(",
                                 u"/", u"+",  u"-",  u" ",  u"^",  u"µ", u"#",          u"|", u"~",
                                 u"*", u"~~", u"->", u"<-", u"=^", u"=", u"§",          u",", u".",
                                 u"]", u"<",  u">",  u"ß",  u"€",  u"²", u"\U0001F600", u"2 "};

String randomTerm(std::mt19937& random)
{
    constexpr unsigned LongestPieces = 24;
    String term;
    for (auto count = random() % LongestPieces; count > 0; --count) {
        term += Pieces[random() % std::size(Pieces)];
    }
    return term;
}

/// The places that drawing the term with each index gives.
std::vector<TermCaretPlace> byTrial(const String& term, TEXTALIGN align)
{
    std::vector<TermCaretPlace> places;
    for (std::int32_t index = 0; index <= static_cast<std::int32_t>(term.size()); ++index) {
        TermPicture picture;
        std::int32_t x = 0;
        std::int32_t previous = 0;
        std::int32_t next = 0;
        TermDraw(picture.device(), term, 150, 50, align, false, index, x, previous, next);
        if (next != -1) {
            places.push_back({index, x});
        }
    }
    return places;
}

TermCaret caretOf(StringView term)
{
    TermPicture picture;
    return {picture.device(), term, 0, 0, TEXTALIGN::TopLeft};
}

TEST(TermCaretTest, OneWalkGivesThePlacesOfDrawingWithEachIndex)
{
    std::mt19937 random(62); // NOLINT(cert-msc51-cpp): the same terms every time
    for (int round = 0; round < 240; ++round) {
        const String term = randomTerm(random);
        const auto align = static_cast<TEXTALIGN>(round % 12);
        TermPicture picture;
        const TermCaret caret(picture.device(), term, 150, 50, align);
        EXPECT_THAT(caret.places(), ::testing::ElementsAreArray(byTrial(term, align))) << toUtf8(term);
    }
}

TEST(TermCaretTest, DrawsNothingAndLeavesTheDeviceAlone)
{
    TermPicture picture;
    DrawDevice& device = picture.device();
    device.CurrentX(7);
    device.CurrentY(9);
    device.ForeColor(RGB(1, 2, 3));
    const FontSpec before = device.font();
    const TermCaret caret(device, u"2 §a|b(1)/(2)=^~~*->x^2", 5, 5, TEXTALIGN::BottomCentre);
    EXPECT_EQ(picture.runs(), "");
    EXPECT_EQ(device.CurrentX(), 7);
    EXPECT_EQ(device.CurrentY(), 9);
    EXPECT_EQ(device.ForeColor(), RGB(1, 2, 3));
    EXPECT_EQ(device.font(), before);
}

TEST(TermCaretTest, AChargeBeginsAboveTheIndex)
{
    EXPECT_THAT(caretOf(u"SO4^2-").places(),
                ElementsAre(TermCaretPlace{0, 0}, TermCaretPlace{1, 10}, TermCaretPlace{2, 20},
                            TermCaretPlace{3, 29}, TermCaretPlace{4, 20}, TermCaretPlace{5, 29},
                            TermCaretPlace{6, 38}));
}

TEST(TermCaretTest, AnEmptyTermHasOnePlace)
{
    EXPECT_THAT(caretOf(u"").places(), ElementsAre(TermCaretPlace{0, 0}));
    EXPECT_THAT(TermCaret().places(), ElementsAre(TermCaretPlace{0, 0}));
    EXPECT_EQ(caretOf(u"").indexAt(500), 0);
}

TEST(TermCaretTest, TheNearestPlaceIsTakenAndTheFirstOfEqualOnes)
{
    const TermCaret caret = caretOf(u"HCl");
    EXPECT_EQ(caret.indexAt(-50), 0);
    EXPECT_EQ(caret.indexAt(4.9), 0);
    EXPECT_EQ(caret.indexAt(5), 0) << "as near to 1";
    EXPECT_EQ(caret.indexAt(5.1), 1);
    EXPECT_EQ(caret.indexAt(500), 3);
    EXPECT_EQ(caretOf(u"SO4^2-").indexAt(20), 2) << "4 stands at the same place";
}

TEST(TermCaretTest, WithinSignsAndFractionsThereIsNoPlace)
{
    const auto indices = [](StringView term) {
        std::vector<std::int32_t> all;
        const TermCaret caret = caretOf(term);
        for (const TermCaretPlace& place : caret.places()) {
            all.push_back(place.index);
        }
        return all;
    };
    EXPECT_THAT(indices(u"->a"), ElementsAre(0, 2, 3));
    EXPECT_THAT(indices(u"<-"), ElementsAre(0, 2));
    EXPECT_THAT(indices(u"~~"), ElementsAre(0, 2));
    EXPECT_THAT(indices(u"=^"), ElementsAre(0, 2));
    EXPECT_THAT(indices(u"x(a)/(b)y"), ElementsAre(0, 1, 8, 9));
    EXPECT_THAT(indices(u"\U0001F600a"), ElementsAre(0, 2, 3));
}

TEST(TermCaretTest, AnIndexWithoutAPlaceIsShownAtTheOneBefore)
{
    const TermCaret caret = caretOf(u"x(a)/(b)y");
    EXPECT_EQ(caret.shownAt(1).index, 1);
    for (std::int32_t within = 2; within < 8; ++within) {
        EXPECT_EQ(caret.shownAt(within), (TermCaretPlace{1, 10}));
    }
    EXPECT_EQ(caret.shownAt(8), (TermCaretPlace{8, 20}));
    EXPECT_EQ(caret.shownAt(99).index, 9);
    EXPECT_EQ(caret.shownAt(-1).index, 0);
}

TEST(TermCaretTest, ReachesFromTheLeftmostToTheRightmostPlace)
{
    const TermCaret caret = caretOf(u"C10^2");
    EXPECT_EQ(caret.left(), 0);
    EXPECT_EQ(caret.right(), 28) << "of the index, which is wider than the charge above it";
}

} // namespace
} // namespace phial::test
