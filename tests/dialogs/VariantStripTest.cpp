#include "dialogs/VariantStrip.h"

#include <gtest/gtest.h>

namespace phial
{

namespace
{

constexpr PixelSize StripRoom{400, 300};

std::vector<KeyVariant> variantsFrom(const String& characters)
{
    std::vector<KeyVariant> all;
    for (const char16_t character : characters) {
        all.push_back({String(1, character), String(1, character), {}});
    }
    return all;
}

VariantStrip stripOf(const String& characters, const PixelRectangle& key = {100, 200, 48, 40})
{
    return {variantsFrom(characters), key, StripRoom};
}

PixelRectangle areaBeside(const PixelRectangle& key, const String& characters = u"abc")
{
    return stripOf(characters, key).area();
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
}

TEST(VariantStripPlace, HasAsManyRowsAsItNeeds)
{
    EXPECT_EQ(areaBeside({380, 200, 48, 40}, u"abcdefghij"), (PixelRectangle{0, 160, 400, 40})) << "just one";
    EXPECT_EQ(areaBeside({380, 200, 48, 40}, u"abcdefghijk"), (PixelRectangle{160, 120, 240, 80}))
        << "of about the same length";
    EXPECT_EQ(areaBeside({0, 40, 48, 40}, u"abcdefghijk"), (PixelRectangle{0, 80, 240, 80})) << "below";
    EXPECT_EQ(VariantStrip(variantsFrom(u"abcde"), {0, 100, 40, 100}, {120, 260}).area(),
              (PixelRectangle{0, 0, 100, 500}))
        << "with too little room it begins at the top";
    EXPECT_EQ(VariantStrip(variantsFrom(u"abcd"), {0, 70, 40, 100}, {250, 260}).area(),
              (PixelRectangle{0, 60, 200, 200}))
        << "the keyboard's lower edge holds it up";
    EXPECT_EQ(VariantStrip(variantsFrom(u"ab"), {0, 0, 40, 100}, {40, 300}).columns(), 1U)
        << "in less room than a cell";
}

TEST(VariantStripCells, StandSideBySide)
{
    const VariantStrip strip = stripOf(u"abc");
    EXPECT_EQ(strip.cell(0), (PixelRectangle{100, 160, 40, 40}));
    EXPECT_EQ(strip.cell(2), (PixelRectangle{180, 160, 40, 40}));
    EXPECT_EQ(strip.variant(2).text, u"c");
}

TEST(VariantStripCells, AreMetFromEdgeToEdge)
{
    const VariantStrip strip = stripOf(u"abc");
    EXPECT_EQ(strip.cellAt({100, 160}), 0U);
    EXPECT_EQ(strip.cellAt({139.9, 199.9}), 0U);
    EXPECT_EQ(strip.cellAt({140, 160}), 1U);
    EXPECT_EQ(strip.cellAt({219.9, 160}), 2U);
    EXPECT_EQ(strip.cellAt({220, 160}), std::nullopt);
    EXPECT_EQ(strip.cellAt({99.9, 160}), std::nullopt);
    EXPECT_EQ(strip.cellAt({100, 159.9}), std::nullopt);
    EXPECT_EQ(strip.cellAt({100, 200}), std::nullopt);
}

TEST(VariantStripCells, StandBelowEachOtherInRows)
{
    const VariantStrip strip = stripOf(u"abcdefghijk", {0, 200, 48, 40});
    EXPECT_EQ(strip.columns(), 6U);
    EXPECT_EQ(strip.rows(), 2U);
    EXPECT_EQ(strip.cell(5), (PixelRectangle{200, 120, 40, 40}));
    EXPECT_EQ(strip.cell(6), (PixelRectangle{0, 160, 40, 40}));
    EXPECT_EQ(strip.cellAt({199, 199}), 10U);
    EXPECT_EQ(strip.cellAt({0, 160}), 6U);
    EXPECT_EQ(strip.cellAt({201, 199}), std::nullopt) << "there is none behind the last";
}

TEST(VariantStripChoice, GoesUpAndDownWithinItsRows)
{
    VariantStrip strip = stripOf(u"abcdefghijk");
    strip.stepRow(false);
    EXPECT_EQ(strip.chosen(), 0U);
    strip.stepRow(true);
    EXPECT_EQ(strip.chosen(), 6U);
    strip.stepRow(true);
    EXPECT_EQ(strip.chosen(), 6U);
    strip.stepRow(false);
    EXPECT_EQ(strip.chosen(), 0U);
    strip.chosen(5);
    strip.stepRow(true);
    EXPECT_EQ(strip.chosen(), 5U) << "the last row is shorter";
}

TEST(VariantStripChoice, GoesRoundInBothDirections)
{
    VariantStrip strip = stripOf(u"abc");
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
