#include "mascot/BalloonPainting.h"

#include "core/RuntimeError.h"
#include "support/Raises.h"
#include "visual/DrawingTest.h"

#include <limits>

namespace phial
{

namespace
{

using Side = enm_BallonZipSide;

constexpr BalloonBox Body{10, 20, 60, 40}; // right 69, bottom 59

struct Sitting {
    Side side;
    BalloonBox body; ///< of a whole of 100 by 80
    std::array<PixelPoint, 3> points;
};

// A tail of length 7 with a base of 11.
const auto Sittings = std::to_array<Sitting>({
    {Side::ID_BallonZipSide_LeftTop, {7, 0, 93, 80}, {{{3, 20}, {11, 38}, {11, 27}}}},
    {Side::ID_BallonZipSide_LeftBottom, {7, 0, 93, 80}, {{{3, 59}, {11, 41}, {11, 52}}}},
    {Side::ID_BallonZipSide_RightTop, {0, 0, 93, 80}, {{{76, 20}, {68, 38}, {68, 27}}}},
    {Side::ID_BallonZipSide_RightBottom, {0, 0, 93, 80}, {{{76, 59}, {68, 41}, {68, 52}}}},
    {Side::ID_BallonZipSide_BottomLeft, {0, 0, 100, 73}, {{{10, 66}, {28, 58}, {17, 58}}}},
    {Side::ID_BallonZipSide_BottomRight, {0, 0, 100, 73}, {{{69, 66}, {51, 58}, {62, 58}}}},
    {Side::ID_BallonZipSide_TopLeft, {0, 7, 100, 73}, {{{10, 13}, {28, 21}, {17, 21}}}},
    {Side::ID_BallonZipSide_TopRight, {0, 7, 100, 73}, {{{69, 13}, {51, 21}, {62, 21}}}},
});

TEST(BalloonTail, LeansTowardsItsCorner)
{
    for (const Sitting& sitting : Sittings) {
        const BalloonTail tail{sitting.side, 7, 11};
        EXPECT_EQ(tail.bodyWithin({0, 0, 100, 80}), sitting.body) << static_cast<int>(sitting.side);
        EXPECT_EQ(tail.points(Body), sitting.points) << static_cast<int>(sitting.side);
    }
}

TEST(BalloonTail, WithoutLengthEndsAtTheCornerItself)
{
    const auto points = BalloonTail{Side::ID_BallonZipSide_LeftTop, 0, 11}.points(Body);
    EXPECT_EQ(points->front(), (PixelPoint{10, 20}));
}

TEST(BalloonTail, OnASideThatDoesNotExistTakesNoRoom)
{
    for (const std::int32_t side : {-1, 8, std::numeric_limits<std::int32_t>::min()}) {
        const BalloonTail tail{static_cast<Side>(side), 7, 11};
        EXPECT_EQ(tail.bodyWithin({0, 0, 100, 80}), (BalloonBox{0, 0, 100, 80}));
        EXPECT_EQ(tail.points(Body), std::nullopt);
    }
}

TEST(BalloonBox, RaisesOverflowBeyond32Bits)
{
    constexpr std::int32_t Most = std::numeric_limits<std::int32_t>::max();
    EXPECT_RAISES((BalloonBox{Most, 0, 1, 1}.movedBy(1, 0)), Overflow);
    EXPECT_RAISES((BalloonBox{0, Most, 1, 1}.movedBy(0, 1)), Overflow);
    const BalloonTail tail{Side::ID_BallonZipSide_LeftTop, Most, 1};
    EXPECT_RAISES((tail.bodyWithin({0, 0, -10, 10})), Overflow);
}

class BalloonPainting : public test::DrawingTest
{
protected:
    BalloonLook look{BalloonTail{Side::ID_BallonZipSide_LeftTop, 7, 11}, 0, QBColor(6), QBColor(15)};
};

TEST_F(BalloonPainting, SquareIsABoxAndItsOutline)
{
    look.paint(device, Body);
    EXPECT_EQ(drawn(), "box 10,20 60x40 fill #FFFFFF\n"
                       "box 10,20 60x40 line #808000\n"
                       "polygon 3,20 11,38 11,27 fill #FFFFFF line #808000\n"
                       "box 11,21 58x38 fill #FFFFFF\n");
    EXPECT_EQ(device.FillStyle(), FillStyle::Transparent);
}

TEST_F(BalloonPainting, SquareShadowIsABoxWithTheTailsOutline)
{
    look.fill = QBColor(0);
    look.paintShadow(device, Body);
    EXPECT_EQ(drawn(), "box 10,20 60x40 fill #000000\n"
                       "polygon 3,20 11,38 11,27 fill #000000 line #808000\n");
}

TEST_F(BalloonPainting, RoundIsACrossFourPiesFourLinesAndFourArcs)
{
    look.radius = 5;
    look.tail.reset();
    look.paint(device, Body);
    EXPECT_EQ(drawn(), "box 15,20 50x40 fill #FFFFFF\n"
                       "box 10,25 60x30 fill #FFFFFF\n"
                       "arc 15,25 r5x5 1.571..3.142 pie fill #FFFFFF line #FFFFFF\n"
                       "arc 64,25 r5x5 0..1.571 pie fill #FFFFFF line #FFFFFF\n"
                       "arc 15,54 r5x5 3.142..4.712 pie fill #FFFFFF line #FFFFFF\n"
                       "arc 64,54 r5x5 4.712..6.283 pie fill #FFFFFF line #FFFFFF\n"
                       "line 15,20 - 65,20 #808000\n"
                       "line 10,25 - 10,55 #808000\n"
                       "line 15,59 - 65,59 #808000\n"
                       "line 69,25 - 69,55 #808000\n"
                       "box 15,21 50x38 fill #FFFFFF\n"
                       "box 11,25 58x30 fill #FFFFFF\n"
                       "arc 15,25 r5x5 1.571..3.142 open line #808000\n"
                       "arc 64,25 r5x5 0..1.571 open line #808000\n"
                       "arc 15,54 r5x5 3.142..4.712 open line #808000\n"
                       "arc 64,54 r5x5 4.712..6.283 open line #808000\n");
}

TEST_F(BalloonPainting, RoundShadowIsFilledAgainBehindItsTail)
{
    look.radius = 5;
    look.fill = QBColor(0);
    look.paintShadow(device, Body);
    EXPECT_EQ(drawn(), "box 15,20 50x40 fill #000000\n"
                       "box 10,25 60x30 fill #000000\n"
                       "arc 15,25 r5x5 1.571..3.142 pie fill #000000 line #000000\n"
                       "arc 64,25 r5x5 0..1.571 pie fill #000000 line #000000\n"
                       "arc 15,54 r5x5 3.142..4.712 pie fill #000000 line #000000\n"
                       "arc 64,54 r5x5 4.712..6.283 pie fill #000000 line #000000\n"
                       "polygon 3,20 11,38 11,27 fill #000000 line #808000\n"
                       "box 15,21 50x38 fill #000000\n"
                       "box 11,25 58x30 fill #000000\n");
}

TEST_F(BalloonPainting, ARadiusIsHeldToHalfOfTheBody)
{
    look.radius = 500;
    look.tail.reset();
    look.paintShadow(device, {0, 0, 9, 7});
    EXPECT_EQ(drawn(), "box 3,0 3x7 fill #FFFFFF\n"
                       "box 0,3 9x1 fill #FFFFFF\n"
                       "arc 3,3 r3x3 1.571..3.142 pie fill #FFFFFF line #FFFFFF\n"
                       "arc 5,3 r3x3 0..1.571 pie fill #FFFFFF line #FFFFFF\n"
                       "arc 3,3 r3x3 3.142..4.712 pie fill #FFFFFF line #FFFFFF\n"
                       "arc 5,3 r3x3 4.712..6.283 pie fill #FFFFFF line #FFFFFF\n"
                       "box 3,1 3x5 fill #FFFFFF\n"
                       "box 1,3 7x1 fill #FFFFFF\n");
}

TEST_F(BalloonPainting, ABodyOfOnePixelIsItsBorder)
{
    look.tail.reset();
    look.paint(device, {4, 5, 1, 1});
    EXPECT_EQ(drawn(), "box 4,5 1x1 fill #FFFFFF\n"
                       "box 4,5 1x1 line #808000\n");
}

} // namespace

} // namespace phial
