#include "HeardSamples.h"
#include "Recorder.h"
#include "SoundServer.h"
#include "qt/base/QtClock.h"
#include "qt/sound/QtAudioOutput.h"

#include <QTimer>

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <memory>
#include <numbers>
#include <optional>
#include <span>
#include <vector>

namespace
{

using namespace phial;
using namespace phial::test;

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

/// The last level that was held for 20 milliseconds, in thousandths, or 0; pauses do not count.
int lastLevel(const std::vector<float>& samples)
{
    std::size_t held = 0;
    for (std::size_t at = samples.size(); at-- > 1;) {
        held = !isSilent(samples[at]) && std::abs(samples[at] - samples[at - 1]) < 1e-4 ? held + 1 : 0;
        if (held == framesOf(0.02)) {
            return static_cast<int>(std::lround(1000 * samples[at]));
        }
    }
    return 0;
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

    /// What has been heard since the test began.
    std::vector<float> heard() const { return recorder_->left(begin_); }

    /// Whether this level comes to be heard within three seconds.
    bool hears(int wanted)
    {
        for (int time = 0; time < 30 && lastLevel(heard()) != wanted; ++time) {
            recorder_->record(0.1);
        }
        return lastLevel(heard()) == wanted;
    }

    /// Plays a sound until it has been heard without a pause. Each time all of it must be heard.
    void expectHeardAs(const std::shared_ptr<const Sound>& sound, const std::vector<float>& expected)
    {
        int pauses = 1;
        for (int time = 0; time < 10 && pauses > 0; ++time) {
            begin_ = recorder_->frames();
            const AudioOutput::Voice voice = output_.start(sound);
            while (output_.isPlaying(voice)) {
                ASSERT_TRUE(recorder_->record(0.1));
            }
            ASSERT_TRUE(recorder_->record(0.6));
            const std::vector<float> whole = withoutSilence(heard(), pauses);
            const std::size_t size = std::min(whole.size(), expected.size());
            EXPECT_NEAR(static_cast<double>(whole.size()), static_cast<double>(expected.size()),
                        0.01 * static_cast<double>(expected.size()));
            EXPECT_GE(correlation(std::span(whole).first(size), std::span(expected).first(size)), 0.99);
        }
        EXPECT_EQ(pauses, 0);
    }

    static std::unique_ptr<SoundServer> server_;
    qt::QtAudioOutput output_{std::make_shared<qt::QtClock>()};
    std::optional<Recorder> recorder_;
    std::size_t begin_ = 0;
};
std::unique_ptr<SoundServer> Heard::server_;

TEST_F(Heard, ThereIsADevice)
{
    EXPECT_TRUE(output_.available());
}

TEST_F(Heard, SoundsComeOutWholeAndUnchangedAgainAndAgain)
{
    const std::vector<float> samples = rising(DeviceRate, 0.6);
    const auto sound = std::make_shared<const Sound>(Sound{DeviceRate, 1, samples});
    for (int time = 0; time < 3; ++time) {
        expectHeardAs(sound, samples);
    }
}

TEST_F(Heard, SoundsOfAnotherRateKeepPitchAndLength)
{
    expectHeardAs(std::make_shared<const Sound>(Sound{22'050, 1, rising(22'050, 0.6)}),
                  rising(DeviceRate, 0.6));
}

TEST_F(Heard, TheShortestSoundIsHeard)
{
    const std::vector<float> samples = rising(DeviceRate, 0.01);
    expectHeardAs(std::make_shared<const Sound>(Sound{DeviceRate, 1, samples}), samples);
}

TEST_F(Heard, TwoSoundsMixInTheOrderOfTheirStarts)
{
    const AudioOutput::Voice first = output_.start(level(0.2F, 10));
    EXPECT_TRUE(hears(200));
    output_.start(level(0.4F, 10));
    EXPECT_TRUE(hears(600));
    output_.stop(first);
    EXPECT_TRUE(hears(400));
}

TEST_F(Heard, AFifthSoundEndsTheOldest)
{
    std::vector<AudioOutput::Voice> voices;
    for (const float value : {0.5F, 0.01F, 0.02F, 0.04F}) {
        voices.push_back(output_.start(level(value, 20)));
    }
    EXPECT_TRUE(hears(570));
    voices.push_back(output_.start(level(0.08F, 20)));
    EXPECT_FALSE(output_.isPlaying(voices[0]));
    EXPECT_TRUE(std::all_of(voices.begin() + 1, voices.end(),
                            [this](AudioOutput::Voice voice) { return output_.isPlaying(voice); }));
    EXPECT_TRUE(hears(150));
}

TEST_F(Heard, AFadeIsHeardWhileASoundPlays)
{
    output_.gain(0.8);
    output_.start(level(0.5, 10));
    EXPECT_TRUE(hears(400));
    output_.gain(0.2);
    EXPECT_TRUE(hears(100));
    output_.gain(0.8);
    EXPECT_TRUE(hears(400));
}

TEST_F(Heard, WhatIsStoppedIsSilentSoon)
{
    const AudioOutput::Voice voice = output_.start(level(0.5, 20));
    EXPECT_TRUE(hears(500));
    EXPECT_TRUE(output_.isPlaying(voice));
    output_.stop(voice);
    EXPECT_FALSE(output_.isPlaying(voice));
    ASSERT_TRUE(recorder_->record(0.6));
    const std::vector<float> samples = heard();
    EXPECT_TRUE(
        std::all_of(samples.end() - static_cast<std::ptrdiff_t>(framesOf(0.2)), samples.end(), isSilent));
}

TEST_F(Heard, AllSoundsEndWithTheOutput)
{
    auto other = std::make_unique<qt::QtAudioOutput>(std::make_shared<qt::QtClock>());
    other->start(level(0.5, 20));
    EXPECT_TRUE(hears(500));
    other.reset();
    ASSERT_TRUE(recorder_->record(0.6));
    const std::vector<float> samples = heard();
    EXPECT_TRUE(
        std::all_of(samples.end() - static_cast<std::ptrdiff_t>(framesOf(0.2)), samples.end(), isSilent));
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
    const std::vector<float> samples = heard();
    const auto first = std::find_if_not(samples.begin(), samples.end(), isSilent);
    const auto last = std::find_if_not(samples.rbegin(), samples.rend(), isSilent).base();
    const double sum = std::accumulate(samples.begin(), samples.end(), 0.0);
    EXPECT_NEAR(sum / (0.1 * static_cast<double>(framesOf(0.01))), Clicks, 0.5);
    // The server begins sounds with its own pieces of time.
    constexpr double Piece = 0.05;
    EXPECT_GE(static_cast<double>(last - first) / DeviceRate, (Clicks - 1) * Interval / 1000.0 - Piece);
}

TEST_F(Heard, WaitingForTheEndRunsNoEvents)
{
    constexpr double Length = 1; // an earlier sound rings out meanwhile, and is let go
    bool ran = false;
    QTimer::singleShot(0, [&ran] { ran = true; });
    const qt::QtClock clock;
    const double begin = clock.seconds();
    const auto samples = rising(DeviceRate, Length);
    const AudioOutput::Voice voice =
        output_.start(std::make_shared<const Sound>(Sound{DeviceRate, 1, samples}));
    output_.waitForEnd(voice);
    EXPECT_FALSE(ran);
    EXPECT_FALSE(output_.isPlaying(voice));
    EXPECT_GE(clock.seconds() - begin, Length);
    ASSERT_TRUE(recorder_->record(0.6));
    int pauses = 0;
    const std::vector<float> whole = withoutSilence(heard(), pauses);
    EXPECT_NEAR(static_cast<double>(whole.size()), Length * DeviceRate, 0.01 * DeviceRate);
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
