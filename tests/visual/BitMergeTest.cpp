#include "visual/BitMerge.h"

#include <gtest/gtest.h>

namespace phial::test
{

namespace
{

constexpr std::uint32_t White = 0xFFFFFFFF;
constexpr std::uint32_t Black = 0xFF000000;
constexpr std::uint32_t Hole = 0;
constexpr std::uint32_t HalfRed = 0x80800000; // premultiplied
constexpr std::uint32_t Magenta = 0x00FF00FF; // the hole colour

const BitMerge andMask(RasterMode::And, Magenta);
const BitMerge xorSprite(RasterMode::Xor, Magenta);

TEST(BitMerge, WorksBitByBitOnSolidPixels)
{
    EXPECT_EQ(andMask(0xFF12F0CC, 0xFF3C30AA), 0xFF103088);
    EXPECT_EQ(xorSprite(0xFF12F0CC, 0xFF3C30AA), 0xFF2EC066);
}

TEST(BitMerge, SetsASpriteDownOnSolidSoftAndSeeThroughPixelsAlike)
{
    constexpr std::uint32_t Sprite = 0xFF0AC81E;
    for (const std::uint32_t ground : {White, Black, HalfRed, Hole, 0x01010000U, 0xFE123456U}) {
        EXPECT_EQ(xorSprite(andMask(ground, Black), Sprite), Sprite) << std::hex << ground;
    }
}

TEST(BitMerge, LeavesEveryPixelBesideTheSpriteAsItIs)
{
    for (const std::uint32_t ground : {White, Black, HalfRed, Hole, 0x01010000U, 0xFE123456U}) {
        EXPECT_EQ(xorSprite(andMask(ground, White), Black), ground) << std::hex << ground;
    }
}

TEST(BitMerge, GivesAHoleTheHoleColourAndMakesSolidWhatDiffersFromIt)
{
    EXPECT_EQ(xorSprite(Hole, 0xFFFFFFFF), 0xFF00FF00);
    EXPECT_EQ(andMask(Hole, 0xFF0000F0), 0xFF0000F0);
    EXPECT_EQ(andMask(Hole, 0xFFFF12FF), Hole) << "no bit of the hole colour goes";
}

TEST(BitMerge, MakesAHoleOfWhatGetsTheHoleColour)
{
    EXPECT_EQ(xorSprite(0xFF00FF00, 0xFFFFFFFF), Hole);
    EXPECT_EQ(andMask(White, 0xFFFF00FF), Hole);
    EXPECT_EQ(xorSprite(xorSprite(Hole, 0xFF123456), 0xFF123456), Hole);
}

TEST(BitMerge, LeavesHolesAloneWithoutAHoleColour)
{
    const BitMerge plain(RasterMode::Xor, std::nullopt);
    EXPECT_EQ(plain(Hole, White), Hole);
    EXPECT_EQ(plain(0xFF00FF00, White), 0xFFFF00FF);
    EXPECT_EQ(plain(0xFF123456, 0xFF123456), Black) << "black is no hole";
}

TEST(BitMerge, CountsTheColourOfASoftPixelAndNotWhatItsAlphaLeavesOfIt)
{
    EXPECT_EQ(xorSprite(HalfRed, 0xFF010000), 0xFFFE0000);
    EXPECT_EQ(xorSprite(Black, 0x80404040), 0xFF808080) << "drawn softly";
    EXPECT_EQ(xorSprite(Black, 0x03020100), 0xFFAA5500) << "rounded to the nearest";
    EXPECT_EQ(andMask(0x80FF0000, White), 0x80FF0000) << "brighter than its alpha allows: kept";
    EXPECT_EQ(xorSprite(Black, 0x80FF0000), 0xFFFF0000) << "and taken for the brightest";
}

TEST(BitMerge, LeavesPixelsAsTheyAreInOtherModes)
{
    for (const RasterMode mode : {RasterMode::Paint, RasterMode::Copy}) {
        EXPECT_EQ(BitMerge(mode, Magenta)(White, 0xFF123456), White);
        EXPECT_EQ(BitMerge(mode, Magenta)(Hole, 0xFF123456), Hole);
    }
}

} // namespace

} // namespace phial::test
