#include "periodic/ElementBubble.h"

#include "chem/cls_DataElements.h"
#include "mascot/BalloonPainting.h"
#include "support/HeadlessSession.h"

namespace phial
{

namespace
{

using Side = enm_BallonZipSide;

constexpr PixelRectangle BubblesCell{100, 200, 32, 32};
constexpr PixelSize BubbleSize{80, 60};

// The cell's middle is (116, 216).
TEST(BubblePlace, IsAtTheLowerRightWhereThereIsRoom)
{
    EXPECT_EQ(BubblePlace::beside(BubblesCell, BubbleSize, {213, 293}),
              (BubblePlace{Side::ID_BallonZipSide_LeftTop, {121, 221}}));
}

TEST(BubblePlace, TurnsWhereItWouldReachTheTablesEdge)
{
    EXPECT_EQ(BubblePlace::beside(BubblesCell, BubbleSize, {212, 293}),
              (BubblePlace{Side::ID_BallonZipSide_RightTop, {116 - 5 - 80, 221}}));
    EXPECT_EQ(BubblePlace::beside(BubblesCell, BubbleSize, {213, 292}),
              (BubblePlace{Side::ID_BallonZipSide_LeftBottom, {121, 216 - 5 - 60}}));
    EXPECT_EQ(BubblePlace::beside(BubblesCell, BubbleSize, {212, 292}),
              (BubblePlace{Side::ID_BallonZipSide_RightBottom, {116 - 5 - 80, 216 - 5 - 60}}));
}

class BubbleText : public test::HeadlessSession
{
};

TEST_F(BubbleText, HasFourLinesWithTheirLabels)
{
    cls_DataElements table;
    const auto oxygen = table.CREATE(u"O", u"Sauerstoff*Oxygenium", 8, 15.9);
    EXPECT_EQ(bubbleText(*oxygen),
              u" Name:         Sauerstoff\r Symbol:      O\r Protonen:  8\r mol.Masse: 15,9 g/mol");
}

} // namespace

} // namespace phial
