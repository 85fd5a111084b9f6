#include "core/CoreRoot.h"
#include "core/CoreSoundFacet.h"
#include "core/CoreTiming.h"
#include "support/HeadlessSession.h"
#include "support/MarkedWaves.h"

#include <gmock/gmock-matchers.h>
#include <optional>

namespace phial
{
namespace
{

using Voice = AudioOutput::Voice;

class SoundPlayer : public test::HeadlessSession
{
protected:
    String file(const std::string& name, double seconds, int mark = 64) const
    {
        folder.write(name, test::markedWave(seconds, mark));
        return folder.path() + fromUtf8(name);
    }
    static CoreSoundFacet& player() { return coreRoot().CoreSoundFacet(); }
    std::vector<int> heard()
    {
        std::vector<int> marks;
        for (const headless::HeardSound& sound : outside.audio().heard()) {
            marks.push_back(test::markOf(*sound.sound));
        }
        return marks;
    }
};

TEST_F(SoundPlayer, BeginsASoundAndGoesOn)
{
    EXPECT_TRUE(player().Play(file("a.wav", 2, 5), false));
    EXPECT_EQ(coreRoot().CoreTiming().Now(), 0);
    ASSERT_EQ(heard(), std::vector<int>{5});
    EXPECT_DOUBLE_EQ(outside.audio().heard()[0].end, 2);
}

TEST_F(SoundPlayer, ReturnsAtTheEndOfASoundThatIsAwaited)
{
    bool ran = false;
    const Connection timer = session.platform().pump->startTimer(10, [&] { ran = true; });
    EXPECT_TRUE(player().Play(file("a.wav", 2), true));
    EXPECT_DOUBLE_EQ(coreRoot().CoreTiming().Now(), 2);
    EXPECT_FALSE(ran);
}

TEST_F(SoundPlayer, SoundsMix)
{
    player().Play(file("a.wav", 2, 5), false);
    player().Play(file("b.wav", 1, 6), false);
    EXPECT_EQ(heard(), (std::vector<int>{5, 6}));
    EXPECT_DOUBLE_EQ(outside.audio().heard()[0].end, 2);
}

TEST_F(SoundPlayer, ReadsPathsAgainstTheCurrentFolder)
{
    file("data/a.wav", 1, 9);
    SessionState::current().currentFolder().change(folder.path());
    EXPECT_TRUE(player().Play(u"Data\\A.WAV", false));
    EXPECT_EQ(heard(), std::vector<int>{9});
}

TEST_F(SoundPlayer, IsSilentForWhatCannotBePlayed)
{
    folder.write("noise.wav", "no sound");
    for (const StringView name : {u"noise.wav", u"missing.wav", u""}) {
        EXPECT_FALSE(player().Play(folder.path() + String(name), true));
    }
    outside.audio().available(false);
    EXPECT_FALSE(player().Play(file("a.wav", 2), true));
    EXPECT_EQ(coreRoot().CoreTiming().Now(), 0);
    EXPECT_EQ(player().start(nullptr), Voice::None);
    EXPECT_EQ(player().load(folder.path() + u"noise.wav"), nullptr);
}

TEST_F(SoundPlayer, StopsAVoiceAndTellsWhetherItPlays)
{
    const Voice voice = player().start(player().load(file("a.wav", 2)));
    EXPECT_TRUE(player().isPlaying(voice));
    player().stop(voice);
    EXPECT_FALSE(player().isPlaying(voice));
}

TEST_F(SoundPlayer, TheLevelIsThePeakOfWhatWasHeardJustNow)
{
    EXPECT_EQ(player().level(), 0);
    player().Play(file("a.wav", 1, 32), false);
    EXPECT_EQ(player().level(), 0); // nothing of it has been heard yet
    outside.clock().advance(0.01);
    EXPECT_DOUBLE_EQ(player().level(), 0.25);
    player().Play(file("b.wav", 0.5, -64), false);
    outside.clock().advance(0.1);
    EXPECT_DOUBLE_EQ(player().level(), 0.75);
    player().Play(file("c.wav", 0.2, 64), false);
    outside.clock().advance(0.1);
    EXPECT_DOUBLE_EQ(player().level(), 1);
    outside.clock().advance(0.7);
    EXPECT_DOUBLE_EQ(player().level(), 0.25);
    outside.clock().advance(0.2);
    EXPECT_EQ(player().level(), 0);
}

TEST_F(SoundPlayer, TheLevelForgetsWhatIsLongerAgo)
{
    const auto sound = std::make_shared<Sound>(Sound{1000, 2, std::vector<float>(2000)});
    sound->samples[201] = -0.5F; // frame 100
    player().start(sound);
    outside.clock().advance(0.1);
    EXPECT_EQ(player().level(), 0);
    outside.clock().advance(0.001);
    EXPECT_EQ(player().level(), 0.5);
    outside.clock().advance(0.049);
    EXPECT_EQ(player().level(), 0.5);
    outside.clock().advance(0.001);
    EXPECT_EQ(player().level(), 0);
}

TEST(SoundPlayerEnd, EndsAllThatPlays)
{
    const test::TemporaryFolder folder;
    folder.write("a.wav", test::markedWave(9));
    headless::HeadlessPlatform outside(folder.path(), test::HeadlessSession::fail);
    std::optional<SessionState> session(std::in_place, outside.platform());
    coreRoot().CoreSoundFacet().Play(folder.path() + u"a.wav", false);
    outside.clock().advance(1);
    coreRoot().CoreSoundFacet().Play(folder.path() + u"a.wav", false);
    session.reset();
    EXPECT_EQ(outside.audio().heard()[0].end, 1);
    EXPECT_EQ(outside.audio().heard()[1].end, 1);
}

} // namespace
} // namespace phial
