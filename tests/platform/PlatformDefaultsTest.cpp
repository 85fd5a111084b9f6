#include "core/AudioOutput.h"
#include "core/Clock.h"
#include "core/CoreCursors.h"
#include "core/CoreDisplay.h"
#include "core/CoreNetClient.h"
#include "core/CoreRegistry.h"
#include "core/CoreSoundFacet.h"
#include "core/CoreSystem.h"
#include "core/Environment.h"
#include "core/EventPump.h"
#include "core/InterCom.h"
#include "core/NativePath.h"
#include "core/RandomSource.h"
#include "core/SessionState.h"
#include "support/Raises.h"

#include <cstdlib>
#include <gtest/gtest.h>

namespace phial
{
namespace
{

/// A session on an empty platform: only what stands in for its entries.
class PlatformDefaults : public ::testing::Test
{
protected:
    SessionState session{Platform()};
};

TEST_F(PlatformDefaults, WhatNothingCanStandInForRaises)
{
    EXPECT_RAISES(coreRoot().CoreDialogs(), ObjectNotSet);
    EXPECT_RAISES(coreRoot().CoreSystem().CoreFolders(), ObjectNotSet);
    EXPECT_RAISES(coreRoot().CoreSystem().CoreMachine(), ObjectNotSet);
    EXPECT_RAISES(session.platform().newFormDocument(), ObjectNotSet);
}

TEST_F(PlatformDefaults, TheRestDoesNoHarm)
{
    EXPECT_FALSE(coreRoot().CoreSoundFacet().Play(u"a.wav", true));
    EXPECT_FALSE(coreRoot().CoreSystem().ShellOpen(WindowHandle::None, u"https://example.org/"));
    EXPECT_EQ(coreRoot().CoreSystem().StartProgram({u"viewer"}), 0);
    EXPECT_FALSE(coreRoot().CoreSystem().RunProgram({u"viewer"}));
    EXPECT_EQ(coreRoot().CoreSystem().CoreWindowOps().ScreenBottom(WindowHandle{1}), 0);
    EXPECT_EQ(coreRoot().CoreDisplay().CursorX(), 0);
    EXPECT_FALSE(coreRoot().CoreDisplay().TextHeight());
    EXPECT_EQ(coreRoot().CoreCursors().Load(u"a.ico"), nullptr);
    EXPECT_FALSE(session.platform().newInterCom()->Send(u"NOBODY", 1, u"x"));
}

TEST_F(PlatformDefaults, ThereIsAnAudioOutputWithoutADevice)
{
    AudioOutput& audio = *session.platform().audio;
    const auto sound = std::make_shared<const Sound>(Sound{8000, 1, {0.5F, -0.5F}});
    EXPECT_FALSE(audio.available());
    const AudioOutput::Voice voice = audio.start(sound);
    EXPECT_EQ(voice, AudioOutput::Voice::None);
    EXPECT_FALSE(audio.isPlaying(voice));
    audio.gain(0.5);
    audio.waitForEnd(voice);
    audio.stop(voice);
}

TEST_F(PlatformDefaults, ThereIsANetworkClientWithoutANetwork)
{
    const std::shared_ptr<CoreNetClient> client = session.platform().newNetClient();
    client->Options().ConnectTimeout = 2;
    EXPECT_EQ(client->Options().ConnectTimeout, 2);
    EXPECT_RAISES(client->OpenPort(10051), DeviceUnavailable);
    EXPECT_RAISES(client->Request(u"A::B::", u"127.0.0.1", 10049, nullptr, true, u""), DeviceUnavailable);
    client->EnableReceive(true);
    client->ShowMonitor();
    client->Close();
}

TEST_F(PlatformDefaults, SettingsLastAsLongAsTheSession)
{
    CoreRegistry& registry = coreRoot().CoreRegistry();
    registry.CoreRegistryWrite().WriteLong(SettingsHive::CurrentUser, u"Software\\A", 3);
    EXPECT_EQ(registry.CoreRegistryRead().ReadLong(SettingsHive::CurrentUser, u"Software\\A"), 3);
}

TEST_F(PlatformDefaults, TheClockIsTheComputers)
{
    Clock& clock = *session.platform().clock;
    const double before = clock.seconds();
    clock.sleep(0.002);
    EXPECT_GE(clock.seconds(), before + 0.002);
    EXPECT_GE(clock.moment().calendar().year, 2024);
}

TEST_F(PlatformDefaults, ThePumpRunsTimersOnTheComputersClock)
{
    int ticks = 0;
    const Connection timer = session.platform().pump->startTimer(1, [&] { ++ticks; });
    while (ticks < 2) {
        session.platform().pump->pumpFor(0.001);
    }
    EXPECT_GE(ticks, 2);
}

TEST_F(PlatformDefaults, RandomNumbersStayInTheirRange)
{
    for (int draw = 0; draw < 1000; ++draw) {
        const double number = session.platform().random->next();
        ASSERT_TRUE(number >= 0 && number < 1) << number;
    }
}

TEST_F(PlatformDefaults, TheEnvironmentIsTheProcesss)
{
    ::setenv("PHIAL_TEST_TEXT", "Säure", 1);
    ::setenv("PHIAL_TEST_FOLDER", "/home/public", 1);
    const Environment& environment = *session.platform().environment;
    EXPECT_EQ(environment.variable(u"PHIAL_TEST_TEXT"), u"Säure");
    EXPECT_EQ(environment.variable(u"PHIAL_TEST_FOLDER"), u"\\home\\public");
    EXPECT_EQ(environment.variable(u"PHIAL_TEST_UNSET"), u"");
}

} // namespace
} // namespace phial
