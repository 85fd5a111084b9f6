#include "master/MasterServer.h"

#include "TestRoom.h"
#include "WireClient.h"
#include "core/CoreParameters.h"
#include "core/CoreValuePacker.h"
#include "core/NumberText.h"
#include "master/Packages.h"
#include "qt/Eventually.h"
#include "qt/base/MasterSearch.h"
#include "server/Announcement.h"
#include "support/AppSession.h"

#include <QUdpSocket>

#include <algorithm>
#include <deque>
#include <gmock/gmock-matchers.h>
#include <optional>

using namespace phial;
using namespace phial::master;
using phial::test::eventually;
using phial::test::TestRoom;
using phial::test::WireClient;

namespace
{

String eventRequest()
{
    return requestText(u"EVENT", u"ADD",
                       CoreValuePacker::Pack({u"Start", CoreParameters().Pack(), u"Anna", u"PC7", u"anna"}));
}

String resultRequest()
{
    return requestText(
        u"RESULTS", u"SUBMIT",
        CoreValuePacker::Pack({5.0, 10.0, u"", CoreParameters().Pack(), u"Anna", u"PC7", u"anna"}));
}

/// A master on a free port, whose time stands still and whose store lies in memory.
class MasterServerTest : public phial::test::AppSession
{
protected:
    MasterServerTest() { guard_.setReporter(fail); }

    /// Begins to serve, within limits that a test has set before.
    void serve(std::uint16_t udpPort = 0)
    {
        server_.emplace(room_.classroom, room_.desk, outside.clock(), limits_, room_.notices, guard_);
        ASSERT_TRUE(server_->listen({QHostAddress(QHostAddress::LocalHost), 0, udpPort}));
    }

    /// Clients live as long as the test.
    WireClient& connect(std::uint64_t sender = 1) { return clients_.emplace_back(server_->port(), sender); }
    /// A client that the master knows.
    WireClient& connectAndAsk(std::uint64_t sender = 1)
    {
        WireClient& client = connect(sender);
        EXPECT_EQ(client.ask(u"SERVER::ALIVE::"), u"008:OK");
        return client;
    }

    bool isTold(StringView line) const { return std::ranges::find(room_.said, line) != room_.said.end(); }
    String presence() const
    {
        switch (room_.classroom.pupils().front().presence) {
        case Presence::There:
            return u"there";
        case Presence::Silent:
            return u"silent";
        case Presence::Gone:
            break;
        }
        return u"gone";
    }

    TestRoom room_{outside.clock()};
    qt::DispatchGuard guard_;
    ServerLimits limits_;
    std::optional<MasterServer> server_;
    std::deque<WireClient> clients_;
};

TEST_F(MasterServerTest, AnswersOverAConnectionThatIsKept)
{
    serve();
    WireClient& client = connect();
    EXPECT_EQ(client.ask(u"SERVER::LOGON::Anna"), u"008:LOGON:OK");
    EXPECT_EQ(client.ask(u"SERVER::MODE::"), u"008:0");
    EXPECT_EQ(room_.classroom.pupils().front().logOn.address, u"127.0.0.1");
}

TEST_F(MasterServerTest, AnswersManyRequestsSentAtOnceInTheirOrder)
{
    serve();
    WireClient& client = connect();
    for (int request = 0; request < 100; ++request) {
        client.send(u"PROPERTIES::GET::x");
    }
    ASSERT_TRUE(eventually([&] { return client.answers().size() == 100; }));
    for (std::uint64_t at = 0; at < 100; ++at) {
        EXPECT_EQ(client.answers()[at].id, (FrameId{1, at + 1}));
        EXPECT_EQ(client.answers()[at].kind, FrameKind::Answer);
    }
}

TEST_F(MasterServerTest, CommitsWhatCameTogetherOnce)
{
    serve();
    WireClient& client = connectAndAsk();
    const int before = room_.store.commits();
    for (int request = 0; request < 10; ++request) {
        client.send(resultRequest());
    }
    ASSERT_TRUE(eventually([&] { return client.answers().size() == 11; }));
    EXPECT_EQ(room_.store.results().size(), 10U);
    EXPECT_LT(room_.store.commits() - before, 10);
}

TEST_F(MasterServerTest, SendsNoAnswerWhereNobodyWaits)
{
    serve();
    WireClient& client = connect();
    client.sendAs({1, 100}, resultRequest(), true);
    EXPECT_EQ(client.ask(u"SERVER::MODE::"), u"008:0");
    EXPECT_EQ(client.answers().size(), 1U);
    EXPECT_EQ(room_.store.results().size(), 1U);
}

TEST_F(MasterServerTest, TakesARequestInOnceAlsoOverAnotherConnection)
{
    serve();
    WireClient& first = connect();
    first.sendAs({7, 1}, resultRequest());
    ASSERT_TRUE(eventually([&] { return first.answers().size() == 1; }));
    WireClient& second = connect();
    second.sendAs({7, 1}, resultRequest());
    ASSERT_TRUE(eventually([&] { return second.answers().size() == 1; }));
    EXPECT_EQ(second.answers().front().text, u"008:OK");
    EXPECT_EQ(room_.store.results().size(), 1U);
}

TEST_F(MasterServerTest, AnswersNothingThatIsNotStored)
{
    serve();
    WireClient& client = connectAndAsk();
    room_.store.failCommits(true);
    client.sendAs({7, 1}, resultRequest());
    ASSERT_TRUE(eventually([&] { return !room_.said.empty(); }));
    EXPECT_EQ(client.answers().size(), 1U);

    room_.store.failCommits(false);
    client.sendAs({7, 1}, resultRequest());
    connectAndAsk(2); // by now it has been read
    EXPECT_EQ(client.answers().size(), 1U);
    room_.desk.tick();
    ASSERT_TRUE(eventually([&] { return client.answers().size() == 3; })) << "both copies";
    EXPECT_EQ(room_.store.results().size(), 1U);
    EXPECT_THAT(room_.said, testing::ElementsAre(u"the database reports an error: the disk is full"));
}

TEST_F(MasterServerTest, OneRequestThatCannotBeStoredDoesNotKeepOthersFromIt)
{
    serve();
    WireClient& client = connectAndAsk();
    room_.store.failEvents(true);
    client.send(resultRequest());
    client.send(eventRequest());
    client.send(resultRequest());
    ASSERT_TRUE(eventually([&] { return client.answers().size() == 3; }));
    EXPECT_EQ(room_.store.results().size(), 2U);
    outside.clock().advance(StoreDesk::Limits().patience);
    room_.desk.tick();
    ASSERT_TRUE(eventually([&] { return client.answers().size() == 4; }));
    EXPECT_EQ(client.answers().back().text, u"008:ERROR");
    EXPECT_TRUE(client.isConnected());
}

TEST_F(MasterServerTest, ForOneConnectionTooManyTheOneThatIsSilentForLongestLeaves)
{
    limits_.connections = 2;
    serve();
    WireClient& first = connectAndAsk(1);
    outside.clock().advance(1);
    WireClient& second = connectAndAsk(2);
    outside.clock().advance(1);
    EXPECT_EQ(first.ask(u"SERVER::MODE::"), u"008:0");
    EXPECT_EQ(connect(3).ask(u"SERVER::MODE::"), u"008:0");
    EXPECT_TRUE(second.isCutOff());
    EXPECT_TRUE(first.isConnected());
    EXPECT_TRUE(isTold(u"There are 2 connections already; new ones cost silent ones their place."));
}

TEST_F(MasterServerTest, OneComputerHasSomeConnectionsOnly)
{
    limits_.ofAddress = 3;
    serve();
    WireClient& silent = connect();
    outside.clock().advance(1);
    WireClient& asked = connectAndAsk(2);
    outside.clock().advance(1);
    WireClient& alsoAsked = connectAndAsk(3);
    EXPECT_EQ(connect(4).ask(u"SERVER::MODE::"), u"008:0");
    EXPECT_TRUE(silent.isCutOff());
    EXPECT_TRUE(asked.isConnected() && alsoAsked.isConnected());
    EXPECT_EQ(server_->connections(), 3U);
    EXPECT_TRUE(isTold(u"Too many connections come from 127.0.0.1; those silent for longest are closed."));
}

TEST_F(MasterServerTest, WhoWaitsForAnAnswerKeepsItsPlace)
{
    limits_.ofAddress = 1;
    serve();
    room_.hand.freeze();
    WireClient& waiting = connect();
    waiting.send(resultRequest());
    ASSERT_TRUE(eventually([&] { return !room_.desk.isIdle(); }));
    EXPECT_TRUE(connect(2).isCutOff());
    room_.hand.thaw();
    EXPECT_TRUE(eventually([&] { return waiting.answers().size() == 1; }));
}

TEST_F(MasterServerTest, TakesInAndAnswersWhatCameBeforeTheSendersLastByte)
{
    serve();
    WireClient& client = connect();
    for (int request = 0; request < 100; ++request) {
        client.send(resultRequest());
    }
    client.sendNoMore();
    EXPECT_TRUE(eventually([&] { return client.answers().size() == 100; }));
    EXPECT_TRUE(client.isCutOff()) << "when all is said";
    EXPECT_EQ(room_.store.results().size(), 100U);
}

TEST_F(MasterServerTest, TakesInWhatCameBeforeTheSenderVanished)
{
    serve();
    WireClient& client = connect();
    for (int request = 0; request < 100; ++request) {
        client.send(resultRequest());
    }
    client.socket().flush();
    client.socket().disconnectFromHost();
    EXPECT_TRUE(eventually([&] { return room_.store.results().size() == 100; }));
    EXPECT_TRUE(eventually([&] { return server_->connections() == 0; }));
}

TEST_F(MasterServerTest, AnUnfinishedMessageEndsWithItsSender)
{
    serve();
    WireClient& client = connect();
    client.sendBytes("QVF\x01");
    client.sendNoMore();
    EXPECT_TRUE(client.isCutOff());
}

TEST_F(MasterServerTest, TellsWhoHasGone)
{
    serve();
    WireClient& client = connect();
    EXPECT_EQ(client.ask(u"SERVER::LOGON::Anna"), u"008:LOGON:OK");
    EXPECT_EQ(presence(), u"there");
    client.socket().abort();
    EXPECT_TRUE(eventually([&] { return presence() == u"gone"; }));
    connectAndAsk();
    EXPECT_EQ(presence(), u"there") << "the same client over another connection";
}

TEST_F(MasterServerTest, WhoHadToMakeRoomHasNotGone)
{
    limits_.ofAddress = 1;
    serve();
    EXPECT_EQ(connect().ask(u"SERVER::LOGON::Anna"), u"008:LOGON:OK");
    connectAndAsk(2);
    EXPECT_EQ(presence(), u"silent");
}

TEST_F(MasterServerTest, AFrozenStoreHoldsUpOnlyWhoNeedsItAndNotForLong)
{
    serve();
    room_.hand.freeze();
    WireClient& client = connect();
    client.send(resultRequest());
    WireClient& other = connect(2);
    EXPECT_EQ(other.ask(u"SERVER::LOGON::Ben"), u"008:LOGON:OK");
    EXPECT_EQ(other.ask(u"SERVER::MODE::"), u"008:0");
    EXPECT_TRUE(client.answers().empty());
    outside.clock().advance(StoreDesk::Limits().patience);
    room_.desk.tick();
    EXPECT_TRUE(eventually([&] { return client.answers().size() == 1; }));
    EXPECT_EQ(client.answers().front().text, u"008:ERROR");
    EXPECT_EQ(other.ask(eventRequest()), u"008:ERROR") << "at once";
    EXPECT_EQ(other.ask(u"HIGHSCORE::GET::"), u"008:ERROR");
    room_.hand.thaw();
    EXPECT_EQ(other.ask(eventRequest()), u"008:OK");
    EXPECT_TRUE(room_.store.results().empty());
}

TEST_F(MasterServerTest, WhatIsUnderWayIsAnsweredThoughNothingMoreIsTakenIn)
{
    serve();
    room_.hand.freeze();
    WireClient& client = connect();
    client.send(resultRequest());
    ASSERT_TRUE(eventually([&] { return !room_.desk.isIdle(); }));
    server_->stopListening();
    room_.hand.thaw();
    EXPECT_TRUE(eventually([&] { return client.answers().size() == 1; }));
    client.send(resultRequest());
    WireClient& late = connect();
    EXPECT_FALSE(late.isConnected());
    EXPECT_EQ(room_.store.results().size(), 1U);
}

TEST_F(MasterServerTest, CutsOffWhoSendsWhatIsNoRequest)
{
    serve();
    for (const std::string& bytes : {std::string("GET / HTTP/1.1\r\n\r\n"), std::string("QVF\x02"),
                                     encodeFrame({FrameKind::Answer, {1, 1}, u"008:OK"}),
                                     encodeFrame({FrameKind::Message, {1, 1}, u"hello"})}) {
        WireClient& client = connect();
        client.sendBytes(bytes);
        EXPECT_TRUE(client.isCutOff()) << bytes;
    }
    EXPECT_TRUE(isTold(u"127.0.0.1 sent what no learning app sends, and was cut off."));
}

TEST_F(MasterServerTest, TakesMessagesUpToTheirGreatestLength)
{
    limits_.messageBytes = 100000;
    serve();
    WireClient& client = connect();
    EXPECT_EQ(client.ask(u"PROPERTIES::GET::" + String(90000, u'x')), u"008:ERROR");
    client.send(String(100001, u'x'));
    EXPECT_TRUE(client.isCutOff());
    EXPECT_TRUE(isTold(u"127.0.0.1 sent a message that is too long, and was cut off."));
}

TEST_F(MasterServerTest, TakesAMessageInPieces)
{
    serve();
    WireClient& client = connect();
    const std::string bytes = encodeFrame({FrameKind::Request, {1, 1}, u"SERVER::MODE::"});
    for (const char byte : bytes) {
        client.sendBytes({&byte, 1});
        client.socket().flush();
        QCoreApplication::processEvents();
    }
    EXPECT_TRUE(eventually([&] { return client.answers().size() == 1; }));
}

TEST_F(MasterServerTest, CutsOffWhoLeavesAMessageUnfinished)
{
    serve();
    WireClient& client = connectAndAsk();
    client.sendBytes("QVF\x01");
    WireClient& other = connectAndAsk(); // by now the beginning has been read
    outside.clock().advance(limits_.unfinishedSeconds + 1);
    EXPECT_TRUE(client.isCutOff());
    EXPECT_TRUE(other.isConnected());
    EXPECT_TRUE(isTold(u"127.0.0.1 began a message and did not finish it, and was cut off."));
}

TEST_F(MasterServerTest, TheTimeOfAMessageBeginsWithItsFirstByte)
{
    serve();
    WireClient& client = connectAndAsk();
    outside.clock().advance(limits_.unfinishedSeconds + 1);
    const std::string bytes = encodeFrame({FrameKind::Request, {1, 9}, u"SERVER::MODE::"});
    client.sendBytes(std::string_view(bytes).substr(0, 30));
    connectAndAsk(2); // by now it has been read
    outside.clock().advance(limits_.unfinishedSeconds - 1);
    connectAndAsk(3);
    client.sendBytes(std::string_view(bytes).substr(30));
    EXPECT_TRUE(eventually([&] { return client.answers().size() == 2; }));
}

TEST_F(MasterServerTest, CutsOffWhoConnectsAndSaysNothing)
{
    serve();
    WireClient& client = connect();
    connectAndAsk();
    outside.clock().advance(limits_.unfinishedSeconds + 1);
    EXPECT_TRUE(client.isCutOff());
    EXPECT_TRUE(isTold(u"127.0.0.1 connected and said nothing, and was cut off."));
}

TEST_F(MasterServerTest, CutsOffWhoIsSilentForLong)
{
    serve();
    WireClient& client = connectAndAsk();
    outside.clock().advance(limits_.silentSeconds + 1);
    EXPECT_TRUE(client.isCutOff());
}

TEST_F(MasterServerTest, RefusesLogOnsThatComeTooFast)
{
    limits_.logOnsAtOnce = 2;
    limits_.logOnsPerSecond = 1;
    serve();
    WireClient& client = connect();
    EXPECT_EQ(client.ask(u"SERVER::LOGON::Anna"), u"008:LOGON:OK");
    EXPECT_EQ(client.ask(u"SERVER::LOGON::Ben"), u"008:LOGON:OK");
    EXPECT_EQ(client.ask(u"server::logon::Cem"), u"008:ERROR");
    EXPECT_TRUE(isTold(u"127.0.0.1 logs on too often; that is refused for a while."));
    EXPECT_EQ(client.ask(u"SERVER::MODE::"), u"008:0");
    outside.clock().advance(1);
    EXPECT_EQ(client.ask(u"SERVER::LOGON::Cem"), u"008:LOGON:OK");
}

TEST_F(MasterServerTest, CutsOffWhoDoesNotTakeHisAnswers)
{
    limits_.untakenBytes = 1000;
    limits_.underWay = 100000;
    room_.set(u"LONG", String(500, u'x'));
    serve();
    WireClient& client = connect();
    client.socket().setReadBufferSize(1); // takes one byte, and no more
    for (int request = 0; request < 20000; ++request) {
        client.send(u"PROPERTIES::GET::LONG");
    }
    EXPECT_TRUE(eventually([&] { return server_->connections() == 0; }));
    EXPECT_TRUE(isTold(u"127.0.0.1 does not take its answers, and was cut off."));
}

TEST_F(MasterServerTest, WhoAsksForLongListsAgainAndAgainIsCutOffAndOthersAreAnswered)
{
    limits_.heldBytes = 100000;
    limits_.underWay = 1000;
    room_.set(u"LONG", String(500, u'x'));
    serve();
    WireClient& greedy = connectAndAsk(1);
    WireClient& other = connectAndAsk(2);
    greedy.socket().setReadBufferSize(1); // takes one byte, and no more
    for (int request = 0; request < 20000; ++request) {
        greedy.send(u"PROPERTIES::GET::LONG");
    }
    EXPECT_TRUE(eventually(
        [&] { return isTold(u"Memory runs short; 127.0.0.1 takes most of it and was cut off."); }));
    EXPECT_EQ(other.ask(u"SERVER::MODE::"), u"008:0");
}

TEST_F(MasterServerTest, CutsOffWhoHoldsMostWhenMemoryRunsShort)
{
    limits_.heldBytes = 50000;
    serve();
    WireClient& greedy = connectAndAsk(1);
    WireClient& modest = connectAndAsk(2);
    const std::string bytes = encodeFrame({FrameKind::Request, {1, 9}, String(100000, u'x')});
    modest.sendBytes(std::string_view(bytes).substr(0, 1000));
    greedy.sendBytes(std::string_view(bytes).substr(0, 60000));
    EXPECT_TRUE(greedy.isCutOff());
    EXPECT_TRUE(modest.isConnected());
}

TEST_F(MasterServerTest, OneWhoSendsMuchAtOnceDoesNotKeepOthersWaiting)
{
    limits_.underWay = 4;
    serve();
    WireClient& busy = connectAndAsk(1);
    WireClient& other = connectAndAsk(2);
    for (int request = 0; request < 500; ++request) {
        busy.send(resultRequest());
    }
    busy.socket().flush();
    other.send(eventRequest());
    other.socket().flush();
    ASSERT_TRUE(eventually([&] { return room_.store.committed().events.size() == 1; }));
    EXPECT_LT(room_.store.resultsBeforeFirstEvent(), 100U);
    EXPECT_TRUE(eventually([&] { return busy.answers().size() == 501; }));
}

TEST_F(MasterServerTest, APortThatIsTakenCannotBeOpened)
{
    serve();
    MasterServer second(room_.classroom, room_.desk, outside.clock(), limits_, room_.notices, guard_);
    EXPECT_FALSE(second.listen({QHostAddress(QHostAddress::LocalHost), server_->port(), 0}));
    EXPECT_EQ(second.problem(), QAbstractSocket::AddressInUseError);
}

/// A UDP port that nobody uses.
std::uint16_t freeUdpPort()
{
    QUdpSocket socket;
    socket.bind(QHostAddress(QHostAddress::LocalHost), 0);
    return socket.localPort();
}

TEST_F(MasterServerTest, IsFoundByClientsThatSearch)
{
    room_.set(u"WELCOMEMESSAGE", u"Hallo");
    serve(freeUdpPort());
    ASSERT_TRUE(server_->answersQuestions());
    const auto found = qt::findMasters(server_->udpPort(), std::chrono::milliseconds(300));
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found.front().address, u"127.0.0.1");
    EXPECT_EQ(found.front().settings,
              room_.classroom.settingsText({u"127.0.0.1", server_->port(), server_->udpPort()}));
}

TEST_F(MasterServerTest, AnswersQuestionsOnlyAndNotTooMany)
{
    limits_.questionsAtOnce = 2;
    serve(freeUdpPort());
    QUdpSocket asker;
    ASSERT_TRUE(asker.bind(QHostAddress(QHostAddress::LocalHost), 0));
    const auto send = [&](const std::string& bytes) {
        asker.writeDatagram(bytes.data(), static_cast<qint64>(bytes.size()),
                            QHostAddress(QHostAddress::LocalHost), server_->udpPort());
    };
    send("junk");
    send(encodeAnnouncement({u"QV_PHIAL_MASTER|1.0"}));
    for (int question = 0; question < 5; ++question) {
        send(encodeAnnouncement({}));
    }
    int answers = 0;
    const auto count = [&] {
        for (; asker.hasPendingDatagrams(); ++answers) {
            asker.receiveDatagram();
        }
        return answers >= 2;
    };
    EXPECT_TRUE(eventually(count));
    connectAndAsk(); // whatever was sent has been read by now
    count();
    EXPECT_EQ(answers, 2);
    EXPECT_TRUE(isTold(u"The master is looked for too often, last by 127.0.0.1; a part gets no answer."));
}

} // namespace
