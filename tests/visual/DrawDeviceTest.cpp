#include "core/CoreColors.h"
#include "support/Raises.h"
#include "visual/DrawingTest.h"

#include <array>
#include <numbers>

namespace phial::test
{

namespace
{

const Colour Red = RGB(255, 0, 0);

using DrawDeviceShapes = DrawingTest;
using DrawDeviceText = DrawingTest;
using DrawDeviceUnits = DrawingTest;
using DrawDeviceHoles = DrawingTest;
using DrawDevicePictures = DrawingTest;

TEST_F(DrawDeviceShapes, PlainLineNamesItsEndPixelWhichStaysAsItIs)
{
    device.Line(1, 2, 11, 2, Red);
    EXPECT_EQ(drawn(), "line 1,2 - 11,2 #FF0000\n");
}

TEST_F(DrawDeviceShapes, BoxIncludesBothCorners)
{
    device.Line(2, 2, 5, 4, Red, LineShape::Box);
    device.Line(5, 4, 2, 2, Red, LineShape::Filled);
    EXPECT_EQ(drawn(), "box 2,2 4x3 line #FF0000\n"
                       "box 2,2 4x3 fill #FF0000\n");
}

TEST_F(DrawDeviceShapes, LineMovesTheCurrentPointToItsEnd)
{
    device.Line(1, 2, 30, 40);
    EXPECT_EQ(device.CurrentX(), 30);
    EXPECT_EQ(device.CurrentY(), 40);
}

TEST_F(DrawDeviceShapes, ForeColourAndDrawWidthAreThePen)
{
    device.ForeColor(Red);
    device.DrawWidth(3);
    device.Line(0, 0, 9, 0);
    EXPECT_EQ(drawn(), "line 0,0 - 9,0 #FF0000 w3\n");
}

TEST_F(DrawDeviceShapes, CircleIsFilledByFillStyle)
{
    device.Circle(10, 10, 5, Red);
    device.FillStyle(FillStyle::Solid);
    device.FillColor(QBColor(9));
    device.Circle(10, 10, 5, Red);
    EXPECT_EQ(drawn(), "arc 10,10 r5x5 line #FF0000\n"
                       "arc 10,10 r5x5 fill #0000FF line #FF0000\n");
}

TEST_F(DrawDeviceShapes, TwoNegativeAnglesMakeAPie)
{
    device.FillStyle(FillStyle::Solid);
    device.Circle(5, 5, 5, Red, CircleAngles{-1.570795, -3.14159});
    EXPECT_EQ(drawn(), "arc 5,5 r5x5 1.571..3.142 pie fill #000000 line #FF0000\n");
}

TEST_F(DrawDeviceShapes, PositiveAnglesMakeAnOpenArcThatIsNeverFilled)
{
    device.FillStyle(FillStyle::Solid);
    device.Circle(5, 5, 5, Red, CircleAngles{0, 1.570795});
    EXPECT_EQ(drawn(), "arc 5,5 r5x5 0..1.571 open line #FF0000\n");
}

TEST_F(DrawDeviceShapes, ArcRunsOnBeyondAFullTurnWhenItEndsBeforeItsStart)
{
    device.Circle(5, 5, 5, Red, CircleAngles{3, 1});
    EXPECT_EQ(drawn(), "arc 5,5 r5x5 3..7.283 open line #FF0000\n");
}

TEST_F(DrawDeviceShapes, OneNegativeAngleDrawsThatRadiusAlone)
{
    device.Circle(5, 5, 5, Red, CircleAngles{-std::numbers::pi, 6.28318});
    EXPECT_EQ(drawn(), "arc 5,5 r5x5 3.142..6.283 open line #FF0000\n"
                       "line 5,5 - 0,5 #FF0000\n");
}

TEST_F(DrawDeviceShapes, AspectFlattensOrNarrows)
{
    device.Circle(50, 30, 10, Red, std::nullopt, 0.5);
    device.Circle(50, 30, 10, Red, std::nullopt, 2);
    EXPECT_EQ(drawn(), "arc 50,30 r10x5 line #FF0000\n"
                       "arc 50,30 r5x10 line #FF0000\n");
}

TEST_F(DrawDeviceShapes, PolygonIsFilledAndOutlinedInTheForeColour)
{
    device.FillStyle(FillStyle::Solid);
    device.FillColor(Red);
    device.Polygon(std::array{PixelPoint{0, 0}, PixelPoint{8, 4}, PixelPoint{0, 8}});
    EXPECT_EQ(drawn(), "polygon 0,0 8,4 0,8 fill #FF0000 line #000000\n");
}

TEST_F(DrawDeviceShapes, DrawModeMeetsTheColoursBelow)
{
    device.DrawMode(DrawMode::MaskPen);
    device.Line(2, 2, 45, 45, Red, LineShape::Filled);
    device.DrawMode(DrawMode::XorPen);
    device.Line(0, 0, 4, 0, Red);
    EXPECT_EQ(drawn(), "box 2,2 44x44 fill #FF0000 and\n"
                       "line 0,0 - 4,0 #FF0000 xor\n");
}

TEST_F(DrawDeviceShapes, PointGivesTheColourOfAPixel)
{
    device.BackColor(Red);
    device.Cls();
    device.PSet(3, 4, QBColor(9));
    EXPECT_EQ(device.Point(3, 4), QBColor(9));
    EXPECT_EQ(device.Point(4, 4), Red);
    EXPECT_EQ(device.Point(100, 4), std::nullopt);
}

TEST_F(DrawDeviceShapes, GradientPassesThroughTheColourService)
{
    CoreColors::Gradient(device, 0, 0, 32, 32, RGB(255, 255, 255), QBColor(8), 45, 256);
    EXPECT_EQ(drawn(), "gradient 0,0 32x32 #FFFFFF to #808080 45 256\n");
}

TEST_F(DrawDeviceShapes, PictureDevicesSwallowErrorsStatementByStatement)
{
    device.FontSize(0);
    device.DrawWidth(0);
    device.Circle(5, 5, -1);
    device.PaintPicture(nullptr, 0, 0);
    device.PSet(1, 1);
    EXPECT_EQ(device.FontSize(), 8);
    EXPECT_EQ(drawn(), "box 1,1 1x1 fill #000000\n");
}

TEST_F(DrawDeviceShapes, PrintersRaiseErrors)
{
    DrawDevice printer(recorder, DrawErrors::Raise);
    EXPECT_RAISES(printer.FontSize(0), InvalidArgument);
    EXPECT_RAISES(printer.DrawWidth(0.5), InvalidArgument);
    EXPECT_RAISES(printer.Circle(5, 5, -1), InvalidArgument);
    EXPECT_RAISES(printer.Circle(5, 5, 1, Red, CircleAngles{0, 7}), InvalidArgument);
    EXPECT_RAISES(printer.PaintPicture(nullptr, 0, 0), ObjectNotSet);
    EXPECT_RAISES(printer.ScaleMode(static_cast<ScaleUnit>(5)), InvalidArgument);
}

TEST_F(DrawDeviceText, PrintLeavesThePointBehindTheTextAtTheSameLine)
{
    device.CurrentX(10);
    device.CurrentY(20);
    device.Print(u"H2O");
    EXPECT_EQ(device.CurrentX(), 22);
    EXPECT_EQ(device.CurrentY(), 20);
    EXPECT_EQ(drawn(), "text 10,20 \"H2O\" Tahoma 8 #000000\n");
}

TEST_F(DrawDeviceText, PrintLineGoesToTheStartOfTheNextLine)
{
    device.CurrentX(10);
    device.PrintLine(u"a");
    EXPECT_EQ(device.CurrentX(), 0);
    EXPECT_EQ(device.CurrentY(), 10);
}

TEST_F(DrawDeviceText, LineEndsPartLines)
{
    EXPECT_EQ(device.TextWidth(u"ab\r\nabcd\rx\n"), 16);
    EXPECT_EQ(device.TextHeight(u"ab\r\nabcd\rx\n"), 40);
    device.Print(u"ab\r\nc");
    EXPECT_EQ(drawn(), "text 0,0 \"ab\" Tahoma 8 #000000\n"
                       "text 0,10 \"c\" Tahoma 8 #000000\n");
}

TEST_F(DrawDeviceText, FontIsWrittenWithItsStyles)
{
    device.FontName(u"Symbol");
    device.FontSize(12);
    device.FontBold(true);
    device.FontItalic(true);
    device.Print(u"»");
    EXPECT_EQ(drawn(), "text 0,0 \"»\" Symbol 12 bold italic #000000\n");
    EXPECT_EQ(device.TextWidth(u"ab"), 12);
}

TEST_F(DrawDeviceText, MeasuringFollowsEachChangeOfTheFontAndBack)
{
    for (const double size : {8.0, 12.0, 7.2, 8.0, 20.0, 24.0, 28.0, 32.0, 36.0, 8.0}) {
        device.FontSize(size);
        EXPECT_DOUBLE_EQ(device.TextWidth(u"M"), size / 2);
        EXPECT_DOUBLE_EQ(device.TextHeight(u"M"), size * 1.25);
    }
}

TEST_F(DrawDeviceUnits, TwipsPointsAndMillimetresComeDownToPixels)
{
    device.ScaleMode(ScaleUnit::Twips);
    EXPECT_EQ(device.ScaleWidth(), 1500);
    device.Line(150, 300, 450, 300);
    device.ScaleMode(ScaleUnit::Points);
    EXPECT_EQ(device.ScaleHeight(), 45);
    device.Line(7.5, 0, 15, 0);
    device.ScaleMode(ScaleUnit::Millimetres);
    EXPECT_DOUBLE_EQ(device.ScaleWidth(), 100 * 25.4 / 96);
    EXPECT_EQ(drawn(), "line 10,20 - 30,20 #000000\n"
                       "line 10,0 - 20,0 #000000\n");
}

TEST_F(DrawDeviceUnits, TextIsMeasuredInTheUnit)
{
    device.ScaleMode(ScaleUnit::Twips);
    EXPECT_EQ(device.TextWidth(u"H2O"), 180);
    device.Print(u"H2O");
    EXPECT_EQ(device.CurrentX(), 180);
}

TEST_F(DrawDeviceUnits, CurrentPointStaysInPlaceWhenTheUnitChanges)
{
    device.CurrentX(10);
    device.CurrentY(4);
    device.ScaleMode(ScaleUnit::Twips);
    EXPECT_EQ(device.CurrentX(), 150);
    EXPECT_EQ(device.CurrentY(), 60);
}

TEST_F(DrawDeviceUnits, ScaleXAndScaleYConvertBetweenUnits)
{
    EXPECT_EQ(device.ScaleY(3, ScaleUnit::Pixels, ScaleUnit::Twips), 45);
    EXPECT_EQ(device.ScaleX(1440, ScaleUnit::Twips, ScaleUnit::Points), 72);
    EXPECT_DOUBLE_EQ(device.ScaleX(2.54, ScaleUnit::Centimetres, ScaleUnit::Millimetres), 25.4);
}

TEST_F(DrawDeviceHoles, WhatIsDrawnInTheMaskColourBecomesAHole)
{
    device.MaskColor(QBColor(13));
    device.BackColor(QBColor(13));
    device.Cls();
    device.Line(0, 0, 9, 9, Red, LineShape::Filled);
    device.Line(4, 4, 5, 5, QBColor(13), LineShape::Filled);
    EXPECT_EQ(drawn(), "clear cut\n"
                       "box 0,0 10x10 fill #FF0000\n"
                       "box 4,4 2x2 fill cut\n");
    EXPECT_TRUE(device.Image()->isSeeThrough({4, 4}));
    EXPECT_FALSE(device.Image()->isSeeThrough({3, 4}));
    EXPECT_EQ(device.Point(5, 5), std::nullopt);
}

TEST_F(DrawDeviceHoles, TransparentBackgroundIsClearedToAHole)
{
    device.transparent(true);
    device.Cls();
    EXPECT_EQ(drawn(), "clear cut\n");
}

TEST_F(DrawDeviceHoles, CombinedBitsOfTheMaskColourAreThoseOfAColour)
{
    device.MaskColor(QBColor(13));
    device.FillStyle(FillStyle::Solid);
    device.FillColor(QBColor(13));
    device.DrawMode(DrawMode::XorPen);
    device.Line(0, 0, 3, 3, QBColor(13), LineShape::Filled);
    device.PSet(1, 1, QBColor(13));
    device.Circle(9, 9, 2, Red);
    device.DrawMode(DrawMode::MaskPen);
    device.Line(0, 9, 3, 9, QBColor(13));
    EXPECT_EQ(drawn(), "box 0,0 4x4 fill #FF00FF xor holes #FF00FF\n"
                       "box 1,1 1x1 fill #FF00FF xor holes #FF00FF\n"
                       "arc 9,9 r2x2 fill #FF00FF xor holes #FF00FF line #FF0000 xor holes #FF00FF\n"
                       "line 0,9 - 3,9 #FF00FF and holes #FF00FF\n");
    EXPECT_EQ(device.Point(0, 0), QBColor(0)) << "a hole against its own colour";
    EXPECT_EQ(device.Point(1, 1), std::nullopt) << "twice";
    EXPECT_EQ(device.Point(5, 5), std::nullopt);
}

TEST_F(DrawDeviceHoles, AHatchCutsEverySecondDiagonal)
{
    device.MaskColor(QBColor(13));
    device.BackColor(Red);
    device.Cls();
    device.Hatch(10, 20, 4, 3, QBColor(13));
    device.Hatch(40, 20, 4, 3, QBColor(13), HatchStart::BesideCorner);
    device.ScaleMode(ScaleUnit::Twips);
    device.Hatch(15, 15, 30, 30, QBColor(9));
    EXPECT_EQ(drawn(), "clear #FF0000\n"
                       "hatch 10,20 4x3 cut\n"
                       "hatch 40,20 4x3 cut beside\n"
                       "hatch 1,1 2x2 #0000FF\n");
    device.ScaleMode(ScaleUnit::Pixels);
    const auto row = [&](double left, double top) {
        std::string holes;
        for (double x = left - 1; x <= left + 4; ++x) {
            holes += device.Point(x, top) ? '#' : '.';
        }
        return holes;
    };
    EXPECT_EQ(row(10, 19), "######");
    EXPECT_EQ(row(10, 20), "#.#.##");
    EXPECT_EQ(row(10, 21), "##.#.#");
    EXPECT_EQ(row(10, 22), "#.#.##");
    EXPECT_EQ(row(10, 23), "######");
    EXPECT_EQ(row(40, 20), "##.#.#");
    EXPECT_EQ(row(40, 21), "#.#.##");
    EXPECT_EQ(device.Point(2, 2), QBColor(9));
    EXPECT_EQ(device.Point(2, 1), Red);
}

TEST_F(DrawDeviceHoles, AHatchOfNothingIsNotDrawn)
{
    device.Hatch(3, 3, 0, 5, Red);
    device.Hatch(3, 3, 5, -1, Red);
    EXPECT_EQ(drawn(), "");
}

TEST_F(DrawDevicePictures, ACopyTakesItsHolesAlong)
{
    const auto picture = std::make_shared<Picture>(PixelSize{4, 4});
    picture->pixels()[0] = 0xFF123456;
    device.BackColor(Red);
    device.Cls();
    device.PaintPicture(picture, 10, 10);
    EXPECT_EQ(device.Point(10, 10), RGB(0x12, 0x34, 0x56));
    EXPECT_EQ(device.Point(11, 10), Red);
    device.PaintPicture(picture, 10, 10, RasterMode::Copy);
    EXPECT_EQ(device.Point(10, 10), RGB(0x12, 0x34, 0x56));
    EXPECT_EQ(device.Point(11, 10), std::nullopt);
    EXPECT_EQ(device.Point(14, 10), Red);
    EXPECT_EQ(recorder->lines().back(), "image 4x4 from 0,0 4x4 to 10,10 4x4 copy");
}

TEST_F(DrawDevicePictures, AMaskAndItsSpriteAreSeenOnHolesToo)
{
    const auto mask = std::make_shared<Picture>(PixelSize{2, 1});
    mask->pixels()[0] = 0xFF000000;
    mask->pixels()[1] = 0xFFFFFFFF;
    const auto sprite = std::make_shared<Picture>(PixelSize{2, 1});
    sprite->pixels()[0] = 0xFF0AC81E;
    sprite->pixels()[1] = 0xFF000000;
    device.MaskColor(QBColor(13));
    device.Line(0, 0, 9, 9, Red, LineShape::Filled);
    for (const double left : {5.0, 50.0}) {
        device.PaintPicture(mask, left, 5, RasterMode::And);
        device.PaintPicture(sprite, left, 5, RasterMode::Xor);
    }
    EXPECT_EQ(device.Point(5, 5), RGB(0x0A, 0xC8, 0x1E));
    EXPECT_EQ(device.Point(6, 5), Red);
    EXPECT_EQ(device.Point(50, 5), RGB(0x0A, 0xC8, 0x1E));
    EXPECT_EQ(device.Point(51, 5), std::nullopt);
    EXPECT_EQ(recorder->lines().back(), "image 2x1 from 0,0 2x1 to 50,5 2x1 xor holes #FF00FF");
}

TEST_F(DrawDevicePictures, AreDrawnWholeInPartStretchedAndCombined)
{
    const auto picture = std::make_shared<Picture>(PixelSize{16, 8});
    device.PaintPicture(picture, 1, 2);
    device.PaintPicture(picture, 1, 2, 32, 16, RasterMode::And);
    device.PaintPicture(picture, {4, 0, 4, 4}, 0, 0, 4, 4, RasterMode::Xor);
    EXPECT_EQ(drawn(), "image 16x8 from 0,0 16x8 to 1,2 16x8\n"
                       "image 16x8 from 0,0 16x8 to 1,2 32x16 and\n"
                       "image 16x8 from 4,0 4x4 to 0,0 4x4 xor\n");
}

TEST_F(DrawDevicePictures, KeepTheirOwnSizeInEveryUnit)
{
    device.ScaleMode(ScaleUnit::Twips);
    device.PaintPicture(std::make_shared<Picture>(PixelSize{16, 8}), 15, 30);
    EXPECT_EQ(drawn(), "image 16x8 from 0,0 16x8 to 1,2 16x8\n");
}

TEST_F(DrawDevicePictures, ClipIncludesBothCornersUntilItEnds)
{
    device.clip(0, 0, 9, 9);
    device.unclip();
    EXPECT_EQ(drawn(), "clip 0,0 10x10\nclip none\n");
}

} // namespace

} // namespace phial::test
