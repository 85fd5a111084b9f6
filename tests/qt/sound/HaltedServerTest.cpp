#include "Recorder.h"
#include "SoundProgram.h"
#include "SoundServer.h"
#include "support/MarkedWaves.h"

#include <QElapsedTimer>
#include <QThread>

#include <algorithm>
#include <gtest/gtest.h>

/// A server of sounds that stands still, as a debugger or a computer that is falling asleep leaves it: it
/// neither answers nor ends.
namespace
{

using namespace phial;
using namespace phial::test;

constexpr double ShortSeconds = 0.4;

/// A program that sounds, and the server that it sounds through.
class ServedProgram
{
public:
    /// Gives an order to the program, with a sound of so many seconds.
    double ask(const char* order, double seconds) { return program_.ask(orderFor(order, seconds)); }
    QByteArray orderFor(const char* order, double seconds)
    {
        std::string name = std::to_string(seconds) + ".wav";
        folder_.write(name, markedWave(seconds));
        std::string path = (folder_.native() / name).string();
        std::replace(path.begin(), path.end(), '/', '\\');
        return QByteArray(order) + ' ' + QByteArray::fromStdString(path);
    }

    void expectTheWindowGoesOn()
    {
        EXPECT_GE(program_.ask("gap"), 0);
        double gap = 1;
        for (int time = 0; time < 5 && gap > 0.1; ++time) { // a busy computer makes gaps, but not always
            EXPECT_GT(ask("play", ShortSeconds), 0);
            const double stood = ask("praise", ShortSeconds);
            EXPECT_GE(stood, ShortSeconds);
            EXPECT_LT(stood, 3);
            gap = program_.ask("gap");
        }
        EXPECT_GT(gap, 0);
        EXPECT_LE(gap, 0.1);
    }

    /// Whether the program's sounds are heard: asked until one is, since what stood still has to catch up.
    bool isHeard()
    {
        Recorder recorder(server_.environment());
        bool heard = false;
        for (int time = 0; time < 20 && !heard; ++time) {
            EXPECT_GT(ask("play", ShortSeconds), 0);
            heard = recorder.hearsSomething(2 * ShortSeconds);
        }
        return heard;
    }

    void expectTheProgramEnds()
    {
        QElapsedTimer timer;
        timer.start();
        program_.tell("end");
        EXPECT_TRUE(program_.ends());
        EXPECT_LT(timer.elapsed(), 2000);
        EXPECT_EQ(program_.complaints(), "");
    }

protected:
    SoundServer server_;
    TemporaryFolder folder_;
    SoundProgram program_{
        "sound_app", server_.environment(), {QString::fromStdString(folder_.native().string())}};
};

class HaltedServer : public testing::Test, protected ServedProgram
{
};

TEST_F(HaltedServer, HoldsUpNoWindowBeforeTheFirstSound)
{
    server_.halt();
    ASSERT_TRUE(program_.hasTold("ready"));
    expectTheWindowGoesOn();
    server_.goOn();
    EXPECT_TRUE(isHeard());
}

TEST_F(HaltedServer, HoldsUpNoWindowInMidSound)
{
    ASSERT_TRUE(program_.hasTold("ready"));
    EXPECT_TRUE(isHeard());
    EXPECT_GT(ask("play", 20), 0);
    server_.halt();
    expectTheWindowGoesOn();
    server_.goOn();
    EXPECT_TRUE(isHeard());
}

TEST_F(HaltedServer, HoldsUpNoProgramThatEndsBeforeTheFirstSound)
{
    server_.halt();
    ASSERT_TRUE(program_.hasTold("ready"));
    EXPECT_GT(ask("play", ShortSeconds), 0);
    EXPECT_GE(ask("praise", ShortSeconds), 0);
    expectTheProgramEnds();
}

TEST_F(HaltedServer, HoldsUpNoProgramThatEndsInMidSound)
{
    ASSERT_TRUE(program_.hasTold("ready"));
    EXPECT_TRUE(isHeard());
    server_.halt();
    EXPECT_GT(ask("play", ShortSeconds), 0);
    EXPECT_GE(ask("praise", ShortSeconds), 0);
    expectTheProgramEnds();
}

class DeadServer : public HaltedServer
{
};

TEST_F(DeadServer, ClosesThePraiseWindowAndSaysNothing)
{
    ASSERT_TRUE(program_.hasTold("ready"));
    EXPECT_TRUE(isHeard());
    Recorder recorder(server_.environment());
    EXPECT_TRUE(recorder.record(2 * ShortSeconds)); // what was heard rings out
    constexpr double LongSeconds = 20;
    program_.tell(orderFor("praise", LongSeconds));
    EXPECT_TRUE(recorder.hearsSomething(5));
    server_.kill();
    const double stood = program_.answer();
    EXPECT_GT(stood, 0);
    EXPECT_LT(stood, LongSeconds / 2);
    expectTheProgramEnds();
}

/// A server that dies under a program, and another that takes its place.
class ReplacedServer : private ServedProgram
{
public:
    /// Whether the program is heard through the second server as it was through the first.
    bool isHeardAgain()
    {
        EXPECT_TRUE(program_.hasTold("ready"));
        EXPECT_TRUE(isHeard());
        server_.kill();
        QThread::msleep(500); // a sound that begins while the server dies is lost, and the device with it
        EXPECT_GT(ask("play", ShortSeconds), 0);
        server_.start();
        return isHeard();
    }
};

/// The toolkit looks for another server once, three seconds after the first one's end: on a computer that is
/// too busy to start one by then, the program stays silent.
TEST(ReplacedServer, IsHeardAgainWhenItIsBack)
{
    bool heard = false;
    for (int attempt = 0; attempt < 5 && !heard; ++attempt)
        heard = ReplacedServer().isHeardAgain();
    EXPECT_TRUE(heard);
}

} // namespace
