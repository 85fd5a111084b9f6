#include "core/CoreNetMessage.h"
#include "qt/Eventually.h"
#include "qt/base/NetLimits.h"
#include "qt/base/QtNetClient.h"
#include "server/Frame.h"
#include "support/Raises.h"

#include <QTcpServer>
#include <QTcpSocket>

#include <gtest/gtest.h>
#include <memory>
#include <string_view>
#include <vector>

using namespace phial;
using namespace phial::qt;
using phial::test::eventually;

namespace
{

/// A client that listens, and callers from this computer.
class NetPortTest : public testing::Test
{
protected:
    NetPortTest()
    {
        guard_->setReporter([](const String& text) { ADD_FAILURE() << toUtf8(text); });
        client_->EnableReceive(true);
        client_->OpenPort(0);
        received_ = client_->RECEIVED.connect([this](const CoreNetMessage& message, bool& rHandled) {
            heard_.push_back(message);
            rHandled = true;
        });
    }

    std::unique_ptr<QTcpSocket> call(std::string_view bytes)
    {
        auto socket = std::make_unique<QTcpSocket>();
        socket->connectToHost(QHostAddress::LocalHost, static_cast<quint16>(client_->openPort()));
        EXPECT_TRUE(socket->waitForConnected(5000));
        send(*socket, bytes);
        return socket;
    }
    static void send(QTcpSocket& socket, std::string_view bytes)
    {
        socket.write(bytes.data(), static_cast<qint64>(bytes.size()));
        socket.flush();
    }
    static std::string message(StringView text)
    {
        return encodeFrame({FrameKind::Message, {1, 1}, String(text)});
    }
    static bool wasDropped(const QTcpSocket& caller)
    {
        return eventually([&] { return caller.state() == QAbstractSocket::UnconnectedState; });
    }
    bool heardOf(StringView text)
    {
        return eventually([&] { return !heard_.empty() && heard_.back().Text() == text; });
    }

    std::shared_ptr<DispatchGuard> guard_ = std::make_shared<DispatchGuard>();
    std::unique_ptr<QtNetClient> client_ = std::make_unique<QtNetClient>(guard_);
    std::vector<CoreNetMessage> heard_;
    Connection received_;
};

TEST_F(NetPortTest, HandsOutMessagesWithTheirSender)
{
    const auto caller = call(message(u"Grüße") + message(u"again"));
    ASSERT_TRUE(heardOf(u"again"));
    ASSERT_EQ(heard_.size(), 2U);
    EXPECT_EQ(heard_[0].Text(), u"Grüße");
    EXPECT_EQ(heard_[0].SenderAddress(), u"127.0.0.1");
    EXPECT_EQ(heard_[0].SenderPort(), caller->localPort());
}

TEST_F(NetPortTest, HearsACallerThatHangsUpAtOnce)
{
    const auto caller = call(message(u"in a hurry"));
    caller->disconnectFromHost();
    EXPECT_TRUE(heardOf(u"in a hurry"));
}

TEST_F(NetPortTest, DropsWhatComesBeforeReceptionIsSwitchedOn)
{
    client_->EnableReceive(false);
    const auto caller = call(message(u"early"));
    QtNetClient other(guard_);
    EXPECT_TRUE(eventually([&] { return caller->bytesToWrite() == 0; }));
    // What follows on the same connection comes behind it.
    int told = 0;
    const Connection late = client_->RECEIVED.connect([&](const CoreNetMessage&, bool&) { ++told; });
    send(*caller, "garbage");
    EXPECT_TRUE(wasDropped(*caller));
    client_->EnableReceive(true);
    const auto second = call(message(u"now"));
    EXPECT_TRUE(heardOf(u"now"));
    EXPECT_EQ(told, 1);
}

TEST_F(NetPortTest, RaisesForAPortThatIsTaken)
{
    QTcpServer other;
    ASSERT_TRUE(other.listen(QHostAddress::Any));
    EXPECT_RAISES(client_->OpenPort(other.serverPort()), DeviceUnavailable);
    EXPECT_EQ(client_->openPort(), 0);
    EXPECT_RAISES(client_->OpenPort(-1), DeviceUnavailable);
    EXPECT_RAISES(client_->OpenPort(65536), DeviceUnavailable);
}

TEST_F(NetPortTest, IsFreeAgainAfterClose)
{
    const std::int32_t port = client_->openPort();
    client_->Close();
    EXPECT_EQ(client_->openPort(), 0);
    QtNetClient other(guard_);
    other.OpenPort(port);
    EXPECT_EQ(other.openPort(), port);
}

TEST_F(NetPortTest, DropsCallersThatSendAnythingElse)
{
    const auto foreign = call("GET / HTTP/1.1\r\n\r\n");
    const auto asking = call(encodeFrame({FrameKind::Request, {1, 1}, u"SERVER::MODE::"}));
    const auto answering = call(encodeFrame({FrameKind::Answer, {1, 1}, u"008:LOGON:OK"}));
    EXPECT_TRUE(wasDropped(*foreign));
    EXPECT_TRUE(wasDropped(*asking));
    EXPECT_TRUE(wasDropped(*answering));
    const auto caller = call(message(u"still listening"));
    EXPECT_TRUE(heardOf(u"still listening"));
    EXPECT_EQ(heard_.size(), 1U);
}

TEST_F(NetPortTest, DropsMessagesBeyondTheBound)
{
    const auto caller = call(message(String(NetLimits().textBytes, u'a')));
    EXPECT_TRUE(heardOf(String(NetLimits().textBytes, u'a')));
    send(*caller, message(String(NetLimits().textBytes + 1, u'a')).substr(0, FrameHeadBytes));
    EXPECT_TRUE(wasDropped(*caller));
}

TEST_F(NetPortTest, DropsCallersThatBreakOffWithinAMessage)
{
    client_->Options().ReceiveTimeout = 0.02;
    client_->OpenPort(0);
    const auto caller = call(message(u"half of it").substr(0, FrameHeadBytes + 3));
    EXPECT_TRUE(wasDropped(*caller));
    EXPECT_TRUE(heard_.empty());
}

TEST_F(NetPortTest, KeepsCallersThatAreSilentBetweenMessages)
{
    client_->Options().ReceiveTimeout = 0.001;
    client_->OpenPort(0);
    const auto caller = call(message(u"one"));
    ASSERT_TRUE(heardOf(u"one"));
    // A second caller's time runs out meanwhile.
    const auto half = call(message(u"half of it").substr(0, 10));
    EXPECT_TRUE(wasDropped(*half));
    send(*caller, message(u"two"));
    EXPECT_TRUE(heardOf(u"two"));
}

TEST_F(NetPortTest, LetsTheOldestCallerGoWhenTooManyAreThere)
{
    std::vector<std::unique_ptr<QTcpSocket>> callers;
    for (std::size_t i = 0; i < NetLimits().connections + 1; ++i) {
        callers.push_back(call(""));
        QCoreApplication::processEvents();
    }
    EXPECT_TRUE(wasDropped(*callers.front()));
    send(*callers.back(), message(u"the latest"));
    EXPECT_TRUE(heardOf(u"the latest"));
}

TEST_F(NetPortTest, DropsCallersThatFloodIt)
{
    std::string flood;
    for (int i = 0; i < 1000; ++i) {
        flood += message(u"unasked");
    }
    const auto caller = call(flood);
    EXPECT_TRUE(wasDropped(*caller));
    EXPECT_LT(heard_.size(), 100U);
}

TEST_F(NetPortTest, SurvivesTheEndOfTheClientInAHandler)
{
    bool ended = false;
    const Connection end = client_->RECEIVED.connect([&](const CoreNetMessage&, bool&) {
        client_.reset();
        ended = true;
    });
    const auto caller = call(message(u"one") + message(u"two"));
    EXPECT_TRUE(eventually([&] { return ended; }));
    EXPECT_TRUE(wasDropped(*caller));
    EXPECT_EQ(heard_.size(), 1U);
}

} // namespace
