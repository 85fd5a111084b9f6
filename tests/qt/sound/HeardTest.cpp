#include "Recorder.h"
#include "SoundServer.h"
#include "qt/base/QtClock.h"
#include "qt/sound/QtAudioOutput.h"

#include <QTimer>

#include <algorithm>
#include <cmath>
#include <gmock/gmock-matchers.h>
#include <gtest/gtest.h>
#include <memory>
#include <numbers>
#include <numeric>
#include <optional>
#include <span>
#include <vector>

namespace
{

using namespace phial;
using namespace phial::test;
using testing::Each;
using testing::FloatNear;

constexpr std::int32_t DeviceRate = 44'100;

std::size_t framesOf(double seconds)
{
    return static_cast<std::size_t>(seconds * DeviceRate);
}

std::shared_ptr<const Sound> level(float value, double seconds)
{
    return std::make_shared<const Sound>(Sound{DeviceRate, 1, std::vector<float>(framesOf(seconds), value)});
}

/// A tone that rises through the octaves and dies away, as it is at a rate: no two pieces of it are alike.
std::vector<float> rising(std::int32_t rate, double seconds)
{
    std::vector<float> samples(static_cast<std::size_t>(seconds * rate));
    for (std::size_t at = 0; at < samples.size(); ++at) {
        const double time = static_cast<double>(at) / rate;
        const double phase = 2 * std::numbers::pi * (300 * time + 1500 * time * time);
        samples[at] = static_cast<float>(0.5 * std::exp(-time) * std::cos(phase));
    }
    return samples;
}

/// How alike two sounds of the same length are: 1 when one is the other, louder or softer.
double correlation(std::span<const float> left, std::span<const float> right)
{
    const auto product = [](std::span<const float> one, std::span<const float> other) {
        return std::inner_product(one.begin(), one.end(), other.begin(), 0.0);
    };
    return product(left, right) / std::sqrt(product(left, left) * product(right, right));
}

/// On a real server, by what a recording of its loudspeaker has.
class Heard : public testing::Test
{
protected:
    static void SetUpTestSuite()
    {
        server_ = std::make_unique<SoundServer>(DeviceRate);
        server_->useHere();
    }
    static void TearDownTestSuite() { server_.reset(); }

    void SetUp() override
    {
        recorder_.emplace(server_->environment(), DeviceRate);
        // The first sound of a program connects it to the server.
        output_.start(level(0, 0.01));
        ASSERT_TRUE(recorder_->record(0.1));
        begin_ = recorder_->frames();
    }

    /// What has been heard since the test began, from the first sample that is not silent.
    std::vector<float> heard()
    {
        const std::vector<float> all = recorder_->left(begin_);
        const auto first =
            std::find_if(all.begin(), all.end(), [](float sample) { return std::abs(sample) > 1e-4; });
        return {first, all.end()};
    }

    /// The same without the silence at the end.
    std::vector<float> heardToTheEnd()
    {
        std::vector<float> samples = heard();
        while (!samples.empty() && std::abs(samples.back()) < 1e-4) {
            samples.pop_back();
        }
        return samples;
    }

    static std::unique_ptr<SoundServer> server_;
    qt::QtAudioOutput output_{std::make_shared<qt::QtClock>()};
    std::optional<Recorder> recorder_;
    std::size_t begin_ = 0;
};
std::unique_ptr<SoundServer> Heard::server_;

/// The samples of a piece around a time behind the first that was heard.
std::span<const float> around(const std::vector<float>& samples, double seconds)
{
    constexpr double Piece = 0.02;
    const std::size_t first = std::min(framesOf(seconds), samples.size());
    return std::span(samples).subspan(first, std::min(framesOf(Piece), samples.size() - first));
}

TEST_F(Heard, ThereIsADevice)
{
    EXPECT_TRUE(output_.available());
}

TEST_F(Heard, SoundsComeOutWholeAndUnchanged)
{
    const std::vector<float> samples = rising(DeviceRate, 0.6);
    for (int time = 0; time < 3; ++time) {
        begin_ = recorder_->frames();
        output_.start(std::make_shared<const Sound>(Sound{DeviceRate, 1, samples}));
        ASSERT_TRUE(recorder_->record(1.2));
        const std::vector<float> whole = heardToTheEnd();
        EXPECT_GE(static_cast<double>(whole.size()), 0.99 * static_cast<double>(samples.size()));
        ASSERT_LE(whole.size(), samples.size());
        EXPECT_GE(correlation(whole, std::span(samples).first(whole.size())), 0.999) << "time " << time;
    }
}

TEST_F(Heard, SoundsOfAnotherRateKeepPitchAndLength)
{
    output_.start(std::make_shared<const Sound>(Sound{22'050, 1, rising(22'050, 0.6)}));
    ASSERT_TRUE(recorder_->record(1.2));
    const std::vector<float> whole = heardToTheEnd();
    const std::vector<float> samples = rising(DeviceRate, 0.6);
    EXPECT_NEAR(static_cast<double>(whole.size()), static_cast<double>(samples.size()),
                0.01 * static_cast<double>(samples.size()));
    EXPECT_GE(correlation(std::span(whole).first(framesOf(0.59)), std::span(samples).first(framesOf(0.59))),
              0.99);
}

TEST_F(Heard, ASoundIsHeardSoonAfterItsStart)
{
    output_.start(level(0.5, 0.1));
    ASSERT_TRUE(recorder_->record(0.5));
    EXPECT_FALSE(heard().empty());
}

TEST_F(Heard, TwoSoundsMixInTheOrderOfTheirStarts)
{
    output_.start(level(0.2F, 0.5));
    ASSERT_TRUE(recorder_->record(0.2));
    output_.start(level(0.4F, 0.5));
    ASSERT_TRUE(recorder_->record(1));
    const std::vector<float> samples = heardToTheEnd();
    EXPECT_THAT(around(samples, 0.02), Each(FloatNear(0.2F, 0.001F)));
    EXPECT_THAT(around(samples, 0.45), Each(FloatNear(0.6F, 0.001F)));
    EXPECT_THAT(around(samples, static_cast<double>(samples.size()) / DeviceRate - 0.05),
                Each(FloatNear(0.4F, 0.001F)));
}

TEST_F(Heard, AFifthSoundEndsTheOldest)
{
    std::vector<AudioOutput::Voice> voices;
    for (const float value : {0.5F, 0.01F, 0.02F, 0.04F}) {
        voices.push_back(output_.start(level(value, 2)));
    }
    ASSERT_TRUE(recorder_->record(0.4));
    voices.push_back(output_.start(level(0.08F, 2)));
    EXPECT_FALSE(output_.isPlaying(voices[0]));
    EXPECT_TRUE(std::all_of(voices.begin() + 1, voices.end(),
                            [this](auto voice) { return output_.isPlaying(voice); }));
    ASSERT_TRUE(recorder_->record(0.8));
    const std::vector<float> samples = heard();
    EXPECT_THAT(around(samples, 0.2), Each(FloatNear(0.57F, 0.001F)));
    EXPECT_THAT(around(samples, 1), Each(FloatNear(0.15F, 0.001F)));
}

TEST_F(Heard, AFadeIsHeardWhileASoundPlays)
{
    output_.gain(0.8);
    output_.start(level(0.5, 1.5));
    ASSERT_TRUE(recorder_->record(0.4));
    output_.gain(0.2);
    ASSERT_TRUE(recorder_->record(0.8));
    output_.gain(0.8);
    ASSERT_TRUE(recorder_->record(0.8));
    const std::vector<float> samples = heardToTheEnd();
    EXPECT_THAT(around(samples, 0.2), Each(FloatNear(0.4F, 0.008F)));
    EXPECT_THAT(around(samples, 0.9), Each(FloatNear(0.1F, 0.002F)));
    EXPECT_THAT(around(samples, 1.47), Each(FloatNear(0.4F, 0.008F)));
}

TEST_F(Heard, WhatIsStoppedIsSilentAtOnce)
{
    const AudioOutput::Voice voice = output_.start(level(0.5, 5));
    ASSERT_TRUE(recorder_->record(0.3));
    EXPECT_TRUE(output_.isPlaying(voice));
    output_.stop(voice);
    EXPECT_FALSE(output_.isPlaying(voice));
    ASSERT_TRUE(recorder_->record(0.5));
    EXPECT_LT(heardToTheEnd().size(), framesOf(0.6));
}

TEST_F(Heard, NoneOfABurstIsLost)
{
    constexpr int Clicks = 100;
    constexpr int Interval = 25; // milliseconds
    const auto click = level(0.1F, 0.01);
    int started = 0;
    QTimer timer;
    timer.setTimerType(Qt::PreciseTimer);
    QObject::connect(&timer, &QTimer::timeout, &timer, [&] {
        EXPECT_NE(output_.start(click), AudioOutput::Voice::None);
        if (++started == Clicks) {
            timer.stop();
        }
    });
    timer.start(Interval);
    while (started < Clicks) {
        ASSERT_TRUE(recorder_->record(0.1));
    }
    ASSERT_TRUE(recorder_->record(0.5));
    const std::vector<float> samples = heardToTheEnd();
    const double sum = std::accumulate(samples.begin(), samples.end(), 0.0);
    EXPECT_NEAR(sum / (0.1 * static_cast<double>(framesOf(0.01))), Clicks, 0.5);
    // The server begins sounds with its own pieces of time.
    constexpr double Piece = 0.05;
    EXPECT_GE(static_cast<double>(samples.size()) / DeviceRate, (Clicks - 1) * Interval / 1000.0 - Piece);
}

TEST_F(Heard, WaitingForTheEndRunsNoEvents)
{
    bool ran = false;
    QTimer::singleShot(0, [&ran] { ran = true; });
    const qt::QtClock clock;
    const double begin = clock.seconds();
    const auto samples = rising(DeviceRate, 0.6);
    const AudioOutput::Voice voice =
        output_.start(std::make_shared<const Sound>(Sound{DeviceRate, 1, samples}));
    output_.waitForEnd(voice);
    EXPECT_FALSE(ran);
    EXPECT_FALSE(output_.isPlaying(voice));
    EXPECT_GE(clock.seconds() - begin, 0.6);
    ASSERT_TRUE(recorder_->record(0.5));
    const std::vector<float> whole = heardToTheEnd();
    EXPECT_GE(static_cast<double>(whole.size()), 0.99 * static_cast<double>(samples.size()));
}

TEST_F(Heard, NothingPlaysForNoSamples)
{
    EXPECT_EQ(output_.start(level(0, 0)), AudioOutput::Voice::None);
    EXPECT_EQ(output_.start(nullptr), AudioOutput::Voice::None);
    EXPECT_FALSE(output_.isPlaying(AudioOutput::Voice::None));
    output_.waitForEnd(AudioOutput::Voice::None);
    output_.stop(AudioOutput::Voice::None);
}

} // namespace
