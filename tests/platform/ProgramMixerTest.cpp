#include "core/ProgramMixer.h"

#include "headless/FakeAudio.h"
#include "headless/FakeClock.h"
#include "support/HeadlessSession.h"

#include <gmock/gmock-matchers.h>

namespace phial
{
namespace
{

class OwnMixer : public ::testing::Test
{
protected:
    std::int32_t value()
    {
        std::int32_t read = -1;
        EXPECT_EQ(mixer.Value(speakers, read), CoreMixer::Done);
        return read;
    }

    std::shared_ptr<headless::FakeAudio> audio =
        std::make_shared<headless::FakeAudio>(std::make_shared<headless::FakeClock>());
    ProgramMixer mixer{audio};
    MixerControl speakers;
    std::int32_t found = mixer.VolumeControl(MixerLine::Speakers, speakers);
};

TEST_F(OwnMixer, IsLoudestAtFirst)
{
    EXPECT_EQ(mixer.Open(), CoreMixer::Done);
    EXPECT_EQ(found, CoreMixer::Done);
    EXPECT_EQ(speakers.minimum, 0);
    EXPECT_EQ(speakers.maximum, 65535);
    EXPECT_EQ(value(), 65535);
    EXPECT_EQ(audio->gain(), 1);
}

TEST_F(OwnMixer, SetsTheGainOfTheProgramsSounds)
{
    EXPECT_EQ(mixer.SetValue(speakers, 13107), CoreMixer::Done);
    EXPECT_EQ(value(), 13107);
    EXPECT_DOUBLE_EQ(audio->gain(), 0.2);
    EXPECT_EQ(mixer.SetValue(speakers, 0), CoreMixer::Done);
    EXPECT_EQ(audio->gain(), 0);
    EXPECT_EQ(mixer.SetValue(speakers, 65535), CoreMixer::Done);
    EXPECT_EQ(audio->gain(), 1);
}

TEST_F(OwnMixer, RefusesValuesOutsideItsBounds)
{
    for (const std::int32_t value : {-1, 65536}) {
        EXPECT_NE(mixer.SetValue(speakers, value), CoreMixer::Done) << value;
    }
    EXPECT_EQ(value(), 65535);
    EXPECT_EQ(audio->gain(), 1);
}

TEST_F(OwnMixer, HasNoMicrophoneAndNoOtherControl)
{
    MixerControl other{9, 8, 7};
    EXPECT_NE(mixer.VolumeControl(MixerLine::Microphone, other), CoreMixer::Done);
    EXPECT_EQ(other.id, 9);
    std::int32_t read = 5;
    EXPECT_NE(mixer.Value(other, read), CoreMixer::Done);
    EXPECT_EQ(read, 5);
    EXPECT_NE(mixer.SetValue(other, 8), CoreMixer::Done);
    EXPECT_EQ(audio->gain(), 1);
}

using MixerOfSessions = test::HeadlessSession;

TEST_F(MixerOfSessions, IsThatOfTheProgramWithoutAnotherOne)
{
    CoreMixer& mixer = *session.platform().mixer;
    MixerControl speakers;
    ASSERT_EQ(mixer.VolumeControl(MixerLine::Speakers, speakers), CoreMixer::Done);
    mixer.SetValue(speakers, 0);
    EXPECT_EQ(outside.audio().gain(), 0);
}

} // namespace
} // namespace phial
