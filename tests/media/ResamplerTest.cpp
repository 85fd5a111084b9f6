#include "media/Resampler.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <gtest/gtest.h>
#include <numbers>
#include <vector>

namespace
{

using phial::Resampler;

std::vector<float> tone(double frequency, std::int32_t rate, std::size_t frames)
{
    std::vector<float> samples(frames);
    for (std::size_t at = 0; at < frames; ++at) {
        samples[at] =
            static_cast<float>(std::sin(2 * std::numbers::pi * frequency * static_cast<double>(at) / rate));
    }
    return samples;
}

std::vector<float> resampled(const std::vector<float>& samples, std::int32_t from, std::int32_t to)
{
    const Resampler resampler(from, to);
    std::vector<float> result(resampler.frames(samples.size()));
    for (std::size_t at = 0; at < result.size(); ++at) {
        result[at] = resampler.sample(samples, 1, 0, at);
    }
    return result;
}

/// The greatest difference between the middles of two sounds, for there is silence around both.
double difference(const std::vector<float>& left, const std::vector<float>& right)
{
    const std::size_t size = std::min(left.size(), right.size());
    double greatest = 0;
    for (std::size_t at = size / 4; at < 3 * size / 4; ++at) {
        greatest = std::max(greatest, std::abs(static_cast<double>(left[at]) - right[at]));
    }
    return greatest;
}

TEST(Resampler, LeavesEachSampleAsItIsAtTheSameRate)
{
    const std::vector<float> samples{0.5F, -1, 0.25F};
    EXPECT_EQ(resampled(samples, 44'100, 44'100), samples);
}

TEST(Resampler, GivesAsManyFramesAsLastAsLong)
{
    EXPECT_EQ(Resampler(44'100, 48'000).frames(44'100), 48'000U);
    EXPECT_EQ(Resampler(48'000, 44'100).frames(48'000), 44'100U);
    EXPECT_EQ(Resampler(44'100, 48'000).frames(1), 2U);
    EXPECT_EQ(Resampler(48'000, 8'000).frames(7), 2U);
    EXPECT_EQ(Resampler(8'000, 48'000).frames(0), 0U);
}

TEST(Resampler, KeepsTonesBetweenTheUsualRates)
{
    const std::int32_t rates[] = {8'000, 11'025, 22'050, 32'000, 44'100, 48'000, 96'000, 192'000};
    for (const std::int32_t from : rates) {
        for (const std::int32_t to : rates) {
            const double frequency = 0.3 * std::min(from, to);
            const auto frames = static_cast<std::size_t>(from / 10);
            const std::vector<float> result = resampled(tone(frequency, from, frames), from, to);
            EXPECT_LT(difference(result, tone(frequency, to, result.size())), 0.001) << from << " to " << to;
        }
    }
}

TEST(Resampler, KeepsTonesBetweenOddRates)
{
    const std::vector<float> result = resampled(tone(1'000, 44'099, 8'000), 44'099, 47'999);
    EXPECT_LT(difference(result, tone(1'000, 47'999, result.size())), 0.001);
}

TEST(Resampler, KeepsASteadyLevel)
{
    const std::vector<float> result = resampled(std::vector<float>(2'000, 0.5F), 44'100, 48'000);
    EXPECT_LT(difference(result, std::vector<float>(result.size(), 0.5F)), 1e-6);
}

TEST(Resampler, LeavesOutWhatALowerRateCannotHold)
{
    const std::vector<float> result = resampled(tone(30'000, 96'000, 9'600), 96'000, 44'100);
    EXPECT_LT(difference(result, std::vector<float>(result.size(), 0)), 0.001);
}

/// How loud a tone comes out, of 1, in decibels.
double levelOf(double frequency, std::int32_t from, std::int32_t to)
{
    const std::vector<float> result =
        resampled(tone(frequency, from, static_cast<std::size_t>(from) / 5), from, to);
    double squares = 0;
    const std::size_t begin = result.size() / 4;
    const std::size_t end = 3 * result.size() / 4;
    for (std::size_t at = begin; at < end; ++at) {
        squares += static_cast<double>(result[at]) * result[at];
    }
    return 10 * std::log10(2 * squares / static_cast<double>(end - begin));
}

TEST(Resampler, PassesWhatIsHeardEvenly)
{
    for (const double frequency : {50.0, 1'000.0, 10'000.0, 15'000.0, 17'000.0}) {
        EXPECT_NEAR(levelOf(frequency, 44'100, 48'000), 0, 0.02) << frequency;
    }
    EXPECT_NEAR(levelOf(19'000, 44'100, 48'000), -0.52, 0.05);
    EXPECT_NEAR(levelOf(20'947.5, 44'100, 48'000), -6, 0.1); // the middle of the slope
}

TEST(Resampler, ItsSlopeGoesDownToSilence)
{
    EXPECT_NEAR(levelOf(22'050 * 0.95, 96'000, 44'100), -6, 0.1);
    EXPECT_LT(levelOf(24'700, 96'000, 44'100), -60);
    EXPECT_LT(levelOf(30'000, 96'000, 44'100), -70);
}

TEST(Resampler, TakesSilenceAroundTheSound)
{
    const std::vector<float> result = resampled({1}, 22'050, 44'100);
    ASSERT_EQ(result.size(), 2U);
    EXPECT_NEAR(result[0], 1, 0.06);
    EXPECT_NEAR(result[1], 2 / std::numbers::pi, 0.06);
}

TEST(Resampler, ItsEdgesAreThoseOfTheSoundWithSilenceAround)
{
    const std::vector<float> sound = tone(3'000, 44'100, 100);
    std::vector<float> padded(2 * 441 + sound.size(), 0);
    std::copy(sound.begin(), sound.end(), padded.begin() + 441);
    const std::vector<float> alone = resampled(sound, 44'100, 48'000);
    const std::vector<float> among = resampled(padded, 44'100, 48'000);
    for (std::size_t at = 0; at < alone.size(); ++at) {
        EXPECT_NEAR(alone[at], among[at + 480], 1e-6) << at;
    }
}

TEST(Resampler, KeepsChannelsApart)
{
    std::vector<float> samples;
    for (int frame = 0; frame < 400; ++frame) {
        samples.insert(samples.end(), {0.5F, -0.25F});
    }
    const Resampler resampler(44'100, 48'000);
    EXPECT_NEAR(resampler.sample(samples, 2, 0, 200), 0.5, 1e-6);
    EXPECT_NEAR(resampler.sample(samples, 2, 1, 200), -0.25, 1e-6);
}

} // namespace
