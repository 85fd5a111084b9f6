#include "DesktopSession.h"
#include "qt/desktop/GradientImage.h"
#include "qt/desktop/PictureBackend.h"
#include "qt/desktop/PrinterBackend.h"
#include "qt/desktop/PrinterChoice.h"
#include "visual/DrawDevice.h"

#include <QFile>
#include <QImage>
#include <QTemporaryDir>

#include <numbers>

using namespace phial;
using namespace phial::qt;

namespace
{

constexpr std::uint32_t White = 0xFFFFFFFF;
constexpr std::uint32_t Black = 0xFF000000;
constexpr std::uint32_t Hole = 0;
constexpr double Ratios[] = {1, 1.25, 1.5, 2, 3};

class PainterTest : public DesktopSession
{
protected:
    struct Surface {
        PicturePtr picture;
        std::shared_ptr<DrawBackend> backend;
        std::unique_ptr<DrawDevice> device;

        std::uint32_t at(std::size_t column, std::size_t row) const { return picture->at(column, row); }
        std::size_t count(std::uint32_t colour) const
        {
            const auto pixels = std::as_const(*picture).pixels();
            return static_cast<std::size_t>(std::count(pixels.begin(), pixels.end(), colour));
        }
    };

    static Surface white(PixelSize size, double ratio = 1)
    {
        Surface surface = empty(size, ratio);
        surface.backend->clear({QBColor(15)});
        return surface;
    }

    static Surface empty(PixelSize size, double ratio = 1)
    {
        Surface surface;
        surface.backend = visualHost().createSurface(size, ratio);
        surface.picture = surface.backend->picture();
        surface.device = std::make_unique<DrawDevice>(surface.backend);
        return surface;
    }

    static bool same(const Surface& left, const Surface& right)
    {
        const auto one = std::as_const(*left.picture).pixels();
        const auto other = std::as_const(*right.picture).pixels();
        return std::equal(one.begin(), one.end(), other.begin(), other.end());
    }
};

TEST_F(PainterTest, APlainLineLeavesOutItsEndPixel)
{
    const Surface surface = white({10, 10});
    surface.device->Line(2, 3, 6, 3);
    EXPECT_EQ(surface.at(1, 3), White);
    EXPECT_EQ(surface.at(2, 3), Black);
    EXPECT_EQ(surface.at(5, 3), Black);
    EXPECT_EQ(surface.at(6, 3), White);
    EXPECT_EQ(surface.count(Black), 4U);
}

TEST_F(PainterTest, ALineBackwardsLeavesOutItsEndPixelToo)
{
    const Surface surface = white({10, 10});
    surface.device->Line(3, 6, 3, 2);
    EXPECT_EQ(surface.at(3, 6), Black);
    EXPECT_EQ(surface.at(3, 3), Black);
    EXPECT_EQ(surface.at(3, 2), White);
    EXPECT_EQ(surface.count(Black), 4U);
}

TEST_F(PainterTest, AStraightLineOfTwoPixelsIsCrispAndReachesBeyondItsEnds)
{
    const Surface plain = white({8, 8});
    plain.device->ScaleMode(ScaleUnit::Pixels);
    plain.device->DrawWidth(2);
    plain.device->Line(2, 3, 5, 3, QBColor(0));
    EXPECT_EQ(plain.count(Black), 5U * 2);
    EXPECT_EQ(plain.count(White), 64U - 5 * 2);
    EXPECT_EQ(plain.at(1, 2), Black);
    EXPECT_EQ(plain.at(5, 3), Black);
    const Surface back = white({8, 8});
    back.device->ScaleMode(ScaleUnit::Pixels);
    back.device->DrawWidth(2);
    back.device->Line(5, 3, 2, 3, QBColor(0));
    EXPECT_TRUE(same(plain, back));
    for (const double ratio : Ratios) {
        const Surface fine = white({8, 8}, ratio);
        fine.device->ScaleMode(ScaleUnit::Pixels);
        fine.device->DrawWidth(2);
        fine.device->Line(3, 2, 3, 5, QBColor(0));
        const auto wide = static_cast<std::size_t>(std::lround(2 * ratio));
        EXPECT_EQ(fine.count(White) + fine.count(Black), std::as_const(*fine.picture).pixels().size())
            << ratio;
        EXPECT_EQ(fine.count(Black) % wide, 0U) << ratio;
        EXPECT_NEAR(static_cast<double>(fine.count(Black)) / static_cast<double>(wide), 5 * ratio, 1)
            << ratio;
    }
}

TEST_F(PainterTest, ASlantedLineCoversItsFirstPixelAndNotItsLast)
{
    const Surface surface = white({12, 12});
    surface.device->Line(2, 2, 8, 8);
    EXPECT_LT(surface.at(2, 2) & 0xFFU, 0x80U);
    EXPECT_LT(surface.at(7, 7) & 0xFFU, 0x80U);
    EXPECT_GT(surface.at(8, 8) & 0xFFU, 0xC0U);
}

TEST_F(PainterTest, ABoxIncludesBothCorners)
{
    const Surface surface = white({10, 10});
    surface.device->Line(2, 3, 6, 5, std::nullopt, LineShape::Box);
    EXPECT_EQ(surface.at(2, 3), Black);
    EXPECT_EQ(surface.at(6, 5), Black);
    EXPECT_EQ(surface.at(4, 4), White);
    EXPECT_EQ(surface.count(Black), 12U);
}

TEST_F(PainterTest, AFilledBoxIsFilledToItsCorners)
{
    const Surface surface = white({10, 10});
    surface.device->Line(2, 3, 6, 5, std::nullopt, LineShape::Filled);
    EXPECT_EQ(surface.count(Black), 15U);
}

TEST_F(PainterTest, StraightEdgesAreCrispAtEveryRatio)
{
    for (const double ratio : {1.0, 1.25, 1.5, 2.0, 3.0}) {
        const Surface surface = white({21, 21}, ratio);
        surface.device->Line(3, 3, 11, 9, std::nullopt, LineShape::Box);
        surface.device->Line(2, 15, 17, 15);
        EXPECT_EQ(surface.count(Black) + surface.count(White), surface.picture->pixels().size()) << ratio;
    }
}

TEST_F(PainterTest, CutInkLeavesHolesWithoutAFringe)
{
    const Surface surface = white({20, 20});
    surface.device->MaskColor(QBColor(13));
    surface.device->FillStyle(FillStyle::Solid);
    surface.device->FillColor(QBColor(13));
    surface.device->Circle(10, 10, 6, QBColor(13));
    EXPECT_EQ(surface.at(10, 10), Hole);
    EXPECT_EQ(surface.count(Hole) + surface.count(White), 400U);
}

TEST_F(PainterTest, CutTextLeavesHolesWithoutAFringe)
{
    const Surface surface = white({60, 30});
    surface.device->MaskColor(QBColor(13));
    surface.device->ForeColor(QBColor(13));
    surface.device->FontSize(16);
    surface.device->Print(u"H2O");
    EXPECT_GT(surface.count(Hole), 30U);
    EXPECT_EQ(surface.count(Hole) + surface.count(White), surface.picture->pixels().size());
}

TEST_F(PainterTest, TextOnNothingKeepsItsColourInEveryPixel)
{
    const Surface surface = empty({60, 30});
    surface.device->ForeColor(RGB(255, 0, 0));
    surface.device->FontSize(16);
    surface.device->Print(u"H2O");
    std::size_t covered = 0;
    for (const std::uint32_t pixel : std::as_const(*surface.picture).pixels()) {
        const std::uint32_t alpha = pixel >> 24U;
        covered += alpha > 0 ? 1U : 0U;
        EXPECT_EQ((pixel >> 16U) & 0xFFU, alpha); // premultiplied red, and nothing else
        EXPECT_EQ(pixel & 0xFFFFU, 0U);
    }
    EXPECT_GT(covered, 50U);
}

TEST_F(PainterTest, APartCanBeDrawnInTwoWaysAtDoubleRatio)
{
    const Surface once = white({40, 20}, 2);
    once.device->Line(4, 4, 30, 14, QBColor(9), LineShape::Filled);
    const Surface pieces = white({40, 20}, 2);
    for (int row = 4; row <= 14; ++row) {
        pieces.device->Line(4, row, 31, row, QBColor(9));
    }
    EXPECT_TRUE(same(once, pieces));
}

TEST_F(PainterTest, TextSignBySignLooksLikeTextAtOnce)
{
    for (const double ratio : {1.0, 1.5, 2.0}) {
        const Surface whole = white({120, 30}, ratio);
        whole.device->FontSize(12);
        whole.device->Print(u"Ca(OH)2 → ≈ ·");
        const Surface single = white({120, 30}, ratio);
        single.device->FontSize(12);
        for (const char16_t sign : String(u"Ca(OH)2 → ≈ ·")) {
            single.device->Print(String(1, sign));
        }
        EXPECT_TRUE(same(whole, single)) << ratio;
    }
}

TEST_F(PainterTest, APictureComesOutAsItIsAtItsOwnRatio)
{
    const Surface source = white({16, 12}, 2);
    source.device->Circle(8, 6, 4, QBColor(12));
    const Surface copy = white({16, 12}, 2);
    copy.device->PaintPicture(source.picture, 0, 0);
    EXPECT_TRUE(same(source, copy));
}

/// Where a picture lies in memory says nothing of what it shows, nor that it is still the same one.
TEST_F(PainterTest, APictureInTheMemoryOfAnotherIsDrawnAsItself)
{
    const auto plain = [](PixelSize size, std::uint32_t colour) {
        auto picture = std::make_shared<Picture>(size);
        std::ranges::fill(picture->pixels(), colour);
        return picture;
    };
    constexpr std::uint32_t Red = 0xFFFF0000;
    const Surface ground = white({40, 40});
    const auto picture = plain({8, 2}, Black);
    const auto* const memory = picture->pixels().data();
    ground.device->PaintPicture(picture, 0, 0);
    picture->pixels()[9] = Red;
    ground.device->PaintPicture(picture, 0, 0);
    EXPECT_EQ(ground.at(1, 1), Red);
    EXPECT_EQ(ground.count(Black), 15U);

    *picture = *plain({8, 2}, Hole); // now see-through
    ground.device->PaintPicture(picture, 0, 10);
    EXPECT_EQ(ground.at(3, 10), White);
    *picture = *plain({2, 8}, Red); // with other edges
    ground.device->PaintPicture(picture, 20, 0);
    ground.device->PaintPicture(picture, 20, 10, 4, 16); // stretched
    EXPECT_EQ(ground.count(Red), 1U + 16 + 64);
    EXPECT_EQ(picture->pixels().data(), memory) << "all in the same place";
}

TEST_F(PainterTest, APictureMadeMuchSmallerShowsTheMeanOfItsPixels)
{
    const Surface source = white({40, 40});
    for (double row = 0; row < 40; row += 4) {
        source.device->Line(0, row, 40, row);
    }
    const Surface ground = white({10, 10});
    ground.device->PaintPicture(source.picture, 0, 0, 10, 10);
    for (std::size_t row = 0; row < 10; ++row) {
        EXPECT_NEAR(ground.at(5, row) & 0xFFU, 191, 2) << row; // one row of four is black
    }
}

TEST_F(PainterTest, APartMadeMuchSmallerTakesInNothingBesideIt)
{
    const Surface source = white({60, 40});
    source.device->Line(40, 0, 60, 39, QBColor(0), LineShape::Filled);
    const Surface ground = white({10, 10});
    ground.device->PaintPicture(source.picture, PixelRectangle{0, 0, 40, 40}, 0, 0, 10, 10);
    EXPECT_EQ(ground.count(White), 100U);
}

TEST_F(PainterTest, APictureIsDrawnInTheVersionThatFitsTheDevice)
{
    const auto plain = [](Colour colour, double ratio) {
        const Surface surface = empty({8, 8}, ratio);
        surface.backend->clear({colour});
        return surface.picture;
    };
    const PicturePtr twice = plain(QBColor(10), 2);
    const PicturePtr thrice = plain(QBColor(12), 3);
    const auto shownAt = [&](double ratio, double side, RasterMode mode) {
        const PicturePtr picture = plain(QBColor(9), 1);
        picture->finer([&](int wanted) { return wanted == 2 ? twice : thrice; });
        const Surface ground = white({40, 40}, ratio);
        ground.device->PaintPicture(picture, 0, 0, side, side, mode);
        return ground.device->Point(3, 3);
    };
    EXPECT_EQ(shownAt(1, 8, RasterMode::Paint), QBColor(9));
    EXPECT_EQ(shownAt(2, 4, RasterMode::Paint), QBColor(9));
    EXPECT_EQ(shownAt(2, 8, RasterMode::Paint), QBColor(10));
    EXPECT_EQ(shownAt(1, 16, RasterMode::Copy), QBColor(10));
    EXPECT_EQ(shownAt(3, 8, RasterMode::Paint), QBColor(12));
    EXPECT_EQ(shownAt(1.5, 40, RasterMode::Paint), QBColor(12));
    EXPECT_EQ(shownAt(3, 8, RasterMode::And), QBColor(9)) << "bits of masks and sprites belong together";
}

TEST_F(PainterTest, AndWithTheMaskThenXorWithTheSpriteShowsTheSprite)
{
    const Surface mask = white({8, 8});
    mask.device->Line(2, 2, 5, 5, QBColor(0), LineShape::Filled);
    const Surface sprite = empty({8, 8});
    sprite.backend->clear({QBColor(0)});
    sprite.device->Line(2, 2, 5, 5, RGB(10, 200, 30), LineShape::Filled);

    const Surface ground = white({8, 8});
    ground.device->PaintPicture(mask.picture, 0, 0, RasterMode::And);
    EXPECT_EQ(ground.at(3, 3), Black);
    ground.device->PaintPicture(sprite.picture, 0, 0, RasterMode::Xor);
    EXPECT_EQ(ground.at(3, 3), 0xFF0AC81EU);
    EXPECT_EQ(ground.at(0, 0), White);
}

TEST_F(PainterTest, ASpriteIsSeenOnEveryGroundAtEveryRatio)
{
    const Surface mask = white({8, 8});
    mask.device->Line(2, 2, 5, 5, QBColor(0), LineShape::Filled);
    const Surface sprite = empty({8, 8});
    sprite.backend->clear({QBColor(0)});
    sprite.device->Line(2, 2, 5, 5, RGB(10, 200, 30), LineShape::Filled);
    for (const double ratio : Ratios) {
        const Surface ground = empty({40, 20}, ratio);
        ground.device->MaskColor(QBColor(13));
        ground.device->FillStyle(FillStyle::Solid);
        ground.device->FillColor(QBColor(11));
        ground.device->Circle(20, 10, 7, QBColor(11)); // with soft edges
        const auto soft = [](std::uint32_t pixel) { return pixel >> 24U != 0 && pixel >> 24U != 0xFFU; };
        const auto pixels = std::as_const(*ground.picture).pixels();
        ASSERT_TRUE(std::any_of(pixels.begin(), pixels.end(), soft));
        for (double left = 2; left < 32; left += 3) {
            ground.device->PaintPicture(mask.picture, left, 6, RasterMode::And);
            ground.device->PaintPicture(sprite.picture, left, 6, RasterMode::Xor);
            for (const double x : {3.0, 4.0}) {
                EXPECT_EQ(ground.device->Point(left + x, 10), RGB(10, 200, 30)) << ratio << " at " << left;
            }
        }
        EXPECT_EQ(ground.device->Point(2, 6), std::nullopt) << "the sprite's corner on a hole";
    }
}

TEST_F(PainterTest, XorTwiceBringsAHoleBack)
{
    const Surface surface = empty({20, 20});
    surface.device->MaskColor(QBColor(13));
    surface.device->DrawMode(DrawMode::XorPen);
    surface.device->FillStyle(FillStyle::Solid);
    for (int times = 0; times < 2; ++times) {
        surface.device->Line(2, 2, 17, 17, QBColor(15), LineShape::Filled);
        EXPECT_EQ(surface.at(5, 5), times == 0 ? 0xFF00FF00U : Hole);
        surface.device->Circle(10, 10, 5, QBColor(9));
    }
    EXPECT_EQ(surface.count(Hole), 400U);
}

TEST_F(PainterTest, ACopyTakesItsHolesAlongAtEveryRatio)
{
    for (const double ratio : Ratios) {
        const Surface source = empty({10, 10}, ratio);
        source.device->Line(0, 0, 4, 9, QBColor(12), LineShape::Filled);
        const Surface ground = white({30, 20}, ratio);
        ground.device->PaintPicture(source.picture, 8, 4, RasterMode::Copy);
        EXPECT_EQ(ground.device->Point(8, 4), QBColor(12)) << ratio;
        EXPECT_EQ(ground.device->Point(12, 13), QBColor(12)) << ratio;
        EXPECT_EQ(ground.device->Point(14, 13), std::nullopt) << ratio;
        EXPECT_EQ(ground.device->Point(17, 4), std::nullopt) << ratio;
        EXPECT_EQ(ground.device->Point(18, 13), QBColor(15)) << ratio;
        ground.device->Circle(25, 10, 3, QBColor(12)); // paints on as before
        EXPECT_EQ(ground.device->Point(25, 10), QBColor(15)) << ratio;
    }
}

TEST_F(PainterTest, APartPutBackWhereItWasLeavesNoTrace)
{
    for (const double ratio : {1.0, 1.25, 1.5, 1.75, 2.0}) {
        const Surface drawn = white({40, 40}, ratio);
        drawn.device->ScaleMode(ScaleUnit::Pixels);
        for (int line = 1; line < 40; line += 3) {
            drawn.device->Line(line, 0, line, 40, QBColor(0));
            drawn.device->Line(0, line, 40, line, QBColor(12));
        }
        const PicturePtr before = drawn.picture->copy();
        const auto held = std::as_const(*before).pixels();
        for (int place = 3; place < 20; ++place) {
            drawn.device->Line(place, place, place + 15, place + 15, QBColor(9), LineShape::Filled);
            drawn.device->PaintPicture(before, {double(place), double(place), 16, 16}, place, place, 16, 16);
            EXPECT_TRUE(std::ranges::equal(std::as_const(*drawn.picture).pixels(), held))
                << ratio << ' ' << place;
        }
    }
}

TEST_F(PainterTest, AStretchedCopyKeepsSoftEdges)
{
    const Surface source = empty({10, 10});
    source.device->Line(0, 0, 4, 9, QBColor(12), LineShape::Filled);
    const Surface ground = white({40, 40}, 1.5);
    ground.device->PaintPicture(source.picture, 0, 0, 30, 30, RasterMode::Copy);
    EXPECT_EQ(ground.device->Point(2, 2), QBColor(12));
    EXPECT_EQ(ground.device->Point(27, 27), std::nullopt);
    const std::uint32_t edge = ground.at(22, 20);
    EXPECT_GT(edge >> 24U, 0U);
    EXPECT_LT(edge >> 24U, 0xFFU);
}

TEST_F(PainterTest, AHatchCutsHalfOfTheDevicesPixelsAtEveryRatio)
{
    for (const double ratio : Ratios) {
        for (const HatchStart start : {HatchStart::AtCorner, HatchStart::BesideCorner}) {
            const Surface surface = white({60, 40}, ratio);
            surface.device->MaskColor(QBColor(13));
            surface.device->Hatch(5, 3, 41, 31, QBColor(13), start);
            const auto area = std::round(46 * ratio) - std::round(5 * ratio);
            const auto pixels = area * (std::round(34 * ratio) - std::round(3 * ratio));
            EXPECT_NEAR(static_cast<double>(surface.count(Hole)) / pixels, 0.5, 0.001) << ratio;
            EXPECT_EQ(surface.count(Hole) + surface.count(White), surface.picture->pixels().size());
            const auto left = static_cast<std::size_t>(std::lround(5 * ratio));
            const auto top = static_cast<std::size_t>(std::lround(3 * ratio));
            const bool atCorner = start == HatchStart::AtCorner;
            EXPECT_EQ(surface.at(left, top), atCorner ? Hole : White) << ratio;
            EXPECT_EQ(surface.at(left + 1, top), atCorner ? White : Hole) << ratio;
            EXPECT_EQ(surface.at(left + 1, top + 1), surface.at(left, top)) << "along the diagonal";
            EXPECT_EQ(surface.at(left + 20, top + 20), surface.at(left, top)) << ratio;
            EXPECT_EQ(surface.at(left - 1, top), White) << ratio;
            EXPECT_EQ(surface.at(left, top - 1), White) << ratio;
        }
    }
}

TEST_F(PainterTest, AHatchInAColourLetsTheOtherHalfBe)
{
    const Surface surface = white({20, 20}, 1.5);
    surface.device->Hatch(0, 0, 20, 20, QBColor(0));
    EXPECT_EQ(surface.count(Black), 450U);
    EXPECT_EQ(surface.count(White), 450U);
    surface.device->Hatch(0, 0, 20, 20, QBColor(0), HatchStart::BesideCorner);
    EXPECT_EQ(surface.count(Black), 900U);
}

TEST_F(PainterTest, AHatchKeepsToTheClip)
{
    const Surface surface = white({20, 20});
    surface.device->MaskColor(QBColor(13));
    surface.device->clip(5, 5, 9, 9);
    surface.device->Hatch(0, 0, 20, 20, QBColor(13));
    EXPECT_EQ(surface.count(Hole), 13U);
    EXPECT_EQ(surface.at(5, 5), Hole);
}

TEST_F(PainterTest, BitwiseInkLeavesSeeThroughPixelsSeeThroughWithoutAMaskColour)
{
    const Surface surface = empty({8, 8});
    surface.device->DrawMode(DrawMode::XorPen);
    surface.device->Line(0, 0, 7, 7, QBColor(15), LineShape::Filled);
    EXPECT_EQ(surface.count(Hole), 64U);
}

TEST_F(PainterTest, XorTwiceBringsTheGroundBack)
{
    const Surface surface = white({20, 20});
    surface.device->Circle(10, 10, 7, QBColor(12));
    const Surface before = white({20, 20});
    before.device->PaintPicture(surface.picture, 0, 0);
    surface.device->DrawMode(DrawMode::XorPen);
    surface.device->Circle(9, 9, 5, QBColor(9));
    EXPECT_FALSE(same(surface, before));
    surface.device->Circle(9, 9, 5, QBColor(9));
    EXPECT_TRUE(same(surface, before));
}

TEST_F(PainterTest, ClippingKeepsEverythingInside)
{
    const Surface surface = white({20, 20});
    surface.device->clip(5, 5, 9, 9);
    surface.device->Line(0, 0, 19, 19, QBColor(0), LineShape::Filled);
    surface.device->unclip();
    EXPECT_EQ(surface.count(Black), 25U);
    EXPECT_EQ(surface.at(5, 5), Black);
    EXPECT_EQ(surface.at(10, 10), White);
}

TEST_F(PainterTest, AGradientHasItsColoursAtBothEndsAndNoSeams)
{
    const Surface surface = white({40, 6});
    surface.device->Gradient(0, 0, 40, 6, RGB(0, 0, 0), RGB(200, 0, 0), 0, 20);
    EXPECT_EQ(surface.at(0, 3), Black);
    EXPECT_EQ(surface.at(39, 3), 0xFFC80000U);
    EXPECT_EQ(surface.count(White), 0U);
    for (std::size_t column = 1; column < 40; ++column) {
        EXPECT_GE(surface.at(column, 2), surface.at(column - 1, 2));
    }
}

TEST_F(PainterTest, AGradientLooksTheSameAtEveryRatio)
{
    for (const double ratio : Ratios) {
        const Surface surface = white({40, 40}, ratio);
        surface.device->Gradient(4, 4, 32, 32, RGB(255, 255, 255), RGB(55, 0, 0), 45, 256);
        const std::size_t edge = surface.picture->columns();
        const auto first = static_cast<std::size_t>(std::lround(4 * ratio));
        const auto last = static_cast<std::size_t>(std::lround(36 * ratio)) - 1;
        const auto red = [&](std::size_t x, std::size_t y) { return (surface.at(x, y) >> 16U) & 0xFFU; };
        EXPECT_GE(red(first, first), 250U) << ratio;
        EXPECT_LE(red(last, last), 60U) << ratio;
        EXPECT_NEAR(red(first, last), 155, 4) << ratio;
        EXPECT_EQ(red(first, last), red(last, first)) << "across the direction: " << ratio;
        EXPECT_EQ(red(first + 3, last - 3), red(first, last)) << ratio;
        EXPECT_EQ(surface.at(first - 1, first), White) << ratio;
        EXPECT_EQ(surface.at(edge - 1, edge - 1), White) << ratio;
    }
}

TEST_F(PainterTest, AGradientHasAsManyBandsAsItIsGiven)
{
    const Surface surface = white({40, 4});
    surface.device->Gradient(0, 0, 40, 4, RGB(0, 0, 0), RGB(255, 0, 0), 0, 4);
    for (std::size_t column = 0; column < 40; ++column) {
        EXPECT_EQ(surface.at(column, 1), 0xFF000000U | (static_cast<std::uint32_t>(column / 10 * 85) << 16U))
            << column;
    }
    surface.device->Gradient(0, 0, 40, 4, RGB(0, 0, 0), RGB(255, 0, 0), 180, 1);
    EXPECT_EQ(surface.count(Black), 160U) << "one band has the first colour";
    surface.device->Gradient(0, 0, 40, 4, RGB(0, 0, 0), RGB(255, 0, 0), 180, 2000000000);
    EXPECT_GT(surface.at(0, 0), surface.at(39, 0)) << "from right to left";
}

TEST_F(PainterTest, AGradientDrawnAgainWithAnotherTraitIsAnotherOne)
{
    const auto drawn = [](double width, Colour from, Colour to, double angle, int steps) {
        Surface surface = white({40, 40});
        surface.device->Gradient(0, 0, width, 30, from, to, angle, steps);
        return surface;
    };
    const auto usual = [&] { return drawn(30, QBColor(9), QBColor(12), 45, 16); };
    const Surface first = usual();
    EXPECT_TRUE(same(first, usual())) << "kept";
    EXPECT_FALSE(same(first, drawn(31, QBColor(9), QBColor(12), 45, 16)));
    EXPECT_FALSE(same(first, drawn(30, QBColor(10), QBColor(12), 45, 16)));
    EXPECT_FALSE(same(first, drawn(30, QBColor(9), QBColor(10), 45, 16)));
    EXPECT_FALSE(same(first, drawn(30, QBColor(9), QBColor(12), 90, 16)));
    EXPECT_FALSE(same(first, drawn(30, QBColor(9), QBColor(12), 45, 17)));
    EXPECT_TRUE(same(first, usual()));
}

TEST_F(PainterTest, AGradientIsMadeOnceForSeveralDrawings)
{
    const Gradient gradient{QSize(30, 30), qRgb(0, 0, 255), qRgb(255, 0, 0), 45, 16};
    const QImage first = gradientImage(gradient);
    EXPECT_EQ(gradientImage(gradient).constBits(), first.constBits());
    Gradient other = gradient;
    other.steps = 17;
    EXPECT_NE(gradientImage(other).constBits(), first.constBits());
    EXPECT_EQ(gradientImage(gradient).constBits(), first.constBits());
}

TEST_F(PainterTest, AGradientKeepsToTheClip)
{
    const Surface surface = white({40, 40});
    surface.device->clip(10, 10, 19, 19);
    surface.device->Gradient(0, 0, 40, 40, QBColor(0), RGB(40, 0, 0), 45, 8);
    EXPECT_EQ(surface.count(White), 1500U);
}

TEST_F(PainterTest, APageHasTheSameBandsAsAPicture)
{
    const GradientBands bands({{40, 20}, qRgb(0, 0, 0), qRgb(200, 100, 50), 30, 8});
    const QImage image = gradientImage({{40, 20}, qRgb(0, 0, 0), qRgb(200, 100, 50), 30, 8});
    ASSERT_EQ(bands.count(), 8);
    EXPECT_EQ(bands.colour(0), qRgb(0, 0, 0));
    EXPECT_EQ(bands.colour(7), qRgb(200, 100, 50));
    for (int y = 0; y < 20; ++y) {
        for (int x = 0; x < 40; ++x) {
            const QPointF place(x + 0.5 - 20, y + 0.5 - 10);
            const double distance = QPointF::dotProduct(place, bands.direction());
            const int band = bands.bandAt(distance);
            EXPECT_EQ(image.pixel(x, y), bands.colour(band));
            EXPECT_GE(distance, bands.start(band) - 1e-6);
            EXPECT_LE(distance, band == 7 ? 99 : bands.start(band + 1) + 1e-6);
        }
    }
}

TEST_F(PainterTest, PointReadsWhatWasDrawn)
{
    const Surface surface = empty({8, 8}, 2);
    surface.device->PSet(3, 4, RGB(1, 2, 3));
    EXPECT_EQ(surface.device->Point(3, 4), RGB(1, 2, 3));
    EXPECT_EQ(surface.device->Point(0, 0), std::nullopt);
    EXPECT_EQ(surface.device->Point(-1, 99), std::nullopt);
}

TEST_F(PainterTest, AnArcGoesCounterClockwiseFromThreeOClock)
{
    const Surface surface = white({41, 41});
    surface.device->Circle(20, 20, 15, QBColor(0), CircleAngles{0.1, std::numbers::pi / 2});
    EXPECT_NE(surface.at(31, 9), White);  // upper right
    EXPECT_EQ(surface.at(31, 31), White); // lower right
    EXPECT_EQ(surface.at(9, 9), White);   // upper left
}

TEST_F(PainterTest, PagesOfADocumentAreWritten)
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("page.pdf"));
    {
        const auto printer = pdfFile(file, {});
        const auto backend = std::make_shared<PrinterBackend>(*printer, std::make_shared<QtTextMetrics>());
        DrawDevice device(backend, DrawErrors::Raise);
        device.ScaleMode(ScaleUnit::Millimetres);
        EXPECT_GT(device.ScaleWidth(), 150);
        EXPECT_LT(device.ScaleWidth(), 220);
        device.Print(u"Urkunde");
        device.NewPage();
        device.Line(10, 10, 50, 10);
        device.EndDoc();
    }
    QFile pdf(file);
    ASSERT_TRUE(pdf.open(QIODevice::ReadOnly));
    const QByteArray content = pdf.readAll();
    EXPECT_TRUE(content.startsWith("%PDF"));
    EXPECT_TRUE(content.contains("/Count 2"));
}

} // namespace
