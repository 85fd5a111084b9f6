#include "dialogs/VariantStrip.h"

#include <gtest/gtest.h>

namespace phial
{

namespace
{

constexpr PixelSize StripRoom{400, 300};

PixelRectangle areaBeside(const PixelRectangle& key, const String& characters = u"abc")
{
    return VariantStrip(characters, key, StripRoom).area();
}

} // namespace

TEST(VariantStripPlace, IsAboveItsKey)
{
    EXPECT_EQ(areaBeside({100, 200, 48, 40}), (PixelRectangle{100, 160, 120, 40}));
    EXPECT_EQ(areaBeside({100, 40, 48, 40}), (PixelRectangle{100, 0, 120, 40})) << "just enough room";
}

TEST(VariantStripPlace, IsBelowAKeyWithoutRoomAbove)
{
    EXPECT_EQ(areaBeside({100, 39, 48, 40}), (PixelRectangle{100, 79, 120, 40}));
}

TEST(VariantStripPlace, StaysWithinTheKeyboard)
{
    EXPECT_EQ(areaBeside({380, 200, 48, 40}), (PixelRectangle{280, 160, 120, 40}));
    EXPECT_EQ(areaBeside({-10, 200, 48, 40}), (PixelRectangle{0, 160, 120, 40}));
    EXPECT_EQ(areaBeside({380, 200, 48, 40}, u"abcdefghijkl").left, 0) << "longer than the keyboard";
}

TEST(VariantStripCells, StandSideBySide)
{
    const VariantStrip strip(u"abc", {100, 200, 48, 40}, StripRoom);
    EXPECT_EQ(strip.cell(0), (PixelRectangle{100, 160, 40, 40}));
    EXPECT_EQ(strip.cell(2), (PixelRectangle{180, 160, 40, 40}));
    EXPECT_EQ(strip.character(2), u'c');
}

TEST(VariantStripCells, AreMetFromEdgeToEdge)
{
    const VariantStrip strip(u"abc", {100, 200, 48, 40}, StripRoom);
    EXPECT_EQ(strip.cellAt({100, 160}), 0U);
    EXPECT_EQ(strip.cellAt({139.9, 199.9}), 0U);
    EXPECT_EQ(strip.cellAt({140, 160}), 1U);
    EXPECT_EQ(strip.cellAt({219.9, 160}), 2U);
    EXPECT_EQ(strip.cellAt({220, 160}), std::nullopt);
    EXPECT_EQ(strip.cellAt({99.9, 160}), std::nullopt);
    EXPECT_EQ(strip.cellAt({100, 159.9}), std::nullopt);
    EXPECT_EQ(strip.cellAt({100, 200}), std::nullopt);
}

TEST(VariantStripChoice, GoesRoundInBothDirections)
{
    VariantStrip strip(u"abc", {100, 200, 48, 40}, StripRoom);
    EXPECT_EQ(strip.chosen(), 0U);
    strip.step(false);
    EXPECT_EQ(strip.chosen(), 2U);
    strip.step(true);
    EXPECT_EQ(strip.chosen(), 0U);
    strip.step(true);
    EXPECT_EQ(strip.chosen(), 1U);
    strip.step(false);
    EXPECT_EQ(strip.chosen(), 0U);
}

} // namespace phial
