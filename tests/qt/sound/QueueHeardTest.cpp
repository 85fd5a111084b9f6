#include "Recorder.h"
#include "SoundProgram.h"
#include "SoundServer.h"
#include "support/WaveBytes.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <numeric>
#include <vector>

/// What is heard of sounds that wait for their turn in the queue of an app.
namespace
{

using namespace phial::test;

constexpr std::int32_t ClickRate = 44'100;
constexpr int ClickLevels = 8; // levels that tell sounds apart
constexpr int Clicks = 40;
constexpr int ClickStep = 4'000; // of a sample
constexpr double QueueBeat = 0.025;
constexpr std::size_t ClickFrames = ClickRate / 200; // shorter than the server's pieces of time

/// Five milliseconds at one of the levels.
std::string click(int level)
{
    std::string data;
    for (std::size_t frame = 0; frame < ClickFrames; ++frame) {
        data += littleEndian(static_cast<std::uint32_t>(level * ClickStep), 2);
    }
    return waveFile(WaveHeader{.rate = ClickRate}, data);
}

/// One that is heard. PLAYWAVE plays at half of the full level.
struct HeardClick {
    std::size_t frame = 0;
    int level = 0;
};

std::vector<HeardClick> clicksIn(const std::vector<float>& samples)
{
    std::vector<HeardClick> found;
    for (std::size_t at = 1; at + ClickFrames / 2 < samples.size(); ++at) {
        if (samples[at] != 0 && samples[at - 1] == 0) {
            const double level = 2 * 32'768.0 * static_cast<double>(samples[at + ClickFrames / 2]);
            found.push_back({at, static_cast<int>(std::lround(level / ClickStep))});
        }
    }
    return found;
}

class QueueHeard : public testing::Test
{
protected:
    void SetUp() override
    {
        for (int count = 0; count < Clicks; ++count) {
            const std::string name = std::to_string(levelOf(count)) + ".wav";
            folder_.write(name, click(levelOf(count)));
            files_ += (count > 0 ? "|" : "") + (folder_.native() / name).string();
        }
        std::replace(files_.begin(), files_.end(), '/', '\\');
        ASSERT_TRUE(program_.hasTold("ready"));
    }

    static int levelOf(int count) { return count % ClickLevels + 1; }

    std::vector<float> burst()
    {
        const std::size_t begin = recorder_.frames();
        EXPECT_GT(program_.ask(QByteArray::fromStdString("burst " + files_)), 0);
        EXPECT_TRUE(recorder_.record(Clicks * QueueBeat + 1));
        return recorder_.left(begin);
    }

    static void expectWhole(const std::vector<float>& samples)
    {
        int levels = 0;
        for (int count = 0; count < Clicks; ++count) {
            levels += levelOf(count);
        }
        const double sum = std::accumulate(samples.begin(), samples.end(), 0.0);
        EXPECT_NEAR(sum * 2 * 32'768 / ClickStep / static_cast<double>(ClickFrames), levels, 0.5);
    }

    static void expectInOrderAndTime(const std::vector<HeardClick>& heard)
    {
        for (int count = 0; count < Clicks; ++count) {
            EXPECT_EQ(heard[static_cast<std::size_t>(count)].level, levelOf(count)) << count;
        }
        constexpr double Piece = 0.05; // the server begins sounds with its own pieces of time
        EXPECT_GE(static_cast<double>(heard.back().frame - heard.front().frame) / ClickRate,
                  (Clicks - 1) * QueueBeat - Piece);
    }

    SoundServer server_;
    TemporaryFolder folder_;
    std::string files_;
    SoundProgram program_{
        "sound_app", server_.environment(), {QString::fromStdString(folder_.native().string())}};
    Recorder recorder_{server_.environment(), ClickRate};
};

TEST_F(QueueHeard, ABurstIsHeardWholeInItsOrderAndInTime)
{
    std::vector<HeardClick> heard;
    for (int time = 0; time < 10 && heard.size() != Clicks;
         ++time) { // a busy computer lets two fall together
        const std::vector<float> samples = burst();
        expectWhole(samples);
        heard = clicksIn(samples);
    }
    ASSERT_EQ(heard.size(), static_cast<std::size_t>(Clicks));
    expectInOrderAndTime(heard);
}

TEST(SilentProgram, PicturesAreTakenWithoutASound)
{
    const SoundServer server;
    const TemporaryFolder folder;
    folder.write("click.wav", click(ClickLevels));
    const QString place = QString::fromStdString(folder.native().string());
    SoundProgram program("sound_app", server.environment(), {place, "--shots", place});
    ASSERT_TRUE(program.hasTold("ready"));
    Recorder recorder(server.environment(), ClickRate);
    const QByteArray file = QString(place).replace('/', '\\').toUtf8() + "\\click.wav";
    EXPECT_GT(program.ask("play " + file), 0);
    EXPECT_GE(program.ask("praise " + file), 0);
    ASSERT_TRUE(recorder.record(1));
    const std::vector<float> samples = recorder.left(0);
    EXPECT_TRUE(std::all_of(samples.begin(), samples.end(), [](float sample) { return sample == 0; }));
}

} // namespace
