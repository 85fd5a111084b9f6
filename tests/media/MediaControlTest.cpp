#include "media/MediaControl.h"

#include "MediaTest.h"
#include "media/frm_AppMCI.h"
#include "support/Raises.h"

#include <gmock/gmock-matchers.h>

namespace phial
{
namespace
{

class Control : public MediaTest
{
protected:
    void open(const String& file)
    {
        mci().FileName(file);
        mci().Command(u"open");
    }
    static MediaControl& mci() { return *Session::current().sharedForm<frm_AppMCI>()->mci(); }
};

TEST_F(Control, StandsOnItsHiddenFormAndIsReachedByName)
{
    Form& form = Session::current().sharedForm<frm_AppMCI>()->form();
    const ObjectPtr control = form.find(u"mci");
    ASSERT_EQ(control.get(), &mci());
    EXPECT_EQ(mci().typeName(), u"MMControl");
    const String file = sound(u"a.wav", 1.25);
    setMember(*control, u"DeviceType", u"WaveAudio");
    setMember(*control, u"FileName", file);
    setMember(*control, u"Command", u"Open");
    EXPECT_EQ(getMember(*control, u"DEVICETYPE"), Variant(u"WaveAudio"));
    EXPECT_EQ(getMember(*control, u"Filename"), Variant(file));
    EXPECT_EQ(getMember(*control, u"Command"), Variant(u"Open"));
    EXPECT_EQ(getMember(*control, u"NAME"), Variant(u"mci"));
    EXPECT_EQ(getMember(*control, u"Length"), Variant(1250));
    EXPECT_EQ(getMember(*control, u"Position"), Variant(0));
    EXPECT_FALSE(trySet(*control, u"Length", 5));
}

TEST_F(Control, WithoutAnOpenFileLengthAndPositionAreNone)
{
    makeFile(u"noise.wav", u"noise");
    for (const String& file : {String(), path(u"missing.wav"), path(u"noise.wav")}) {
        open(file);
        EXPECT_EQ(mci().Length(), 0);
        for (const StringView command : {u"play", u"stop", u"prev", u"play", u"close"}) {
            mci().Command(String(command));
            EXPECT_EQ(mci().Position(), 0);
        }
    }
    EXPECT_TRUE(marks().empty());
}

TEST_F(Control, PositionIsTheClockSinceTheStartHeldToTheLength)
{
    open(sound(u"a.wav", 1));
    outside.advance(3);
    mci().Command(u"play");
    EXPECT_EQ(mci().Position(), 0);
    outside.advance(0.25);
    EXPECT_EQ(mci().Position(), 250);
    outside.advance(0.7499);
    EXPECT_EQ(mci().Position(), 1000); // to the nearest millisecond, and not beyond
    outside.advance(5);
    EXPECT_EQ(mci().Position(), 1000);
}

TEST_F(Control, StopsGoesOnFromThereAndGoesBackToTheBeginning)
{
    const String file = sound(u"a.wav", 1);
    open(file);
    mci().Command(u"PLAY");
    outside.advance(0.25);
    mci().Command(u"Stop");
    outside.advance(0.5);
    EXPECT_EQ(mci().Position(), 250);
    mci().Command(u"play");
    outside.advance(0.25);
    EXPECT_EQ(mci().Position(), 500);
    ASSERT_EQ(outside.audio().heard().size(), 2U);
    EXPECT_DOUBLE_EQ(outside.audio().heard()[1].sound->seconds(), 0.75);
    mci().Command(u"prev");
    EXPECT_EQ(mci().Position(), 0);
    EXPECT_DOUBLE_EQ(outside.audio().heard()[1].end, outside.audio().heard()[1].begin + 0.25);
    mci().Command(u"play");
    outside.advance(2);
    mci().Command(u"play"); // at its end there is nothing left
    EXPECT_EQ(mci().Position(), 1000);
    EXPECT_EQ(outside.audio().heard().size(), 3U);
}

TEST_F(Control, OfTwoChannelsBothGoOnFromThere)
{
    std::string frames;
    for (std::uint32_t frame = 0; frame < 8'000; ++frame) {
        frames += test::littleEndian(frame, 2) + test::littleEndian(frame + 10'000, 2);
    }
    folder.write(native(u"installed\\Resources\\sfx\\two.wav"),
                 test::waveFile(test::WaveHeader{.channels = 2, .rate = 8'000}, frames));
    open(QVAPP()->URL()->RESOURCESFX() + u"two.wav");
    mci().Command(u"play");
    outside.advance(0.25);
    mci().Command(u"stop");
    mci().Command(u"play");
    const Sound& rest = *outside.audio().heard().at(1).sound;
    ASSERT_EQ(rest.samples.size(), 2 * 6'000U);
    EXPECT_FLOAT_EQ(rest.samples[0], 2'000 / 32'768.0F);
    EXPECT_FLOAT_EQ(rest.samples[1], 12'000 / 32'768.0F);
}

TEST_F(Control, ItsSoundEndsWithIt)
{
    {
        MediaControl own;
        own.FileName(sound(u"a.wav", 9));
        own.Command(u"open");
        own.Command(u"play");
        outside.advance(1);
    }
    EXPECT_DOUBLE_EQ(outside.audio().heard().at(0).end, outside.audio().heard().at(0).begin + 1);
}

TEST_F(Control, PlayingAgainDoesNotDoubleTheSound)
{
    open(sound(u"a.wav", 1));
    mci().Command(u"play");
    outside.advance(0.25);
    mci().Command(u"play");
    EXPECT_DOUBLE_EQ(outside.audio().heard()[0].end, outside.audio().heard()[0].begin + 0.25);
    EXPECT_EQ(mci().Position(), 250);
}

TEST_F(Control, StandsAtItsEndWhenNothingIsHeardOrTheDeviceIsLost)
{
    open(sound(u"a.wav", 1));
    outside.audio().available(false);
    mci().Command(u"play");
    EXPECT_EQ(mci().Position(), 1000);
    outside.audio().available(true);
    mci().Command(u"prev");
    mci().Command(u"play");
    outside.advance(0.25);
    EXPECT_EQ(mci().Position(), 250);
    outside.audio().available(false);
    EXPECT_EQ(mci().Position(), 1000);
}

TEST_F(Control, OpensAnotherFileInPlaceOfTheFirst)
{
    open(sound(u"a.wav", 1));
    mci().Command(u"play");
    outside.advance(0.25);
    const String other = sound(u"b.wav", 2);
    mci().FileName(other);
    EXPECT_EQ(mci().Length(), 1000);
    mci().Command(u"open");
    EXPECT_EQ(mci().Length(), 2000);
    EXPECT_EQ(mci().Position(), 0);
    EXPECT_DOUBLE_EQ(outside.audio().heard()[0].end, outside.audio().heard()[0].begin + 0.25);
    mci().Command(u"close");
    EXPECT_EQ(mci().Length(), 0);
}

TEST_F(Control, OpensWaveFilesOnly)
{
    mci().DeviceType(u"waveaudio");
    open(sound(u"a.wav", 1));
    EXPECT_EQ(mci().Length(), 1000);
    mci().DeviceType(u"CDAudio");
    mci().Command(u"open");
    EXPECT_EQ(mci().Length(), 0);
}

TEST_F(Control, RefusesOtherCommands)
{
    mci().Command(u"stop");
    EXPECT_RAISES(mci().Command(u"eject"), InvalidPropertyValue);
    EXPECT_RAISES(mci().Command(u""), InvalidPropertyValue);
    EXPECT_EQ(mci().Command(), u"stop");
}

TEST_F(Control, TheEndOfTheSessionStopsIt)
{
    open(sound(u"a.wav", 9));
    mci().Command(u"play");
    outside.advance(1);
    session.reset();
    EXPECT_DOUBLE_EQ(outside.audio().heard()[0].end, outside.audio().heard()[0].begin + 1);
}

} // namespace
} // namespace phial
