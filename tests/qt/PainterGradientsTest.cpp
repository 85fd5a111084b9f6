#include "PainterTest.h"
#include "qt/desktop/GradientImage.h"

#include <QImage>

using namespace phial;
using namespace phial::qt;

namespace
{

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

} // namespace
