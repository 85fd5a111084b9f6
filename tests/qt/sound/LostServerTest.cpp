#include "SoundServer.h"

#include <QCoreApplication>
#include <QProcess>

#include <gtest/gtest.h>

namespace
{

using phial::test::SoundServer;

/// A program that plays, beside the test.
class Player
{
public:
    Player(const QProcessEnvironment& environment, const QStringList& arguments)
    {
        process_.setProcessEnvironment(environment);
        process_.start(QCoreApplication::applicationDirPath() + "/sound_player", arguments);
    }
    ~Player()
    {
        process_.kill();
        process_.waitForFinished();
    }

    bool hasTold(const QByteArray& what)
    {
        while (!told_.contains(what) && process_.waitForReadyRead(30'000)) {
            told_ += process_.readAllStandardOutput();
        }
        return told_.contains(what);
    }

    /// All that it has told, when it has ended as it should and without a word on the error stream.
    std::string toldToTheEnd()
    {
        if (!process_.waitForFinished(30'000)) {
            return "it does not end";
        }
        told_ += process_.readAllStandardOutput();
        EXPECT_EQ(process_.exitStatus(), QProcess::NormalExit);
        EXPECT_EQ(process_.exitCode(), 0);
        EXPECT_EQ(process_.readAllStandardError().toStdString(), "");
        return told_.toStdString();
    }

private:
    QProcess process_;
    QByteArray told_;
};

constexpr auto Unheard = "available: no\nplaying: no\nwhole length: no\nlonger than a second beyond: no\n"
                         "available: no\nanother one plays: no\n";
constexpr auto Lost = "available: yes\nplaying: yes\nwhole length: no\nlonger than a second beyond: no\n"
                      "available: no\nanother one plays: no\n";

TEST(LostServer, ProgramsAreSilentWithoutAServer)
{
    SoundServer server;
    server.kill();
    EXPECT_EQ(Player(server.environment(), {"20"}).toldToTheEnd(), Unheard);
    EXPECT_EQ(Player(server.environment(), {"20", "wait"}).toldToTheEnd(), Unheard);
}

TEST(LostServer, ASoundIsOverWhenItsServerDies)
{
    SoundServer server;
    Player player(server.environment(), {"20"});
    ASSERT_TRUE(player.hasTold("playing"));
    server.kill();
    EXPECT_EQ(player.toldToTheEnd(), Lost);
}

TEST(LostServer, WaitingIsOverWhenTheServerDies)
{
    SoundServer server;
    Player player(server.environment(), {"20", "wait"});
    ASSERT_TRUE(player.hasTold("playing"));
    server.kill();
    EXPECT_EQ(player.toldToTheEnd(), Lost);
}

TEST(LostServer, WhatPlaysToTheEndLeavesTheDeviceThere)
{
    const SoundServer server;
    EXPECT_EQ(Player(server.environment(), {"0.3"}).toldToTheEnd(),
              "available: yes\nplaying: yes\nwhole length: yes\nlonger than a second beyond: no\n"
              "available: yes\nanother one plays: yes\n");
}

} // namespace
