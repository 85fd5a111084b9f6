#include "PainterTest.h"

using namespace phial;
using namespace phial::qt;

namespace
{

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

} // namespace
