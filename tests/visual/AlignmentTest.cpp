#include "visual/Alignment.h"

#include <gtest/gtest.h>

namespace phial
{

namespace
{

constexpr TextPlace TopLeft{TextSide::Near, TextSide::Near};

TEST(AlignmentTest, CodesCountAlongTheRowsMiddleTopBottom)
{
    EXPECT_EQ(placeOf(TEXTALIGN::MiddleLeft), (TextPlace{TextSide::Near, TextSide::Middle}));
    EXPECT_EQ(placeOf(TEXTALIGN::MiddleCentre), (TextPlace{TextSide::Middle, TextSide::Middle}));
    EXPECT_EQ(placeOf(TEXTALIGN::MiddleRight), (TextPlace{TextSide::Far, TextSide::Middle}));
    EXPECT_EQ(placeOf(TEXTALIGN::TopLeft), TopLeft);
    EXPECT_EQ(placeOf(TEXTALIGN::TopCentre), (TextPlace{TextSide::Middle, TextSide::Near}));
    EXPECT_EQ(placeOf(TEXTALIGN::TopRight), (TextPlace{TextSide::Far, TextSide::Near}));
    EXPECT_EQ(placeOf(TEXTALIGN::BottomLeft), (TextPlace{TextSide::Near, TextSide::Far}));
    EXPECT_EQ(placeOf(TEXTALIGN::BottomCentre), (TextPlace{TextSide::Middle, TextSide::Far}));
    EXPECT_EQ(placeOf(TEXTALIGN::BottomRight), (TextPlace{TextSide::Far, TextSide::Far}));
}

TEST(AlignmentTest, CodesWithoutANameStandAtTheLeftOfTheTop)
{
    for (const std::int32_t code : {3, 7, 11, 12, 13, 100, -1, -4}) {
        EXPECT_EQ(placeOf(static_cast<TEXTALIGN>(code)), TopLeft) << code;
    }
}

TEST(AlignmentTest, FieldsKnowOneDirection)
{
    EXPECT_EQ(sideOf(Alignment::Left), TextSide::Near);
    EXPECT_EQ(sideOf(Alignment::Right), TextSide::Far);
    EXPECT_EQ(sideOf(Alignment::Centre), TextSide::Middle);
    EXPECT_EQ(sideOf(static_cast<Alignment>(9)), TextSide::Near);
}

TEST(AlignmentTest, ASideIsAPlaceAlongALength)
{
    EXPECT_EQ(along(30, TextSide::Near), 0);
    EXPECT_EQ(along(30, TextSide::Middle), 15);
    EXPECT_EQ(along(30, TextSide::Far), 30);
    EXPECT_EQ(along(-4, TextSide::Middle), -2) << "what is too long stands out on both sides";
}

} // namespace

} // namespace phial
