#include "media/VoiceFeed.h"

#include <cmath>
#include <gmock/gmock-matchers.h>
#include <gtest/gtest.h>
#include <memory>
#include <numeric>
#include <utility>
#include <vector>

namespace
{

using namespace phial;
using testing::Each;
using testing::ElementsAre;
using testing::FloatNear;

std::shared_ptr<const Sound> soundOf(std::int32_t rate, std::int32_t channels, std::vector<float> samples)
{
    return std::make_shared<const Sound>(Sound{rate, channels, std::move(samples)});
}

std::vector<float> next(VoiceFeed& feed, std::size_t samples, double gain = 1)
{
    std::vector<float> piece(samples, 9);
    feed.fill(piece, gain);
    return piece;
}

TEST(VoiceFeed, GivesTheSamplesPieceByPiece)
{
    VoiceFeed feed(soundOf(44'100, 1, {0.1F, 0.2F, 0.3F}), 44'100, 1);
    EXPECT_EQ(feed.framesLeft(), 3U);
    EXPECT_THAT(next(feed, 2), ElementsAre(0.1F, 0.2F));
    EXPECT_EQ(feed.framesLeft(), 1U);
    EXPECT_THAT(next(feed, 1), ElementsAre(0.3F));
    EXPECT_EQ(feed.framesLeft(), 0U);
}

TEST(VoiceFeed, WritesNoMoreThanThereIs)
{
    VoiceFeed feed(soundOf(44'100, 1, {0.1F}), 44'100, 1);
    std::vector<float> piece(3, 9);
    EXPECT_EQ(feed.fill(piece, 1), 1U);
    EXPECT_THAT(piece, ElementsAre(0.1F, 9.0F, 9.0F));
    EXPECT_EQ(feed.fill(piece, 1), 0U);
}

TEST(VoiceFeed, BringsChannelsToTheDevice)
{
    VoiceFeed widened(soundOf(44'100, 1, {0.5F, -0.5F}), 44'100, 2);
    EXPECT_THAT(next(widened, 4), ElementsAre(0.5F, 0.5F, -0.5F, -0.5F));
    VoiceFeed narrowed(soundOf(44'100, 2, {0.5F, 0.25F, 1, -1}), 44'100, 1);
    EXPECT_THAT(next(narrowed, 2), ElementsAre(0.375F, 0.0F));
    VoiceFeed same(soundOf(44'100, 2, {0.5F, 0.25F}), 44'100, 2);
    EXPECT_THAT(next(same, 2), ElementsAre(0.5F, 0.25F));
    VoiceFeed wide(soundOf(44'100, 2, {0.5F, 0.25F}), 44'100, 4);
    EXPECT_THAT(next(wide, 4), ElementsAre(0.5F, 0.25F, 0.0F, 0.0F));
}

TEST(VoiceFeed, HasItsFirstGainAtOnce)
{
    VoiceFeed feed(soundOf(44'100, 1, {0.5F, -1}), 44'100, 1);
    EXPECT_THAT(next(feed, 2, 0.25), ElementsAre(0.125F, -0.25F));
}

TEST(VoiceFeed, HoldsGainBetween0And1)
{
    VoiceFeed loud(soundOf(44'100, 1, {0.5F}), 44'100, 1);
    EXPECT_THAT(next(loud, 1, 7), ElementsAre(0.5F));
    VoiceFeed silent(soundOf(44'100, 1, {0.5F}), 44'100, 1);
    EXPECT_THAT(next(silent, 1, -7), ElementsAre(0.0F));
}

TEST(VoiceFeed, ReachesAnotherGainEvenlyInTenMilliseconds)
{
    VoiceFeed feed(soundOf(8'000, 1, std::vector<float>(400, 1)), 8'000, 1);
    next(feed, 100, 1);
    const std::vector<float> falling = next(feed, 80, 0);
    for (std::size_t at = 0; at < falling.size(); ++at) {
        EXPECT_NEAR(falling[at], 1 - static_cast<double>(at + 1) / 80, 1e-4) << at;
    }
    EXPECT_THAT(next(feed, 20, 0), Each(FloatNear(0, 1e-4F)));
    const std::vector<float> rising = next(feed, 40, 0.25);
    EXPECT_NEAR(rising[9], 0.125, 1e-4);
    EXPECT_THAT(std::vector<float>(rising.begin() + 20, rising.end()), Each(0.25F));
}

TEST(VoiceFeed, GivesFramesAtTheRateOfTheDevice)
{
    std::vector<float> samples;
    for (int frame = 0; frame < 441; ++frame) {
        samples.push_back(static_cast<float>(std::sin(0.1 * frame)));
    }
    VoiceFeed feed(soundOf(44'100, 1, samples), 48'000, 2);
    EXPECT_EQ(feed.framesLeft(), 480U);
    const std::vector<float> first = next(feed, 400);
    const std::vector<float> second = next(feed, 560);
    EXPECT_EQ(feed.framesLeft(), 0U);
    for (const std::size_t frame : {100U, 199U, 200U, 350U}) {
        const float heard = frame < 200 ? first[2 * frame] : second[2 * (frame - 200)];
        EXPECT_NEAR(heard, std::sin(0.1 * static_cast<double>(frame) * 44'100 / 48'000), 0.001) << frame;
    }
}

} // namespace
