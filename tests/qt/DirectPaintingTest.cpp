#include "DesktopSession.h"
#include "core/RuntimeError.h"
#include "qt/desktop/ControlWidget.h"
#include "visual/Label.h"
#include "visual/PaintSurface.h"
#include "visual/PictureBox.h"
#include "visual/Shape.h"

#include <QImage>
#include <QPainter>

#include <algorithm>
#include <cstdlib>
#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <utility>
#include <vector>

using namespace phial;
using namespace phial::qt;

namespace
{

class DirectPaintingTest : public DesktopSession
{
protected:
    /// A blue page with the widget on it, away from its corner.
    static QImage pageWith(QWidget& widget, double ratio)
    {
        QImage page(QSizeF(QSize(180, 80) * ratio).toSize(), QImage::Format_ARGB32_Premultiplied);
        page.setDevicePixelRatio(ratio);
        page.fill(QColor(200, 220, 255));
        widget.render(&page, QPoint(12, 8), QRegion(), QWidget::DrawChildren);
        return page;
    }

    /// What the control looks like when it is painted directly, and when it has an image.
    static std::pair<QImage, QImage> bothWays(const std::shared_ptr<UserControl>& control, double ratio)
    {
        ControlWidget widget(control);
        widget.resize(widget.sizeHint());
        EXPECT_TRUE(control->surface().isPaintedDirectly());
        const QImage direct = pageWith(widget, ratio);
        EXPECT_TRUE(control->surface().isPaintedDirectly()) << "it gets no image by being painted";
        control->surface().image(ratio);
        EXPECT_FALSE(control->surface().isPaintedDirectly());
        return {direct, pageWith(widget, ratio)};
    }

    /// Smooth edges are blended once directly and twice through an image.
    static constexpr int Rounding = 2;

    /// The largest difference of a colour's part.
    static int largestDifference(const QImage& one, const QImage& other)
    {
        int largest = 0;
        for (int y = 0; y < one.height(); ++y) {
            for (int x = 0; x < one.width(); ++x) {
                const QRgb left = one.pixel(x, y);
                const QRgb right = other.pixel(x, y);
                largest =
                    std::max({largest, std::abs(qRed(left) - qRed(right)),
                              std::abs(qGreen(left) - qGreen(right)), std::abs(qBlue(left) - qBlue(right))});
            }
        }
        return largest;
    }

    static std::shared_ptr<Label> label(const std::function<void(Label&)>& change)
    {
        auto made = makeControl<Label>();
        made->Move(0, 0, 150, 48);
        made->Caption(u"Säure H<sub>2</sub>SO<sub>4</sub><br><b>fett</b>");
        change(*made);
        return made;
    }

    static std::shared_ptr<Shape> shape(ShapeKind kind)
    {
        auto made = makeControl<Shape>();
        made->Move(0, 0, 150, 48);
        made->Kind(kind);
        made->BorderWidth(2);
        made->FillStyle(FillStyle::Solid);
        made->FillColor(RGB(255, 220, 90));
        return made;
    }
};

TEST_F(DirectPaintingTest, ALabelLooksAsItDoesWithAnImage)
{
    const std::vector<std::function<void(Label&)>> changes{
        [](Label&) {}, [](Label& label) { label.SingleLine(true); },
        [](Label& label) { label.Alignment(Alignment::Centre); },
        [](Label& label) {
            label.BackStyle(BackStyle::Opaque);
            label.BackColor(RGB(250, 240, 200));
        }};
    for (const double ratio : {1.0, 2.0}) {
        for (const auto& change : changes) {
            const auto [direct, throughImage] = bothWays(label(change), ratio);
            EXPECT_LE(largestDifference(direct, throughImage), Rounding) << ratio;
        }
    }
}

TEST_F(DirectPaintingTest, AShapeLooksAsItDoesWithAnImage)
{
    for (const double ratio : {1.0, 2.0}) {
        for (const ShapeKind kind : {ShapeKind::Rectangle, ShapeKind::Square, ShapeKind::Oval,
                                     ShapeKind::Circle, ShapeKind::RoundedRectangle}) {
            const auto [direct, throughImage] = bothWays(shape(kind), ratio);
            EXPECT_LE(largestDifference(direct, throughImage), Rounding)
                << static_cast<int>(kind) << " at " << ratio;
        }
    }
}

TEST_F(DirectPaintingTest, EdgesAreCrispWhereAWidgetBeginsBetweenTwoPixels)
{
    const auto box = shape(ShapeKind::Rectangle);
    box->BorderWidth(0);
    ControlWidget widget(box);
    widget.resize(widget.sizeHint());
    const QImage page = pageWith(widget, 1.25); // 12 and 8 are 15 and 10, and with the widget's offset halves
    QImage odd(page.size(), QImage::Format_ARGB32_Premultiplied);
    odd.setDevicePixelRatio(1.25);
    odd.fill(QColor(200, 220, 255));
    widget.render(&odd, QPoint(11, 7), QRegion(), QWidget::DrawChildren); // 13.75, 8.75
    for (int x = 0; x < odd.width(); ++x) {
        const QRgb colour = odd.pixel(x, odd.height() / 3);
        EXPECT_TRUE(colour == QColor(200, 220, 255).rgb() || colour == QColor(255, 220, 90).rgb())
            << x << " " << std::hex << colour;
    }
}

TEST_F(DirectPaintingTest, ABoxPaintsItselfEachTimeWithoutAnImage)
{
    const auto box = makeControl<PictureBox>();
    box->Move(0, 0, 60, 40);
    box->AutoRedraw(false);
    box->PaintsDirectly(true);
    box->transparent(true);
    int painted = 0;
    const Connection connection = box->Paint.connect([&] {
        ++painted;
        box->device().Line(5, 5, 20, 20, RGB(255, 0, 0), LineShape::Filled);
    });
    ControlWidget widget(box);
    widget.resize(60, 40);
    EXPECT_EQ(pageWith(widget, 1).pixel(12 + 10, 8 + 10), qRgb(255, 0, 0));
    EXPECT_EQ(pageWith(widget, 1).pixel(12 + 30, 8 + 30), qRgb(200, 220, 255)) << "what lies below";
    EXPECT_EQ(painted, 2);
}

TEST_F(DirectPaintingTest, WhatIsDrawnUponABoxStays)
{
    const auto box = makeControl<PictureBox>();
    box->Move(0, 0, 60, 40);
    box->AutoRedraw(false);
    box->PaintsDirectly(true);
    ControlWidget widget(box);
    widget.resize(60, 40);
    pageWith(widget, 1);
    box->device().Line(30, 20, 50, 30, RGB(0, 0, 255), LineShape::Filled);
    EXPECT_FALSE(box->surface().isPaintedDirectly());
    box->PaintsDirectly(false);
    box->PaintsDirectly(true);
    EXPECT_TRUE(box->surface().isPaintedDirectly()) << "being told anew, it gives its image back";
}

TEST_F(DirectPaintingTest, ABoxThatKeepsWhatIsDrawnHasAnImage)
{
    const auto box = makeControl<PictureBox>();
    box->PaintsDirectly(true);
    EXPECT_FALSE(box->surface().isPaintedDirectly());
    box->AutoRedraw(false);
    EXPECT_TRUE(box->surface().isPaintedDirectly());
    box->PaintedPart(PixelRectangle{0, 0, 5, 5});
    EXPECT_FALSE(box->surface().isPaintedDirectly()) << "its image shows a part alone";
}

TEST_F(DirectPaintingTest, AnErrorWhilePaintingLeavesNothingBehind)
{
    const auto box = makeControl<PictureBox>();
    box->Move(0, 0, 60, 40);
    box->AutoRedraw(false);
    box->PaintsDirectly(true);
    const Connection connection = box->Paint.connect([] { throw RuntimeError(5, u"broken"); });
    ControlWidget widget(box);
    widget.resize(60, 40);
    int told = 0;
    dispatchGuard()->setReporter([&](const String&) { ++told; });
    pageWith(widget, 1);
    EXPECT_EQ(told, 1);
    EXPECT_TRUE(box->surface().isPaintedDirectly());
}

} // namespace
