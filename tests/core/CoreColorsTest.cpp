#include "core/CoreColors.h"

#include <gtest/gtest.h>

namespace phial
{
namespace
{

constexpr Colour Black = RGB(0, 0, 0);
constexpr Colour White = RGB(255, 255, 255);

TEST(CoreColorsTest, ThePercentageIsTheShareOfTheSecondColour)
{
    EXPECT_EQ(CoreColors::Blend(RGB(0, 106, 181), 80, White), RGB(204, 225, 240));
    EXPECT_EQ(CoreColors::Blend(Black, 0, White), Black);
    EXPECT_EQ(CoreColors::Blend(Black, 100, White), White);
    EXPECT_EQ(CoreColors::Blend(Black, 70, RGB(255, 0, 100)), RGB(178, 0, 70));
}

TEST(CoreColorsTest, ThePercentageIsLimited)
{
    EXPECT_EQ(CoreColors::Blend(Black, -20, White), Black);
    EXPECT_EQ(CoreColors::Blend(Black, 120, White), White);
}

TEST(CoreColorsTest, SlotsOfTheDesktopAreMixedByTheirDefaults)
{
    EXPECT_EQ(CoreColors::Blend(SystemColour::Window, 100, SystemColour::WindowText), Black);
    EXPECT_EQ(CoreColors::ToHtml(SystemColour::Window), u"#FFFFFF");
}

TEST(CoreColorsTest, HtmlBeginsWithRed)
{
    EXPECT_EQ(CoreColors::ToHtml(RGB(0, 106, 181)), u"#006AB5");
}

TEST(CoreColorsTest, LighterAndDarkerByAPercentage)
{
    EXPECT_EQ(CoreColors::Lighten(RGB(0, 100, 200), 20), RGB(51, 131, 211));
    EXPECT_EQ(CoreColors::Darken(RGB(0, 100, 200), 20), RGB(0, 80, 160));
    EXPECT_EQ(CoreColors::Lighten(White, 20), White);
    EXPECT_EQ(CoreColors::Darken(Black, 20), Black);
}

} // namespace
} // namespace phial
