#include "qt/desktop/ShrunkImage.h"

#include <cstdlib>
#include <gtest/gtest.h>
#include <random>

namespace phial::qt
{

namespace
{

QImage imageOfNoise(QSize size, QImage::Format format)
{
    QImage image(size, QImage::Format_ARGB32);
    std::mt19937 random(7);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            image.setPixel(x, y, static_cast<QRgb>(random()));
        }
    }
    return image.convertToFormat(format);
}

/// By which colours differ most.
int distance(QRgb one, QRgb other)
{
    return std::max({std::abs(qRed(one) - qRed(other)), std::abs(qGreen(one) - qGreen(other)),
                     std::abs(qBlue(one) - qBlue(other)), std::abs(qAlpha(one) - qAlpha(other))});
}

QRgb held(const QImage& image, int x, int y)
{
    return reinterpret_cast<const QRgb*>(image.constScanLine(y))[x];
}

/// What the pixels below one sum up to, by their parts.
QRgb averageBelow(const QImage& image, QSize size, int column, int row)
{
    const double stepX = double{1} * image.width() / size.width();
    const double stepY = double{1} * image.height() / size.height();
    const auto part = [](double begin, double end, int pixel) {
        return std::max(0.0, std::min(end, pixel + 1.0) - std::max(begin, double{1} * pixel));
    };
    double sums[4] = {};
    for (int y = 0; y < image.height(); ++y) {
        const double high = part(row * stepY, (row + 1) * stepY, y) / stepY;
        for (int x = 0; x < image.width() && high > 0; ++x) {
            const double share = high * part(column * stepX, (column + 1) * stepX, x) / stepX;
            const QRgb pixel = held(image, x, y);
            sums[0] += share * qRed(pixel);
            sums[1] += share * qGreen(pixel);
            sums[2] += share * qBlue(pixel);
            sums[3] += share * qAlpha(pixel);
        }
    }
    return qRgba(qRound(sums[0]), qRound(sums[1]), qRound(sums[2]), qRound(sums[3]));
}

QImage shrunk(const QImage& image, QSize size)
{
    QImage smaller(size, QImage::Format_ARGB32_Premultiplied);
    shrinkInto(smaller, image);
    return smaller;
}

} // namespace

TEST(ShrunkImage, EachPixelIsTheAverageOfThoseBelowIt)
{
    const QImage image = imageOfNoise({37, 23}, QImage::Format_RGB32);
    for (const QSize size : {QSize(36, 22), QSize(20, 12), QSize(19, 23), QSize(18, 11), QSize(37, 4),
                             QSize(5, 3), QSize(1, 1)}) {
        const QImage small = shrunk(image, size);
        for (int y = 0; y < size.height(); ++y) {
            for (int x = 0; x < size.width(); ++x) {
                EXPECT_LE(distance(held(small, x, y), averageBelow(image, size, x, y)), 3)
                    << size.width() << " by " << size.height() << " at " << x << ", " << y;
            }
        }
    }
}

TEST(ShrunkImage, SeeThroughPixelsAreAveragedAsTheyArePainted)
{
    const QImage image = imageOfNoise({30, 30}, QImage::Format_ARGB32_Premultiplied);
    const QSize size(17, 16);
    const QImage small = shrunk(image, size);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            EXPECT_LE(distance(held(small, x, y), averageBelow(image, size, x, y)), 3);
        }
    }
}

TEST(ShrunkImage, OneColourStaysThat)
{
    for (const QRgb colour : {qRgb(255, 255, 255), qRgb(0, 0, 0), qRgb(1, 128, 254)}) {
        QImage image(64, 48, QImage::Format_RGB32);
        image.fill(colour);
        for (int width = 1; width <= 64; ++width) {
            const QImage small = shrunk(image, {width, 31});
            for (int x = 0; x < width; ++x) {
                ASSERT_EQ(held(small, x, 15), colour) << width;
            }
        }
    }
}

TEST(ShrunkImage, AnImageOfItsSizeStaysAsItIs)
{
    const QImage image = imageOfNoise({9, 7}, QImage::Format_RGB32);
    EXPECT_EQ(shrunk(image, {9, 7}).convertToFormat(QImage::Format_RGB32), image);
}

TEST(ShrunkImage, TakesAnyFormatAndWhatHasNoAlphaIsOpaque)
{
    for (const auto format : {QImage::Format_RGB888, QImage::Format_Grayscale8, QImage::Format_RGB32}) {
        const QImage image = imageOfNoise({9, 7}, format);
        const QImage small = shrunk(image, {5, 5});
        for (int x = 0; x < 5; ++x) {
            EXPECT_EQ(qAlpha(held(small, x, 2)), 255);
            EXPECT_LE(distance(held(small, x, 2),
                               averageBelow(image.convertToFormat(QImage::Format_RGB32), {5, 5}, x, 2)),
                      3);
        }
    }
}

} // namespace phial::qt
