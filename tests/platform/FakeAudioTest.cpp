#include "core/CoreRoot.h"
#include "core/CoreTiming.h"
#include "support/HeadlessSession.h"

#include <gmock/gmock-matchers.h>

namespace phial
{
namespace
{

using Voice = AudioOutput::Voice;

/// Silence of that length.
std::shared_ptr<const Sound> lasting(double seconds)
{
    constexpr std::int32_t Rate = 8000;
    return std::make_shared<const Sound>(
        Sound{Rate, 2, std::vector<float>(static_cast<std::size_t>(2 * Rate * seconds))});
}

class Audio : public test::HeadlessSession
{
protected:
    headless::FakeAudio& audio = outside.audio();
};

TEST_F(Audio, ASoundIsAsLongAsItsFrames)
{
    EXPECT_DOUBLE_EQ(lasting(1.5)->seconds(), 1.5);
    EXPECT_EQ(Sound{}.seconds(), 0);
}

TEST_F(Audio, AVoicePlaysUntilItsLengthHasPassed)
{
    const Voice voice = audio.start(lasting(2));
    ASSERT_NE(voice, Voice::None);
    outside.clock().advance(1.999);
    EXPECT_TRUE(audio.isPlaying(voice));
    outside.clock().advance(0.001);
    EXPECT_FALSE(audio.isPlaying(voice));
}

TEST_F(Audio, WaitingTakesTheRestOfTheVoiceAndRunsNoEvents)
{
    bool ran = false;
    const Connection timer = session.platform().pump->startTimer(10, [&] { ran = true; });
    const Voice voice = audio.start(lasting(2));
    outside.clock().advance(0.5);
    audio.waitForEnd(voice);
    EXPECT_DOUBLE_EQ(coreRoot().CoreTiming().Now(), 2);
    audio.waitForEnd(voice);
    EXPECT_DOUBLE_EQ(coreRoot().CoreTiming().Now(), 2);
    EXPECT_FALSE(ran);
}

TEST_F(Audio, AFifthVoiceEndsTheOldest)
{
    std::vector<Voice> voices;
    for (int count = 0; count < 5; ++count) {
        voices.push_back(audio.start(lasting(9)));
        outside.clock().advance(1);
    }
    EXPECT_FALSE(audio.isPlaying(voices[0]));
    for (std::size_t later = 1; later < voices.size(); ++later) {
        EXPECT_TRUE(audio.isPlaying(voices[later])) << later;
    }
    EXPECT_EQ(audio.heard()[0].end, 4);
}

TEST_F(Audio, AStoppedVoiceEndsThenAndAnEndedOneStays)
{
    const Voice voice = audio.start(lasting(2));
    outside.clock().advance(1);
    audio.stop(voice);
    outside.clock().advance(0.5);
    audio.stop(voice);
    EXPECT_FALSE(audio.isPlaying(voice));
    EXPECT_EQ(audio.heard()[0].end, 1);
}

TEST_F(Audio, ALostDeviceEndsWhatPlaysAndTakesNothing)
{
    const Voice voice = audio.start(lasting(2));
    audio.available(false);
    EXPECT_FALSE(audio.isPlaying(voice));
    EXPECT_EQ(audio.start(lasting(1)), Voice::None);
    audio.available(true);
    EXPECT_NE(audio.start(lasting(1)), Voice::None);
    EXPECT_EQ(audio.heard().size(), 2U);
}

TEST_F(Audio, WhatHasNoSamplesIsNotHeard)
{
    EXPECT_EQ(audio.start(nullptr), Voice::None);
    EXPECT_EQ(audio.start(std::make_shared<const Sound>()), Voice::None);
    EXPECT_FALSE(audio.isPlaying(Voice::None));
    EXPECT_TRUE(audio.heard().empty());
}

} // namespace
} // namespace phial
