#include "server/Announcement.h"

#include "support/Raises.h"

#include <gtest/gtest.h>

using namespace phial;

namespace
{

const Announcement Master{u"QV_PHIAL_MASTER|1.0|192.168.1.20|10049|10050|10051|30|QV1;0;"};

TEST(Announcement, StandsInItsDatagramByteByByte)
{
    EXPECT_EQ(encodeAnnouncement({u"ü"}), "QVA\x01\xC3\xBC");
    EXPECT_EQ(encodeAnnouncement({}), "QVA\x01");
}

TEST(Announcement, GivesBackWhatWasEncoded)
{
    EXPECT_EQ(decodeAnnouncement(encodeAnnouncement(Master)), Master);
    const auto question = decodeAnnouncement(encodeAnnouncement({}));
    ASSERT_TRUE(question);
    EXPECT_TRUE(question->isQuestion());
    EXPECT_FALSE(Master.isQuestion());
}

TEST(Announcement, IgnoresOtherDatagrams)
{
    EXPECT_FALSE(decodeAnnouncement(""));
    EXPECT_FALSE(decodeAnnouncement("QVA"));
    EXPECT_FALSE(decodeAnnouncement("QVA\x02text"));
    EXPECT_FALSE(decodeAnnouncement("M-SEARCH * HTTP/1.1"));
}

TEST(Announcement, IsBounded)
{
    const Announcement largest{String(MaxAnnouncementBytes - 4, u'a')};
    const std::string datagram = encodeAnnouncement(largest);
    EXPECT_EQ(decodeAnnouncement(datagram), largest);
    EXPECT_FALSE(decodeAnnouncement(datagram + "a"));
    EXPECT_RAISES(encodeAnnouncement({largest.settings + u"a"}), InvalidArgument);
}

} // namespace
