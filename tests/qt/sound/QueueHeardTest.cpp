#include "HeardSamples.h"
#include "Recorder.h"
#include "SoundProgram.h"
#include "SoundServer.h"
#include "core/AudioOutput.h"
#include "core/WaveFile.h"
#include "support/Places.h"
#include "support/WaveBytes.h"

#include <algorithm>
#include <cmath>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <numeric>
#include <span>
#include <vector>

/// What is heard of sounds that wait for their turn in the queue of an app.
namespace
{

using namespace phial::test;

constexpr std::int32_t ClickRate = 44'100;
constexpr int ClickLevels = 8; // levels that tell sounds apart
constexpr int Clicks = 40;     // few enough that none fall together in most bursts
constexpr int ManyClicks = 100;
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

class InstalledSound
{
public:
    InstalledSound()
    {
        std::ifstream stream(file(), std::ios::binary);
        const auto sound = phial::decodeWave(std::string(std::istreambuf_iterator<char>(stream), {}));
        EXPECT_TRUE(sound && sound->sampleRate == ClickRate);
        int pauses = 0;
        samples_ = withoutSilence(sound->samples, pauses);
        seconds_ = sound->seconds();
    }

    static std::filesystem::path file() { return treeFolder() / "Resources/sfx/correct/Bravo.wav"; }
    double seconds() const { return seconds_; }

    /// Whether these are its samples, or nearly all of them.
    void expectSame(const std::vector<float>& heard) const
    {
        const std::size_t size = std::min(heard.size(), samples_.size());
        EXPECT_GE(static_cast<double>(heard.size()), 0.99 * static_cast<double>(samples_.size()));
        EXPECT_GE(correlation(std::span(heard).first(size), std::span(samples_).first(size)), 0.99);
    }

private:
    std::vector<float> samples_;
    double seconds_ = 0;
};

class QueueHeard : public testing::Test
{
protected:
    void SetUp() override
    {
        for (int count = 0; count < ManyClicks; ++count) {
            const std::string name = std::to_string(levelOf(count)) + ".wav";
            folder_.write(name, click(levelOf(count)));
            files_.push_back(systemText(folder_.native() / name));
        }
        ASSERT_TRUE(program_.hasTold("ready"));
    }

    static int levelOf(int count) { return count % ClickLevels + 1; }

    static std::string systemText(const std::filesystem::path& file)
    {
        std::string text = file.string();
        std::replace(text.begin(), text.end(), '/', '\\');
        return text;
    }

    std::vector<float> burst(int count)
    {
        std::string files;
        for (int file = 0; file < count; ++file) {
            files += (file > 0 ? "|" : "") + files_[static_cast<std::size_t>(file)];
        }
        const std::size_t begin = recorder_.frames();
        EXPECT_GT(program_.ask(QByteArray::fromStdString("burst " + files)), 0);
        EXPECT_TRUE(recorder_.record(count * QueueBeat + 1));
        return recorder_.left(begin);
    }

    /// Gives an order with a sound until it is heard without a pause, which a busy computer makes. The
    /// answer.
    double expectHeard(const char* order, const InstalledSound& sound)
    {
        const testing::ScopedTrace trace(__FILE__, __LINE__, order);
        double answer = 0;
        int pauses = 1;
        for (int time = 0; time < 10 && pauses > 0; ++time) {
            const std::size_t begin = recorder_.frames();
            answer = program_.ask(QByteArray::fromStdString(order + systemText(InstalledSound::file())));
            EXPECT_TRUE(recorder_.record(sound.seconds() + 0.6));
            sound.expectSame(withoutSilence(recorder_.left(begin), pauses));
        }
        EXPECT_EQ(pauses, 0);
        return answer;
    }

    static void expectWhole(const std::vector<float>& samples, int clicks)
    {
        int levels = 0;
        for (int count = 0; count < clicks; ++count) {
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
    std::vector<std::string> files_;
    SoundProgram program_{
        "sound_app", server_.environment(), {QString::fromStdString(folder_.native().string())}};
    Recorder recorder_{server_.environment(), ClickRate};
};

TEST_F(QueueHeard, ABurstIsHeardWholeInItsOrderAndInTime)
{
    std::vector<HeardClick> heard;
    for (int time = 0; time < 10 && heard.size() != Clicks;
         ++time) { // a busy computer lets two fall together
        const std::vector<float> samples = burst(Clicks);
        expectWhole(samples, Clicks);
        heard = clicksIn(samples);
    }
    ASSERT_EQ(heard.size(), static_cast<std::size_t>(Clicks));
    expectInOrderAndTime(heard);
}

TEST_F(QueueHeard, OfAHundredNoneIsLost)
{
    expectWhole(burst(ManyClicks), ManyClicks);
}

TEST_F(QueueHeard, ASoundBeginsSoonBehindItsCall)
{
    constexpr double SoonEnough = 0.15; // the queue, the server, and the recording
    double onset = 1;
    for (int time = 0; time < 10 && onset > SoonEnough; ++time) { // a busy computer takes longer
        const std::size_t begin = recorder_.frames();
        EXPECT_GT(program_.ask(QByteArray::fromStdString("play " + files_.front())), 0);
        EXPECT_TRUE(recorder_.record(0.5));
        const std::vector<float> samples = recorder_.left(begin);
        const auto first = std::find_if_not(samples.begin(), samples.end(), isSilent);
        ASSERT_NE(first, samples.end());
        onset = static_cast<double>(first - samples.begin()) / ClickRate;
    }
    EXPECT_LE(onset, SoonEnough);
}

/// An installed one, by the queue and by the praise window, also when that is closed at once.
TEST_F(QueueHeard, ASoundIsHeardAsItsFile)
{
    const InstalledSound bravo;
    expectHeard("play ", bravo);
    EXPECT_GE(expectHeard("praise ", bravo), bravo.seconds());
    EXPECT_LE(expectHeard("leave ", bravo), bravo.seconds() / 2);
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
