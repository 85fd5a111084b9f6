#include "qt/sound/VoiceBoard.h"

#include <gmock/gmock-more-matchers.h>
#include <gtest/gtest.h>

namespace
{

using namespace phial;
using phial::qt::VoiceBoard;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using Voice = AudioOutput::Voice;

std::shared_ptr<const Sound> soundOf(double seconds)
{
    constexpr std::int32_t Rate = 8000;
    return std::make_shared<const Sound>(
        Sound{Rate, 1, std::vector<float>(static_cast<std::size_t>(seconds * Rate))});
}

std::vector<Voice> begunAt(VoiceBoard& board, double now)
{
    std::vector<Voice> voices;
    for (const VoiceBoard::Waiting& waiting : board.take(now).begun) {
        voices.push_back(waiting.voice);
    }
    return voices;
}

TEST(VoiceBoard, SoundsAreTakenOnceInTheirOrder)
{
    VoiceBoard board;
    const Voice first = board.add(soundOf(1), 0);
    const Voice second = board.add(soundOf(1), 0.1);
    EXPECT_THAT(begunAt(board, 0.1), ElementsAre(first, second));
    EXPECT_THAT(begunAt(board, 0.2), IsEmpty());
}

TEST(VoiceBoard, AVoicePlaysByTheClockThoughNobodyBeginsIt)
{
    VoiceBoard board;
    const Voice voice = board.add(soundOf(1), 10);
    EXPECT_EQ(board.end(voice), 11);
    EXPECT_TRUE(board.isPlaying(voice, 10.99));
    EXPECT_FALSE(board.isPlaying(voice, 11));
}

TEST(VoiceBoard, AShortSoundIsBegunThoughItIsOverByThen)
{
    VoiceBoard board;
    const Voice first = board.add(soundOf(0.01), 0);
    const Voice second = board.add(soundOf(0.01), 0.025);
    EXPECT_THAT(begunAt(board, VoiceBoard::LatestSeconds), ElementsAre(first, second));
}

TEST(VoiceBoard, WhatIsFarTooLateIsNotBegun)
{
    VoiceBoard board;
    const Voice late = board.add(soundOf(10), 0);
    const Voice fresh = board.add(soundOf(10), 1);
    EXPECT_THAT(begunAt(board, VoiceBoard::LatestSeconds + 0.5), ElementsAre(fresh));
    EXPECT_FALSE(board.isPlaying(late, 3));
    EXPECT_TRUE(board.isPlaying(fresh, 3));
}

TEST(VoiceBoard, AFifthSoundEndsTheOldestThatPlays)
{
    VoiceBoard board;
    board.add(soundOf(0.5), 0);
    const Voice oldest = board.add(soundOf(10), 0);
    board.take(0);
    for (int count = 0; count < 3; ++count) {
        board.add(soundOf(10), 1);
    }
    EXPECT_TRUE(board.isPlaying(oldest, 1));
    const Voice further = board.add(soundOf(10), 1);
    EXPECT_FALSE(board.isPlaying(oldest, 1));
    const VoiceBoard::Work work = board.take(1);
    EXPECT_THAT(work.stopped, ElementsAre(oldest));
    EXPECT_THAT(work.begun, SizeIs(4));
    EXPECT_EQ(work.begun.back().voice, further);
}

TEST(VoiceBoard, NoMoreWaitThanThereIsRoomFor)
{
    VoiceBoard board;
    for (std::size_t count = 0; count < 3 * VoiceBoard::MostWaiting; ++count) {
        board.add(soundOf(0.001), 0.01 * static_cast<double>(count));
    }
    const std::vector<Voice> begun = begunAt(board, 0.5);
    EXPECT_THAT(begun, SizeIs(VoiceBoard::MostWaiting));
    EXPECT_EQ(begun.back(), Voice{3 * VoiceBoard::MostWaiting});
}

TEST(VoiceBoard, WhatIsStoppedBeforeItWasBegunIsNotBegun)
{
    VoiceBoard board;
    const Voice voice = board.add(soundOf(1), 0);
    board.stop(voice);
    EXPECT_FALSE(board.isPlaying(voice, 0));
    const VoiceBoard::Work work = board.take(0);
    EXPECT_THAT(work.begun, IsEmpty());
    EXPECT_THAT(work.stopped, IsEmpty());
}

TEST(VoiceBoard, WhatIsStoppedWhileItPlaysIsToBeCutOffOnce)
{
    VoiceBoard board;
    const Voice voice = board.add(soundOf(1), 0);
    board.take(0);
    board.stop(voice);
    board.stop(voice);
    EXPECT_THAT(board.take(0).stopped, ElementsAre(voice));
    EXPECT_THAT(board.take(0).stopped, IsEmpty());
}

TEST(VoiceBoard, WhatIsOverRingsOut)
{
    VoiceBoard board;
    const Voice voice = board.add(soundOf(1), 0);
    board.take(0);
    board.add(soundOf(1), 1);
    EXPECT_EQ(board.end(voice), std::nullopt);
    EXPECT_THAT(board.take(1).stopped, IsEmpty());
}

TEST(VoiceBoard, ALostVoiceIsOverAndSoIsTheDevice)
{
    VoiceBoard board;
    const Voice voice = board.add(soundOf(1), 0);
    const Voice other = board.add(soundOf(1), 0);
    board.take(0);
    board.hasDevice(true);
    board.lose(voice);
    EXPECT_FALSE(board.isPlaying(voice, 0));
    EXPECT_TRUE(board.isPlaying(other, 0));
    EXPECT_EQ(board.hasDevice(), false);
}

TEST(VoiceBoard, NothingIsKnownOfTheDeviceBeforeTheFirstLook)
{
    VoiceBoard board;
    EXPECT_EQ(board.hasDevice(), std::nullopt);
    EXPECT_EQ(board.hasDeviceWithin(std::chrono::milliseconds(1)), std::nullopt);
    board.hasDevice(true);
    EXPECT_EQ(board.hasDevice(), true);
    EXPECT_EQ(board.hasDeviceWithin(std::chrono::hours(1)), true);
}

TEST(VoiceBoard, AClosedBoardHasNothingMoreToBegin)
{
    VoiceBoard board;
    const Voice voice = board.add(soundOf(1), 0);
    EXPECT_FALSE(board.take(0).isClosed);
    board.add(soundOf(1), 0);
    board.close();
    const VoiceBoard::Work work = board.take(0);
    EXPECT_TRUE(work.isClosed);
    EXPECT_THAT(work.begun, IsEmpty());
    EXPECT_FALSE(board.isPlaying(voice, 0));
}

TEST(VoiceBoard, TheGainIsTheLastThatWasSet)
{
    VoiceBoard board;
    EXPECT_EQ(board.gain(), 1);
    board.gain(0.25);
    EXPECT_EQ(board.gain(), 0.25);
}

} // namespace
