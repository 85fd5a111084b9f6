#include "qt/desktop/DesktopServices.h"

#include "qt/desktop/PixelRatio.h"

#include <QApplication>
#include <QProxyStyle>

#include <gtest/gtest.h>
#include <limits>

using namespace phial::qt;

namespace
{

TEST(TextHeight, IsSmallForTheTextWithWhichDesktopsCome)
{
    EXPECT_EQ(textHeightOf(11, 96), 16);
    EXPECT_LE(textHeightOf(10, 96), 16);
    EXPECT_LE(textHeightOf(9, 96), 16);
    EXPECT_LE(textHeightOf(13, 72), 16) << "macOS";
    EXPECT_GT(textHeightOf(9, 96), 0);
}

TEST(TextHeight, IsLargeForTextThatTheUserHasEnlarged)
{
    EXPECT_EQ(textHeightOf(9, 120), 17) << "a quarter more dots to an inch";
    EXPECT_GE(textHeightOf(9, 144), 17);
    EXPECT_GE(textHeightOf(12, 96), 17);
    EXPECT_GE(textHeightOf(20, 96), 17);
    EXPECT_EQ(textHeightOf(11.01, 96), 17) << "whatever is larger";
}

TEST(TextHeight, GrowsWithFontAndDotsAlike)
{
    EXPECT_EQ(textHeightOf(22, 96), 32);
    EXPECT_EQ(textHeightOf(11, 192), 32);
    EXPECT_EQ(textHeightOf(5.5, 96), 8);
}

/// A style that has no time for animations.
class StillStyle : public QProxyStyle
{
public:
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* data) const override
    {
        return hint == SH_Widget_Animation_Duration ? 0 : QProxyStyle::styleHint(hint, option, widget, data);
    }
};

TEST(DesktopDisplay, MotionIsReducedWhereTheStyleHasNoTimeForIt)
{
    const QString before = QApplication::style()->name();
    const DesktopDisplay display;
    EXPECT_FALSE(display.ReducesMotion());
    QApplication::setStyle(new StillStyle);
    EXPECT_TRUE(display.ReducesMotion());
    QApplication::setStyle(before);
}

TEST(PixelSizes, AreWhatTheScreenTells)
{
    EXPECT_DOUBLE_EQ(millimetresPerPixel(96), 25.4 / 96);
    EXPECT_DOUBLE_EQ(millimetresPerPixel(254), 0.1);
    EXPECT_DOUBLE_EQ(millimetresPerPixel(60), 25.4 / 60);
    EXPECT_DOUBLE_EQ(millimetresPerPixel(600), 25.4 / 600);
}

TEST(PixelSizes, AreTheUsualOnesWhereTheScreenTellsNonsense)
{
    for (const double dots : {0.0, -96.0, 59.9, 600.1, std::numeric_limits<double>::infinity(),
                              std::numeric_limits<double>::quiet_NaN()}) {
        EXPECT_DOUBLE_EQ(millimetresPerPixel(dots), 25.4 / 96) << dots;
    }
}

TEST(DesktopDisplay, ThePointerIsToldEverywhereButUnderWayland)
{
    ASSERT_FALSE(QGuiApplication::platformName().startsWith("wayland"));
    EXPECT_TRUE(DesktopDisplay().TellsCursor());
}

} // namespace
