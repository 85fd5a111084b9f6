#include "PainterTest.h"

#include "qt/desktop/PrinterBackend.h"
#include "qt/desktop/PrinterChoice.h"

#include <QFile>
#include <QTemporaryDir>

#include <numbers>

using namespace phial;
using namespace phial::qt;

namespace
{

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
