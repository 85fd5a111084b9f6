#include "server/RequestIds.h"

#include <gtest/gtest.h>
#include <set>

using namespace phial;

namespace
{

constexpr StringView Address = u"127.0.0.1:10049";
constexpr StringView Submission = u"RESULTS::SUBMIT::QV1;0;";

class RequestIdsTest : public testing::Test
{
protected:
    FrameId take(StringView text, double now = 100) { return ids_.take(Address, text, now); }
    void unanswered(StringView text, FrameId id, double now = 100)
    {
        ids_.unanswered(Address, text, id, now);
    }

    RequestIds ids_{77};
};

TEST_F(RequestIdsTest, BearTheirSenderAndDiffer)
{
    std::set<FrameId> seen;
    for (int i = 0; i < 1000; ++i) {
        const FrameId id = take(Submission);
        EXPECT_EQ(id.sender, 77U);
        EXPECT_TRUE(seen.insert(id).second);
    }
}

TEST_F(RequestIdsTest, StayWithATextThatGotNoAnswer)
{
    const FrameId first = take(Submission);
    unanswered(Submission, first);
    EXPECT_EQ(take(Submission), first);
    unanswered(Submission, first);
    EXPECT_EQ(take(Submission), first);
}

TEST_F(RequestIdsTest, AreNewForAnEqualTextAfterAnAnswer)
{
    const FrameId first = take(Submission);
    EXPECT_NE(take(Submission), first);
}

TEST_F(RequestIdsTest, ServeOneRepetitionOnly)
{
    const FrameId first = take(Submission);
    unanswered(Submission, first);
    EXPECT_EQ(take(Submission), first);
    EXPECT_NE(take(Submission), first);
}

TEST_F(RequestIdsTest, AreNewForOtherTextsAndOtherReceivers)
{
    const FrameId first = take(Submission);
    unanswered(Submission, first);
    EXPECT_NE(take(u"RESULTS::SUBMIT::QV1;1;E0=;"), first);
    EXPECT_NE(ids_.take(u"127.0.0.1:10050", Submission, 100), first);
    EXPECT_EQ(take(Submission), first);
}

TEST_F(RequestIdsTest, KeepTwoEqualTextsApartThatWaitedAtATime)
{
    const FrameId outer = take(Submission);
    const FrameId inner = take(Submission);
    unanswered(Submission, inner);
    EXPECT_EQ(take(Submission), inner);
    unanswered(Submission, inner);
    unanswered(Submission, outer);
    EXPECT_EQ(take(Submission), outer);
    EXPECT_EQ(take(Submission), inner);
}

TEST_F(RequestIdsTest, AreNewForATextThatComesAgainMuchLater)
{
    const FrameId first = take(Submission);
    unanswered(Submission, first, 100);
    EXPECT_NE(take(Submission, 100.1 + RequestIds::RepetitionSeconds), first);
}

TEST_F(RequestIdsTest, ForgetTheOldestTextsWithoutAnswer)
{
    const FrameId first = take(Submission);
    unanswered(Submission, first);
    for (std::size_t i = 0; i < RequestIds::Remembered; ++i) {
        const String other(i + 1, u'x');
        unanswered(other, take(other));
    }
    EXPECT_NE(take(Submission), first);
}

} // namespace
