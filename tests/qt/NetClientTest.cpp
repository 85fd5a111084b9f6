#include "core/CoreNetMessage.h"
#include "qt/Eventually.h"
#include "qt/LoopbackMaster.h"
#include "qt/base/QtEventPump.h"
#include "qt/base/QtNetClient.h"
#include "server/frm_NetMonitor.h"
#include "support/AppSession.h"
#include "support/Raises.h"
#include "visual/Form.h"
#include "visual/ListBox.h"
#include "visual/VisualHost.h"

#include <QElapsedTimer>
#include <QTcpSocket>
#include <QTimer>

#include <array>
#include <gtest/gtest.h>
#include <optional>
#include <vector>

#ifdef __linux__
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>
#endif

using namespace phial;
using namespace phial::qt;
using phial::test::eventually;
using phial::test::LoopbackMaster;

namespace
{

constexpr StringView NoAnswer = u"ERR:Timeout";
constexpr double Brief = 0.03; // seconds for which a test waits in vain

/// A client with a master on the same computer; tasks that the test posts run during the client's waits.
class NetClientTest : public testing::Test
{
protected:
    NetClientTest()
    {
        guard_->setReporter([](const String& text) { ADD_FAILURE() << toUtf8(text); });
        options().ResponseTimeout = 5;
    }

    CoreNetOptions& options() { return client_->Options(); }

    String ask(StringView text, bool wait = true)
    {
        return client_->Request(text, u"127.0.0.1", master_.port(), nullptr, wait, NoAnswer);
    }
    /// Asks and gives up soon.
    String askBriefly(StringView text)
    {
        options().ResponseTimeout = Brief;
        const String answer = ask(text);
        options().ResponseTimeout = 5;
        return answer;
    }
    void silence()
    {
        master_.script([](const Frame&, QTcpSocket&) {});
    }
    void echo()
    {
        master_.script([](const Frame& request, QTcpSocket& from) {
            LoopbackMaster::answer(from, request, request.text);
        });
    }
    FrameId idOf(std::size_t request) const { return master_.requests().at(request).id; }

    std::shared_ptr<DispatchGuard> guard_ = std::make_shared<DispatchGuard>();
    QtEventPump pump_{guard_};
    LoopbackMaster master_;
    std::unique_ptr<QtNetClient> client_ = std::make_unique<QtNetClient>(guard_);
};

TEST_F(NetClientTest, BringsTheAnswerToARequest)
{
    EXPECT_EQ(ask(u"SERVER::LOGON::Grüße \U0001F9EA"), u"SERVER::LOGON::Grüße \U0001F9EA");
    ASSERT_EQ(master_.requests().size(), 1U);
    EXPECT_EQ(master_.requests()[0].kind, FrameKind::Request);
    EXPECT_FALSE(master_.requests()[0].unawaited);
}

TEST_F(NetClientTest, KeepsOneConnectionForManyRequests)
{
    for (int i = 0; i < 20; ++i) {
        ask(u"SERVER::ALIVE::");
    }
    EXPECT_EQ(master_.connectionsMade(), 1);
}

TEST_F(NetClientTest, GivesTheTimeoutAnswerWhenNoneComes)
{
    silence();
    EXPECT_EQ(askBriefly(u"SERVER::MODE::"), NoAnswer);
}

TEST_F(NetClientTest, RunsEventsWhileItWaits)
{
    silence();
    bool ran = false;
    pump_.post([&] { ran = true; });
    askBriefly(u"SERVER::MODE::");
    EXPECT_TRUE(ran);
}

TEST_F(NetClientTest, DoesNotAwaitWhatNobodyWaitsFor)
{
    EXPECT_EQ(ask(u"EVENT::ADD::x", false), u"");
    EXPECT_TRUE(eventually([&] { return master_.requests().size() == 1; }));
    EXPECT_TRUE(master_.requests()[0].unawaited);
    EXPECT_EQ(ask(u"SERVER::MODE::"), u"SERVER::MODE::");
}

TEST_F(NetClientTest, GivesNestedRequestsTheirOwnAnswersInAnyOrder)
{
    // The outer answer comes first, while the inner request waits; the inner one ends first all the same.
    ask(u"connect");
    std::optional<Frame> outer;
    master_.script([&](const Frame& request, QTcpSocket& from) {
        if (request.text == u"outer") {
            outer = request;
            return;
        }
        LoopbackMaster::answer(from, *outer, u"to the outer one");
        LoopbackMaster::answer(from, request, u"to the inner one");
    });
    std::vector<String> ended;
    pump_.post([&] { ended.push_back(ask(u"inner")); });
    ended.push_back(ask(u"outer"));
    EXPECT_EQ(ended, (std::vector<String>{u"to the inner one", u"to the outer one"}));
}

TEST_F(NetClientTest, LetsAnOuterRequestRunOutWhileAnInnerOneIsAnswered)
{
    master_.script([&](const Frame& request, QTcpSocket& from) {
        if (request.text == u"connect") {
            LoopbackMaster::answer(from, request, u"");
        } else if (request.text == u"inner") {
            QTimer::singleShot(static_cast<int>(3000 * Brief), &from,
                               [&from, request] { LoopbackMaster::answer(from, request, u"late enough"); });
        }
    });
    ask(u"connect");
    String inner;
    pump_.post([&] {
        options().ResponseTimeout = 5;
        inner = ask(u"inner");
    });
    EXPECT_EQ(askBriefly(u"outer"), NoAnswer);
    EXPECT_EQ(inner, u"late enough");
}

TEST_F(NetClientTest, SendsTheSameTextAgainUnderItsIdAfterATimeout)
{
    silence();
    askBriefly(u"RESULTS::SUBMIT::x");
    askBriefly(u"RESULTS::SUBMIT::x");
    echo();
    EXPECT_EQ(ask(u"RESULTS::SUBMIT::x"), u"RESULTS::SUBMIT::x");
    ASSERT_EQ(master_.requests().size(), 3U);
    EXPECT_EQ(idOf(0), idOf(1));
    EXPECT_EQ(idOf(1), idOf(2));
}

TEST_F(NetClientTest, GivesAnEqualTextAfterAnAnswerANewId)
{
    ask(u"RESULTS::SUBMIT::x");
    ask(u"RESULTS::SUBMIT::x");
    EXPECT_NE(idOf(0), idOf(1));
}

TEST_F(NetClientTest, KeepsTheIdOverALostConnection)
{
    options().ResponseTimeout = 5;
    master_.script([&](const Frame&, QTcpSocket&) { master_.hangUp(); });
    EXPECT_RAISES(ask(u"RESULTS::SUBMIT::x"), DeviceUnavailable);
    echo();
    EXPECT_EQ(ask(u"RESULTS::SUBMIT::x"), u"RESULTS::SUBMIT::x");
    EXPECT_EQ(idOf(0), idOf(master_.requests().size() - 1));
}

TEST_F(NetClientTest, TellsClientsApart)
{
    QtNetClient other(guard_);
    ask(u"x");
    other.Request(u"x", u"127.0.0.1", master_.port(), nullptr, true, NoAnswer);
    EXPECT_NE(idOf(0).sender, idOf(1).sender);
}

TEST_F(NetClientTest, TakesTheLateAnswerToAnEarlierTry)
{
    std::optional<Frame> first;
    master_.script([&](const Frame& request, QTcpSocket& from) {
        if (first) {
            LoopbackMaster::answer(from, *first, u"late");
        }
        first = request;
    });
    EXPECT_EQ(askBriefly(u"SERVER::MODE::"), NoAnswer);
    EXPECT_EQ(ask(u"SERVER::MODE::"), u"late");
}

TEST_F(NetClientTest, DropsAnswersForWhichNobodyWaits)
{
    master_.script([&](const Frame& request, QTcpSocket& from) {
        LoopbackMaster::answer(from, {FrameKind::Request, {1, 2}, u"", false}, u"to nobody");
        LoopbackMaster::answer(from, request, u"the answer");
        LoopbackMaster::answer(from, request, u"the answer again");
    });
    EXPECT_EQ(ask(u"one"), u"the answer");
    EXPECT_EQ(ask(u"two"), u"the answer");
    EXPECT_EQ(master_.connectionsMade(), 1);
}

TEST_F(NetClientTest, TakesAnAnswerThatComesByteByByte)
{
    master_.script([](const Frame& request, QTcpSocket& from) {
        LoopbackMaster::sendInDrops(from, encodeFrame({FrameKind::Answer, request.id, u"008:LOGON:OK"}));
    });
    EXPECT_EQ(ask(u"SERVER::LOGON::Anna"), u"008:LOGON:OK");
}

TEST_F(NetClientTest, TakesTextsUpToTheBoundInBothDirections)
{
    options().ResponseTimeout = 60;
    const String large(MaxFrameTextBytes, u'a');
    EXPECT_EQ(ask(large), large);
    EXPECT_RAISES(ask(large + u"a"), InvalidArgument);
    EXPECT_EQ(ask(u"small"), u"small");
}

TEST_F(NetClientTest, RefusesAnAnswerBeyondTheBoundAndConnectsAnew)
{
    master_.script([](const Frame& request, QTcpSocket& from) {
        std::string bytes = encodeFrame({FrameKind::Answer, request.id, u""});
        bytes[FrameHeadBytes - 4] = '\x02'; // 32 MiB
        LoopbackMaster::send(from, bytes);
    });
    EXPECT_RAISES(ask(u"x"), DeviceUnavailable);
    echo();
    EXPECT_EQ(ask(u"x"), u"x");
    EXPECT_EQ(master_.connectionsMade(), 2);
}

TEST_F(NetClientTest, SurvivesGarbage)
{
    master_.script([](const Frame&, QTcpSocket& from) {
        LoopbackMaster::send(from, "HTTP/1.1 400 Bad Request\r\n\r\n");
    });
    EXPECT_RAISES(ask(u"x"), DeviceUnavailable);
    echo();
    EXPECT_EQ(ask(u"x"), u"x");
}

TEST_F(NetClientTest, RaisesSoonWhenTheConnectionIsRefused)
{
    master_.stop();
    QElapsedTimer timer;
    timer.start();
    EXPECT_RAISES(ask(u"x"), DeviceUnavailable);
    EXPECT_LT(timer.elapsed(), 3000);
}

TEST_F(NetClientTest, RaisesForAPortThatIsNone)
{
    EXPECT_RAISES(client_->Request(u"x", u"127.0.0.1", 0, nullptr, true, NoAnswer), InvalidArgument);
    EXPECT_RAISES(client_->Request(u"x", u"127.0.0.1", 65536, nullptr, true, NoAnswer), InvalidArgument);
}

TEST_F(NetClientTest, ReachesAMasterThatHasBeenStartedAgain)
{
    ask(u"one");
    master_.stop();
    master_.start();
    EXPECT_EQ(ask(u"two"), u"two");
    EXPECT_EQ(master_.connectionsMade(), 2);
}

TEST_F(NetClientTest, AsksOnceMoreWhenTheKeptConnectionBreaks)
{
    ask(u"one");
    bool broken = false;
    master_.script([&](const Frame& request, QTcpSocket& from) {
        if (!std::exchange(broken, true)) {
            master_.hangUp();
        } else {
            LoopbackMaster::answer(from, request, u"after all");
        }
    });
    EXPECT_EQ(ask(u"two"), u"after all");
    EXPECT_EQ(idOf(1), idOf(2));
}

TEST_F(NetClientTest, ConnectsAnewAfterTwoWaitsWithoutASignOfLife)
{
    silence();
    askBriefly(u"x");
    askBriefly(u"x");
    echo();
    EXPECT_EQ(ask(u"x"), u"x");
    EXPECT_EQ(master_.connectionsMade(), 2);
}

#ifdef __linux__

/// A computer that takes no connection and does not say so: its queue of those that wait is full.
class DeafComputer
{
public:
    DeafComputer() : socket_(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0))
    {
        sockaddr_in place = {};
        place.sin_family = AF_INET;
        place.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        auto* const address = reinterpret_cast<sockaddr*>(&place);
        socklen_t size = sizeof place;
        isDeaf_ = ::bind(socket_, address, size) == 0 && ::listen(socket_, 0) == 0 &&
                  ::getsockname(socket_, address, &size) == 0;
        port_ = ntohs(place.sin_port);
        for (int& waiting : waiting_) {
            waiting = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
            (void)::connect(waiting, address, size); // it waits for its turn, so this fails for now
        }
    }
    ~DeafComputer()
    {
        for (const int waiting : waiting_) {
            ::close(waiting);
        }
        ::close(socket_);
    }
    DeafComputer(const DeafComputer&) = delete;
    DeafComputer& operator=(const DeafComputer&) = delete;

    bool isDeaf() const { return isDeaf_; }
    std::int32_t port() const { return port_; }

private:
    int socket_;
    std::array<int, 3> waiting_ = {};
    bool isDeaf_ = false;
    std::int32_t port_ = 0;
};

TEST_F(NetClientTest, TheTimeToConnectIsPartOfTheTimeToAnswer)
{
    const DeafComputer computer;
    ASSERT_TRUE(computer.isDeaf());
    options().ConnectTimeout = 30;
    options().ResponseTimeout = Brief;
    QElapsedTimer timer;
    timer.start();
    EXPECT_RAISES(client_->Request(u"x", u"127.0.0.1", computer.port(), nullptr, true, NoAnswer),
                  DeviceUnavailable);
    EXPECT_LT(timer.elapsed(), 10'000);
}

TEST_F(NetClientTest, AComputerThatHasVanishedIsWaitedForToALimitInAll)
{
    const DeafComputer computer;
    ASSERT_TRUE(computer.isDeaf());
    client_ = std::make_unique<QtNetClient>(guard_, TrafficWindow{},
                                            MasterPatience::Limits{.silence = Brief, .knock = 0.001});
    options().ConnectTimeout = 30;
    options().ResponseTimeout = 30;
    QElapsedTimer timer;
    timer.start();
    for (int request = 0; request < 6; ++request) {
        EXPECT_RAISES(client_->Request(u"x", u"127.0.0.1", computer.port(), nullptr, true, NoAnswer),
                      DeviceUnavailable);
    }
    EXPECT_LT(timer.elapsed(), 10'000);
}

#endif

TEST_F(NetClientTest, AMasterThatTakesConnectionsAndSaysNothingIsWaitedForToALimitInAll)
{
    client_ = std::make_unique<QtNetClient>(guard_, TrafficWindow{},
                                            MasterPatience::Limits{.silence = 0.5, .knock = 0.001});
    silence();
    options().ResponseTimeout = 30;
    QElapsedTimer timer;
    timer.start();
    for (int request = 0; request < 60; ++request) {
        EXPECT_EQ(ask(u"x"), NoAnswer);
    }
    EXPECT_LT(timer.elapsed(), 5000);
    EXPECT_EQ(master_.connectionsMade(), 30);
    options().ResponseTimeout = 5;
    echo();
    EXPECT_TRUE(eventually([&] { return ask(u"x") == u"x"; }));
    silence();
    timer.start();
    EXPECT_EQ(askBriefly(u"x"), NoAnswer);
    EXPECT_GE(timer.elapsed(), static_cast<qint64>(1000 * Brief));
}

TEST_F(NetClientTest, IsPatientAgainWithAMasterThatGivesASignOfLife)
{
    client_ = std::make_unique<QtNetClient>(guard_, TrafficWindow{},
                                            MasterPatience::Limits{.silence = 0.5, .knock = 0});
    for (double waited = 0; waited < 0.6; waited += Brief) {
        silence();
        EXPECT_EQ(askBriefly(u"one"), NoAnswer);
        echo();
        EXPECT_EQ(ask(u"two"), u"two");
    }
}

TEST_F(NetClientTest, EndsWaitsWhenItIsClosed)
{
    silence();
    pump_.post([&] { client_->Close(); });
    EXPECT_RAISES(ask(u"x"), DeviceUnavailable);
    client_->Close();
    echo();
    EXPECT_EQ(ask(u"y"), u"y");
}

TEST_F(NetClientTest, EndsWaitsWhenItEndsItself)
{
    silence();
    pump_.post([&] { client_.reset(); });
    EXPECT_RAISES(ask(u"x"), DeviceUnavailable);
}

TEST_F(NetClientTest, EndsNestedWaitsWhenItEndsItself)
{
    ask(u"connect");
    silence();
    std::optional<std::int32_t> inner;
    pump_.post([&] {
        pump_.post([&] { client_.reset(); });
        inner = phial::test::raisedBy([&] { ask(u"inner"); });
    });
    EXPECT_RAISES(ask(u"outer"), DeviceUnavailable);
    EXPECT_EQ(inner, static_cast<std::int32_t>(ErrorNumber::DeviceUnavailable));
}

TEST_F(NetClientTest, HandsOutMessagesThatComeOverTheKeptConnection)
{
    std::vector<String> heard;
    const Connection received = client_->RECEIVED.connect(
        [&](const CoreNetMessage& message, bool&) { heard.push_back(message.Text()); });
    client_->EnableReceive(true);
    ask(u"hello");
    master_.broadcast(encodeFrame({FrameKind::Message, {1, 1}, u"unasked"}));
    EXPECT_TRUE(eventually([&] { return !heard.empty(); }));
    EXPECT_EQ(heard, std::vector<String>{u"unasked"});
}

TEST_F(NetClientTest, AHandlerOfAMessageMayAskTheSameMaster)
{
    String answer;
    const Connection received =
        client_->RECEIVED.connect([&](const CoreNetMessage&, bool&) { answer = ask(u"nested"); });
    client_->EnableReceive(true);
    ask(u"hello");
    master_.broadcast(encodeFrame({FrameKind::Message, {1, 1}, u"unasked"}));
    EXPECT_TRUE(eventually([&] { return !answer.empty(); }));
    EXPECT_EQ(answer, u"nested");
}

TEST_F(NetClientTest, EndsAConnectionThatFloodsItWithMessages)
{
    int heard = 0;
    const Connection received = client_->RECEIVED.connect([&](const CoreNetMessage&, bool&) { ++heard; });
    client_->EnableReceive(true);
    ask(u"hello");
    std::string flood;
    for (std::uint64_t number = 0; number < 1000; ++number) {
        flood += encodeFrame({FrameKind::Message, {1, number}, u"unasked"});
    }
    master_.broadcast(flood);
    EXPECT_TRUE(eventually([&] { return master_.connections() == 0; }));
    EXPECT_LT(heard, 100);
    EXPECT_EQ(ask(u"still there"), u"still there");
}

TEST_F(NetClientTest, ShowsNoMonitorWithoutWindows)
{
    client_->ShowMonitor();
}

/// The same in a session that has windows, if only in memory.
class NetClientMonitorTest : public phial::test::AppSession
{
protected:
    std::shared_ptr<Form> monitor() { return visualHost().forms().Item(u"frm_NetMonitor"); }

    LoopbackMaster master_;
    std::unique_ptr<QtNetClient> client_ =
        std::make_unique<QtNetClient>(std::make_shared<DispatchGuard>(), netMonitorWindow);
};

TEST_F(NetClientMonitorTest, ShowsTheTrafficInOneWindowThatEndsWithTheClient)
{
    client_->ShowMonitor();
    client_->ShowMonitor();
    EXPECT_EQ(visualHost().forms().Count(), 1U);
    client_->Request(u"SERVER::MODE::", u"127.0.0.1", master_.port(), nullptr, true, NoAnswer);
    const auto list = monitor()->control<ListBox>(u"lst_Lines");
    ASSERT_EQ(list->ListCount(), 3); // connected, sent, received
    EXPECT_NE(list->List(1).find(u"SERVER::MODE::"), String::npos);
    client_.reset();
    EXPECT_EQ(monitor(), nullptr);
}

} // namespace
