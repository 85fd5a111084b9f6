#include "core/WaveFile.h"

#include "core/AudioOutput.h"
#include "core/FileSystem.h"
#include "headless/FaultyFileSystem.h"
#include "support/TemporaryFolder.h"
#include "support/WaveBytes.h"

#include <bit>
#include <cstdint>
#include <filesystem>
#include <gmock/gmock-matchers.h>
#include <gtest/gtest.h>
#include <limits>
#include <memory>
#include <string>
#include <vector>

namespace
{

using namespace phial;
using namespace phial::test;
using testing::ElementsAre;

std::vector<float> samplesOf(const std::string& bytes)
{
    const auto sound = decodeWave(bytes);
    return sound ? sound->samples : std::vector<float>{-99};
}

std::string whole(std::int64_t number, int bytes)
{
    return littleEndian(static_cast<std::uint64_t>(number), bytes);
}

std::string single(float value)
{
    return littleEndian(std::bit_cast<std::uint32_t>(value), 4);
}

std::string twice(double value)
{
    return littleEndian(std::bit_cast<std::uint64_t>(value), 8);
}

const WaveHeader Plain{};
const std::string ThreeSamples = whole(16384, 2) + whole(-32768, 2) + whole(1, 2);
const auto TheThree = ElementsAre(0.5F, -1.0F, 1.0F / 32768);

TEST(WaveFile, TellsRateChannelsAndSamples)
{
    const auto sound = decodeWave(waveFile({1, 2, 48'000, 16}, whole(16384, 2) + whole(-16384, 2)));
    ASSERT_TRUE(sound);
    EXPECT_EQ(sound->sampleRate, 48'000);
    EXPECT_EQ(sound->channels, 2);
    EXPECT_THAT(sound->samples, ElementsAre(0.5F, -0.5F));
}

TEST(WaveFile, ReadsWholeNumbersOfEachWidth)
{
    EXPECT_THAT(samplesOf(waveFile({1, 1, 44'100, 8}, {'\x80', '\xC0', '\0', '\xFF'})),
                ElementsAre(0.0F, 0.5F, -1.0F, 127.0F / 128));
    EXPECT_THAT(samplesOf(waveFile(Plain, ThreeSamples)), TheThree);
    EXPECT_THAT(
        samplesOf(waveFile({1, 1, 44'100, 24}, whole(1 << 22, 3) + whole(-(1 << 23), 3) + whole(-1, 3))),
        ElementsAre(0.5F, -1.0F, -1.0F / (1 << 23)));
    EXPECT_THAT(samplesOf(waveFile({1, 1, 44'100, 32}, whole(1 << 30, 4) + whole(-(1LL << 31), 4))),
                ElementsAre(0.5F, -1.0F));
}

TEST(WaveFile, ReadsWidthsThatFillNoBytes)
{
    EXPECT_THAT(samplesOf(waveFile({1, 1, 44'100, 12}, whole(16384, 2))), ElementsAre(0.5F));
    EXPECT_THAT(samplesOf(waveFile({1, 1, 44'100, 20}, whole(1 << 22, 3))), ElementsAre(0.5F));
}

TEST(WaveFile, ReadsFloatingPointNumbers)
{
    EXPECT_THAT(samplesOf(waveFile({3, 1, 44'100, 32}, single(0.25F) + single(-1))),
                ElementsAre(0.25F, -1.0F));
    EXPECT_THAT(samplesOf(waveFile({3, 1, 44'100, 64}, twice(0.25) + twice(-1))), ElementsAre(0.25F, -1.0F));
}

TEST(WaveFile, HoldsFloatingPointNumbersWithinTheRange)
{
    constexpr float Endless = std::numeric_limits<float>::infinity();
    constexpr float Nothing = std::numeric_limits<float>::quiet_NaN();
    EXPECT_THAT(samplesOf(waveFile({3, 1, 44'100, 32}, single(7) + single(-Endless) + single(Nothing))),
                ElementsAre(1.0F, -1.0F, 0.0F));
    EXPECT_THAT(samplesOf(waveFile({3, 1, 44'100, 64}, twice(1e300))), ElementsAre(1.0F));
}

TEST(WaveFile, ReadsTheExtensibleHeader)
{
    const std::string format = chunk("fmt ", extensibleContent(Plain));
    EXPECT_THAT(samplesOf(waveFile(format + chunk("data", ThreeSamples))), TheThree);
    const std::string floating = chunk("fmt ", extensibleContent({3, 1, 44'100, 32}));
    EXPECT_THAT(samplesOf(waveFile(floating + chunk("data", single(0.5F)))), ElementsAre(0.5F));
}

TEST(WaveFile, DoesNotTakeAnExtensibleHeaderThatIsCutOff)
{
    const std::string format = chunk("fmt ", extensibleContent(Plain).substr(0, 38));
    EXPECT_FALSE(decodeWave(waveFile(format + chunk("data", ThreeSamples))));
}

TEST(WaveFile, TakesTheFirstTwoOfMoreChannels)
{
    const std::string frame = whole(16384, 2) + whole(-16384, 2) + whole(1, 2);
    const auto sound = decodeWave(waveFile({1, 3, 44'100, 16}, frame + frame));
    ASSERT_TRUE(sound);
    EXPECT_EQ(sound->channels, 2);
    EXPECT_THAT(sound->samples, ElementsAre(0.5F, -0.5F, 0.5F, -0.5F));
}

TEST(WaveFile, PassesOverOtherChunksOfOddAndEvenLength)
{
    const std::string format = chunk("fmt ", formatContent(Plain));
    for (const char* const content : {"", "a", "ab", "abc"}) {
        const std::string other = chunk("LIST", content);
        EXPECT_THAT(samplesOf(waveFile(other + format + other + chunk("data", ThreeSamples) + other)),
                    TheThree)
            << content;
    }
}

TEST(WaveFile, LeavesOutTheByteBehindOddData)
{
    EXPECT_THAT(samplesOf(waveFile({1, 1, 44'100, 8}, {'\xC0'})), ElementsAre(0.5F));
}

TEST(WaveFile, TakesWhatIsThereOfDataThatAreCutOff)
{
    const std::string whole = waveFile(Plain, ThreeSamples);
    EXPECT_THAT(samplesOf(whole.substr(0, whole.size() - 1)), ElementsAre(0.5F, -1.0F));
    EXPECT_THAT(samplesOf(whole.substr(0, whole.size() - 2)), ElementsAre(0.5F, -1.0F));
    EXPECT_THAT(samplesOf(whole.substr(0, whole.size() - 6)), ElementsAre());
}

TEST(WaveFile, TakesWhatIsThereOfALengthThatIsTooGreat)
{
    const std::string head = "RIFF\xFF\xFF\xFF\xFFWAVE" + chunk("fmt ", formatContent(Plain));
    EXPECT_THAT(samplesOf(head + "data\xFF\xFF\xFF\xFF" + ThreeSamples), TheThree);
}

TEST(WaveFile, ReadsNothingBehindTenMinutes)
{
    const std::size_t longest = 8'000 * MaxWaveSeconds;
    const auto sound = decodeWave(waveFile({1, 1, 8'000, 8}, std::string(longest + 1, '\0')));
    ASSERT_TRUE(sound);
    EXPECT_EQ(sound->samples.size(), longest);
}

TEST(WaveFile, IsNoLargerThan64Megabytes)
{
    const std::string head = chunk("fmt ", formatContent(Plain)) + chunk("data", ThreeSamples);
    std::string bytes = waveFile(head);
    bytes.resize(MaxWaveBytes);
    EXPECT_TRUE(decodeWave(bytes));
    bytes += '\0';
    EXPECT_FALSE(decodeWave(bytes));
}

TEST(WaveFile, TakesRatesFrom8000To192000)
{
    const auto isRead = [](std::uint32_t rate) {
        return decodeWave(waveFile({1, 1, rate, 16}, ThreeSamples)) != nullptr;
    };
    EXPECT_TRUE(isRead(8'000));
    EXPECT_TRUE(isRead(192'000));
    EXPECT_FALSE(isRead(7'999));
    EXPECT_FALSE(isRead(192'001));
    EXPECT_FALSE(isRead(0));
}

TEST(WaveFile, DoesNotTakeWhatIsNoSoundOrAnotherKindOfSound)
{
    EXPECT_FALSE(decodeWave(""));
    EXPECT_FALSE(decodeWave("RIFF"));
    EXPECT_FALSE(decodeWave("no sound at all, but long enough for a head"));
    EXPECT_FALSE(decodeWave(waveFile("")));
    EXPECT_FALSE(decodeWave(waveFile(chunk("fmt ", formatContent(Plain)))));
    EXPECT_FALSE(decodeWave(waveFile(chunk("data", ThreeSamples) + chunk("fmt ", formatContent(Plain)))));
    EXPECT_FALSE(
        decodeWave(waveFile(chunk("fmt ", formatContent(Plain).substr(0, 14)) + chunk("data", "ab"))));
    std::string other = waveFile(Plain, ThreeSamples);
    EXPECT_FALSE(decodeWave(other.replace(8, 4, "AVI ")));
}

TEST(WaveFile, DoesNotTakeFormatsThatItCannotPlay)
{
    const auto isRead = [](const WaveHeader& header) {
        return decodeWave(waveFile(header, std::string(64, 'x'))) != nullptr;
    };
    EXPECT_TRUE(isRead({1, 1, 44'100, 16}));
    EXPECT_FALSE(isRead({2, 1, 44'100, 4}));
    EXPECT_FALSE(isRead({1, 0, 44'100, 16}));
    EXPECT_FALSE(isRead({1, 1, 44'100, 0}));
    EXPECT_FALSE(isRead({1, 1, 44'100, 40}));
    EXPECT_FALSE(isRead({3, 1, 44'100, 16}));
    EXPECT_FALSE(isRead({3, 1, 44'100, 24}));
}

TEST(WaveFile, DoesNotTakeFramesOfAnotherLengthThanTheirSamples)
{
    std::string format = formatContent(Plain);
    format[12] = 4;
    EXPECT_FALSE(decodeWave(waveFile(chunk("fmt ", format) + chunk("data", ThreeSamples))));
}

class WaveFileOnDisk : public testing::Test
{
protected:
    TemporaryFolder folder_;
    headless::FaultyFileSystem files_{std::make_shared<NativeFileSystem>()};
};

TEST_F(WaveFileOnDisk, IsRead)
{
    folder_.write("a.wav", waveFile(Plain, ThreeSamples));
    const auto sound = loadWave(files_, folder_.native() / "a.wav");
    ASSERT_TRUE(sound);
    EXPECT_THAT(sound->samples, TheThree);
}

TEST_F(WaveFileOnDisk, IsNothingWhereItCannotBeRead)
{
    folder_.write("a.wav", waveFile(Plain, ThreeSamples));
    EXPECT_FALSE(loadWave(files_, folder_.native() / "b.wav"));
    EXPECT_FALSE(loadWave(files_, folder_.native()));
    files_.fail(headless::FileStep::Read);
    EXPECT_FALSE(loadWave(files_, folder_.native() / "a.wav"));
    files_.fail(headless::FileStep::Status);
    EXPECT_FALSE(loadWave(files_, folder_.native() / "a.wav"));
}

TEST_F(WaveFileOnDisk, IsNotEvenReadWhenItIsTooLarge)
{
    folder_.write("a.wav", waveFile(Plain, ThreeSamples));
    std::filesystem::resize_file(folder_.native() / "a.wav", MaxWaveBytes + 1);
    files_.fail(headless::FileStep::Read);
    const int before = files_.steps();
    EXPECT_FALSE(loadWave(files_, folder_.native() / "a.wav"));
    EXPECT_EQ(files_.steps(), before + 1);
}

} // namespace
