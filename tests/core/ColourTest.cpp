#include "core/Colour.h"

#include "support/Raises.h"

#include <gtest/gtest.h>

namespace phial
{
namespace
{

TEST(ColourTest, RedIsTheLowestByte)
{
    EXPECT_EQ(RGB(1, 2, 3).value, 0x030201U);
    EXPECT_EQ(RGB(-5, 300, 128), RGB(0, 255, 128));
}

TEST(ColourTest, TheClassicTableHasSixteenColours)
{
    EXPECT_EQ(QBColor(0), RGB(0, 0, 0));
    EXPECT_EQ(QBColor(4), RGB(128, 0, 0));
    EXPECT_EQ(QBColor(6), RGB(128, 128, 0));
    EXPECT_EQ(QBColor(7), RGB(192, 192, 192));
    EXPECT_EQ(QBColor(8), RGB(128, 128, 128));
    EXPECT_EQ(QBColor(9), RGB(0, 0, 255));
    EXPECT_EQ(QBColor(11), RGB(0, 255, 255));
    EXPECT_EQ(QBColor(12), RGB(255, 0, 0));
    EXPECT_EQ(QBColor(13), RGB(255, 0, 255));
    EXPECT_EQ(QBColor(15), RGB(255, 255, 255));
    EXPECT_RAISES(QBColor(16), InvalidArgument);
    EXPECT_RAISES(QBColor(-1), InvalidArgument);
}

TEST(ColourTest, ASlotOfTheDesktopHasADefault)
{
    EXPECT_TRUE(SystemColour::Window.isSystem());
    EXPECT_EQ(defaultColour(SystemColour::Window), RGB(255, 255, 255));
    EXPECT_EQ(defaultColour(Colour{0x800000FFU}), RGB(0, 0, 0));
    EXPECT_EQ(defaultColour(RGB(1, 2, 3)), RGB(1, 2, 3));
}

} // namespace
} // namespace phial
