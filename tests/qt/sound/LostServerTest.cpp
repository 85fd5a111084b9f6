#include "Recorder.h"
#include "SoundProgram.h"
#include "SoundServer.h"

#include <gtest/gtest.h>

namespace
{

using phial::test::SoundProgram;
using phial::test::SoundServer;

constexpr auto Player = "sound_player";

constexpr auto Unheard = "available: no\nplaying: no\nwhole length: no\nlonger than a second beyond: no\n"
                         "available: no\nanother one plays: no\n";
constexpr auto Lost = "available: yes\nplaying: yes\nwhole length: no\nlonger than a second beyond: no\n"
                      "available: no\nanother one plays: no\n";

TEST(LostServer, ProgramsAreSilentWithoutAServer)
{
    SoundServer server;
    server.kill();
    EXPECT_EQ(SoundProgram(Player, server.environment(), {"20"}).toldToTheEnd(), Unheard);
    EXPECT_EQ(SoundProgram(Player, server.environment(), {"20", "wait"}).toldToTheEnd(), Unheard);
}

TEST(LostServer, ASoundIsOverWhenItsServerDies)
{
    SoundServer server;
    Recorder recorder(server.environment());
    SoundProgram player(Player, server.environment(), {"20"});
    ASSERT_TRUE(recorder.hearsSomething(30));
    server.kill();
    EXPECT_EQ(player.toldToTheEnd(), Lost);
}

TEST(LostServer, WaitingIsOverWhenTheServerDies)
{
    SoundServer server;
    Recorder recorder(server.environment());
    SoundProgram player(Player, server.environment(), {"20", "wait"});
    ASSERT_TRUE(recorder.hearsSomething(30));
    server.kill();
    EXPECT_EQ(player.toldToTheEnd(), Lost);
}

TEST(LostServer, WhatPlaysToTheEndLeavesTheDeviceThere)
{
    const SoundServer server;
    EXPECT_EQ(SoundProgram(Player, server.environment(), {"0.3"}).toldToTheEnd(),
              "available: yes\nplaying: yes\nwhole length: yes\nlonger than a second beyond: no\n"
              "available: yes\nanother one plays: yes\n");
}

} // namespace
