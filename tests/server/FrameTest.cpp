#include "server/Frame.h"

#include "support/Raises.h"

#include <gtest/gtest.h>
#include <random>
#include <vector>

using namespace phial;

namespace
{

const Frame Question{FrameKind::Request, {0x0102030405060708, 9}, u"SERVER::MODE::"};

std::string bytesOf(const std::vector<Frame>& frames)
{
    std::string bytes;
    for (const Frame& frame : frames) {
        bytes += encodeFrame(frame);
    }
    return bytes;
}

std::vector<Frame> framesIn(FrameReader& reader)
{
    std::vector<Frame> frames;
    while (auto frame = reader.next()) {
        frames.push_back(*std::move(frame));
    }
    return frames;
}

FrameProblem problemOf(std::string_view bytes, std::size_t maxTextBytes = MaxFrameTextBytes)
{
    FrameReader reader(maxTextBytes);
    reader.feed(bytes);
    return reader.problem();
}

// The question with one byte changed.
std::string withByte(std::size_t place, char value)
{
    std::string bytes = encodeFrame(Question);
    bytes[place] = value;
    return bytes;
}

TEST(Frame, StandsOnTheWireByteByByte)
{
    const std::string expected("QVF\x01" // mark and version
                               "\x01"    // request
                               "\x00"    // no flags
                               "\x01\x02\x03\x04\x05\x06\x07\x08"
                               "\x00\x00\x00\x00\x00\x00\x00\x09"
                               "\x00\x00\x00\x02"
                               "\xC3\xBC",
                               FrameHeadBytes + 2);
    EXPECT_EQ(encodeFrame({FrameKind::Request, {0x0102030405060708, 9}, u"ü"}), expected);
}

TEST(Frame, MarksARequestThatNobodyAwaits)
{
    const std::string bytes = encodeFrame({FrameKind::Request, {1, 2}, u"", true});
    EXPECT_EQ(bytes[5], '\x01');
}

TEST(Frame, RefusesATextBeyondTheBound)
{
    EXPECT_RAISES(encodeFrame({FrameKind::Message, {}, String(MaxFrameTextBytes + 1, u'a')}),
                  InvalidArgument);
    EXPECT_RAISES(encodeFrame({FrameKind::Message, {}, String(MaxFrameTextBytes / 2 + 1, u'ü')}),
                  InvalidArgument);
}

TEST(FrameReader, GivesBackWhatWasEncoded)
{
    const std::vector<Frame> frames{
        Question,
        {FrameKind::Answer, {~std::uint64_t{0}, ~std::uint64_t{0}}, u"008:Grüße, Ω, \U0001F9EA"},
        {FrameKind::Message, {}, String(u"a\0\r\n", 4)},
        {FrameKind::Request, {1, 2}, u"", true},
    };
    FrameReader reader;
    reader.feed(bytesOf(frames));
    EXPECT_EQ(framesIn(reader), frames);
    EXPECT_EQ(reader.problem(), FrameProblem::None);
    EXPECT_EQ(reader.pendingBytes(), 0U);
}

TEST(FrameReader, WaitsForTheRestOfAFrame)
{
    const std::string bytes = encodeFrame(Question);
    for (std::size_t length = 0; length < bytes.size(); ++length) {
        FrameReader reader;
        reader.feed(bytes.substr(0, length));
        EXPECT_FALSE(reader.next()) << length;
        EXPECT_EQ(reader.problem(), FrameProblem::None) << length;
        reader.feed(bytes.substr(length));
        EXPECT_EQ(reader.next(), Question) << length;
    }
}

TEST(FrameReader, TakesPiecesOfAnySize)
{
    std::mt19937 random(1);
    std::vector<Frame> frames;
    for (std::uint64_t number = 0; number < 300; ++number) {
        frames.push_back({FrameKind::Answer, {7, number}, String(random() % 500, u'x')});
    }
    const std::string bytes = bytesOf(frames);

    FrameReader reader;
    std::vector<Frame> read;
    for (std::size_t place = 0; place < bytes.size();) {
        const std::size_t piece = std::min<std::size_t>(random() % 2000, bytes.size() - place);
        reader.feed(std::string_view(bytes).substr(place, piece));
        place += piece;
        for (Frame& frame : framesIn(reader)) {
            read.push_back(std::move(frame));
        }
        EXPECT_LT(reader.pendingBytes(), FrameHeadBytes + 500);
    }
    EXPECT_EQ(read, frames);
}

TEST(FrameReader, TakesATextUpToTheBound)
{
    const Frame large{FrameKind::Answer, {1, 1}, String(MaxFrameTextBytes, u'a')};
    FrameReader reader;
    reader.feed(encodeFrame(large));
    EXPECT_EQ(reader.next(), large);
}

TEST(FrameReader, RefusesALengthBeyondTheBoundBeforeTheTextComes)
{
    const std::string bytes = encodeFrame(Question);
    const std::size_t length = Question.text.size();
    const std::string_view head = std::string_view(bytes).substr(0, FrameHeadBytes);
    EXPECT_EQ(problemOf(head, length), FrameProblem::None);
    EXPECT_EQ(problemOf(head, length - 1), FrameProblem::TooLong);
    EXPECT_EQ(problemOf(withByte(FrameHeadBytes - 4, '\x7F')), FrameProblem::TooLong);
}

TEST(FrameReader, SeesForeignBytesAtTheFirstOfThem)
{
    EXPECT_EQ(problemOf("G"), FrameProblem::Foreign);
    EXPECT_EQ(problemOf("QVX"), FrameProblem::Foreign);
    EXPECT_EQ(problemOf(withByte(3, '\x02')), FrameProblem::OtherVersion);
}

TEST(FrameReader, RefusesUnknownKindsAndFlags)
{
    EXPECT_EQ(problemOf(withByte(4, '\0')), FrameProblem::UnknownKind);
    EXPECT_EQ(problemOf(withByte(4, '\x04')), FrameProblem::UnknownKind);
    EXPECT_EQ(problemOf(withByte(5, '\x02')), FrameProblem::UnknownKind);
    std::string unawaitedAnswer = withByte(4, '\x02');
    unawaitedAnswer[5] = '\x01';
    EXPECT_EQ(problemOf(unawaitedAnswer), FrameProblem::UnknownKind);
}

TEST(FrameReader, GivesTheFramesInFrontOfAProblemAndNothingBehindIt)
{
    FrameReader reader;
    reader.feed(encodeFrame(Question) + "garbage" + encodeFrame(Question));
    EXPECT_EQ(reader.next(), Question);
    EXPECT_EQ(reader.problem(), FrameProblem::Foreign);
    reader.feed(encodeFrame(Question));
    EXPECT_FALSE(reader.next());
    EXPECT_EQ(reader.problem(), FrameProblem::Foreign);
    EXPECT_EQ(reader.pendingBytes(), 0U);
}

TEST(FrameReader, ReplacesIllFormedBytesOfAText)
{
    std::string bytes = encodeFrame({FrameKind::Message, {}, u"ab"});
    bytes.back() = '\xFF';
    FrameReader reader;
    reader.feed(bytes);
    const auto frame = reader.next();
    ASSERT_TRUE(frame);
    EXPECT_EQ(frame->text, u"a\uFFFD");
}

} // namespace
