#include "qt/base/MasterSearch.h"

#include "server/Announcement.h"

#include <QNetworkDatagram>
#include <QUdpSocket>

#include <gtest/gtest.h>

namespace phial::qt
{
namespace
{

constexpr std::chrono::milliseconds Patience{200};

// A computer of the network, on a port of its own, that answers whatever comes in.
class MasterSearchTest : public testing::Test
{
protected:
    MasterSearchTest()
    {
        socket_.bind(QHostAddress(QHostAddress::LocalHost));
        QObject::connect(&socket_, &QUdpSocket::readyRead, &socket_, [this] { answer(); });
    }

    std::vector<FoundMaster> search() { return findMasters(socket_.localPort(), Patience); }

    std::vector<std::string> answers; // all of them to each datagram
    std::vector<std::string> received;

private:
    void answer()
    {
        while (socket_.hasPendingDatagrams()) {
            const QNetworkDatagram datagram = socket_.receiveDatagram();
            received.push_back(datagram.data().toStdString());
            for (const std::string& bytes : answers) {
                socket_.writeDatagram(datagram.makeReply(QByteArray::fromStdString(bytes)));
            }
        }
    }

    QUdpSocket socket_;
};

TEST_F(MasterSearchTest, GivesAddressAndSettingsOfAMasterThatAnswers)
{
    const String settings = u"QV_PHIAL_MASTER|1.0|127.0.0.1|10049|10050|10051|30|";
    answers = {encodeAnnouncement({settings})};

    EXPECT_EQ(search(), (std::vector<FoundMaster>{{u"127.0.0.1", settings}}));
    ASSERT_FALSE(received.empty());
    EXPECT_TRUE(decodeAnnouncement(received.front())->isQuestion());
}

TEST_F(MasterSearchTest, NamesAMasterOnceThatAnswersTwice)
{
    answers = {encodeAnnouncement({u"first"}), encodeAnnouncement({u"second"})};

    EXPECT_EQ(search(), (std::vector<FoundMaster>{{u"127.0.0.1", u"first"}}));
}

TEST_F(MasterSearchTest, OverlooksWhatIsNoAnnouncementAndOtherQuestions)
{
    answers = {"", "hello", encodeAnnouncement({}), std::string(60'000, 'x')};

    EXPECT_TRUE(search().empty());
    EXPECT_FALSE(received.empty());
}

TEST_F(MasterSearchTest, FindsNobodyWhereNobodyAnswers)
{
    EXPECT_TRUE(search().empty());
}

} // namespace
} // namespace phial::qt
