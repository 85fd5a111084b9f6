#include "master/MasterServer.h"

#include "MemoryStore.h"
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

#include <deque>
#include <gmock/gmock-matchers.h>
#include <optional>

using namespace phial;
using namespace phial::master;
using phial::test::eventually;
using phial::test::MemoryStore;
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
        server_.emplace(classroom_, outside.clock(), limits_, guard_,
                        [this](const std::string& trouble) { told_.push_back(trouble); });
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

    MemoryStore store_;
    Classroom classroom_{store_, outside.clock()};
    qt::DispatchGuard guard_;
    ServerLimits limits_;
    std::vector<std::string> told_;
    std::optional<MasterServer> server_;
    std::deque<WireClient> clients_;
};

TEST_F(MasterServerTest, AnswersOverAConnectionThatIsKept)
{
    serve();
    WireClient& client = connect();
    EXPECT_EQ(client.ask(u"SERVER::LOGON::Anna"), u"008:LOGON:OK");
    EXPECT_EQ(client.ask(u"SERVER::MODE::"), u"008:0");
    EXPECT_EQ(classroom_.pupils().front().logOn.address, u"127.0.0.1");
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
    const int before = store_.commits();
    for (int request = 0; request < 10; ++request) {
        client.send(resultRequest());
    }
    ASSERT_TRUE(eventually([&] { return client.answers().size() == 11; }));
    EXPECT_EQ(store_.committed().results.size(), 10U);
    EXPECT_LT(store_.commits() - before, 10);
}

TEST_F(MasterServerTest, SendsNoAnswerWhereNobodyWaits)
{
    serve();
    WireClient& client = connect();
    client.sendAs({1, 100}, resultRequest(), true);
    EXPECT_EQ(client.ask(u"SERVER::MODE::"), u"008:0");
    EXPECT_EQ(client.answers().size(), 1U);
    EXPECT_EQ(store_.committed().results.size(), 1U);
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
    EXPECT_EQ(store_.committed().results.size(), 1U);
}

TEST_F(MasterServerTest, AnswersNothingThatIsNotStored)
{
    serve();
    WireClient& client = connectAndAsk();
    store_.failCommits(true);
    client.sendAs({7, 1}, resultRequest());
    ASSERT_TRUE(eventually([&] { return !told_.empty(); }));
    EXPECT_EQ(client.answers().size(), 1U);

    store_.failCommits(false);
    client.sendAs({7, 1}, resultRequest());
    ASSERT_TRUE(eventually([&] { return client.answers().size() == 2; }));
    EXPECT_EQ(store_.committed().results.size(), 1U);
    EXPECT_THAT(told_, testing::ElementsAre("the disk is full"));
}

TEST_F(MasterServerTest, OneRequestThatCannotBeStoredDoesNotKeepOthersFromIt)
{
    serve();
    WireClient& client = connectAndAsk();
    store_.failEvents(true);
    client.send(resultRequest());
    client.send(eventRequest());
    client.send(resultRequest());
    ASSERT_TRUE(eventually([&] { return client.answers().size() == 3; }));
    EXPECT_EQ(store_.committed().results.size(), 2U);
    EXPECT_TRUE(client.isConnected());
}

TEST_F(MasterServerTest, ClosesConnectionsBeyondTheirNumber)
{
    limits_.connections = 2;
    serve();
    connectAndAsk();
    WireClient& second = connectAndAsk();
    EXPECT_TRUE(connect().isCutOff());

    second.socket().disconnectFromHost();
    bool isTakenIn = false;
    EXPECT_TRUE(eventually([&] {
        isTakenIn = isTakenIn || connect().ask(u"SERVER::MODE::") == u"008:0";
        return isTakenIn;
    }));
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
}

TEST_F(MasterServerTest, TakesMessagesUpToTheirGreatestLength)
{
    limits_.messageBytes = 100000;
    serve();
    WireClient& client = connect();
    EXPECT_EQ(client.ask(u"PROPERTIES::GET::" + String(90000, u'x')), u"008:ERROR");
    client.send(String(100001, u'x'));
    EXPECT_TRUE(client.isCutOff());
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
}

TEST_F(MasterServerTest, CutsOffWhoConnectsAndSaysNothing)
{
    serve();
    WireClient& client = connect();
    connectAndAsk();
    outside.clock().advance(limits_.unfinishedSeconds + 1);
    EXPECT_TRUE(client.isCutOff());
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
    EXPECT_EQ(client.ask(u"SERVER::MODE::"), u"008:0");
    outside.clock().advance(1);
    EXPECT_EQ(client.ask(u"SERVER::LOGON::Cem"), u"008:LOGON:OK");
}

TEST_F(MasterServerTest, CutsOffWhoDoesNotTakeHisAnswers)
{
    limits_.untakenBytes = 1000;
    limits_.messagesPerTurn = 100000;
    classroom_.settings().set(u"LONG", String(500, u'x'));
    serve();
    WireClient& client = connect();
    client.socket().setReadBufferSize(1); // takes one byte, and no more
    for (int request = 0; request < 20000; ++request) {
        client.send(u"PROPERTIES::GET::LONG");
    }
    EXPECT_TRUE(eventually([&] { return server_->connections() == 0; }));
}

TEST_F(MasterServerTest, CutsOffWhoAsksForAListBeyondAllBoundsAndAnswersTheOthers)
{
    constexpr int Entries = 100;
    classroom_.settings().set(u"LONG.MAX", plainText(Entries));
    CoreParameters additional;
    additional.Set(u"Text", String(MaxAdditionalLength - 100, u'\u2082'));
    for (int entry = 0; entry < Entries; ++entry) {
        Result result{outside.clock().moment(), {u"Anna", u"anna", u"PC7"}, u"", 5, 10, additional.Pack()};
        classroom_.highscores().submit(u"LONG", result);
    }
    serve();
    WireClient& greedy = connectAndAsk(1);
    WireClient& other = connectAndAsk(2);
    greedy.send(u"LONG::GET::");
    other.send(u"SERVER::MODE::");
    EXPECT_TRUE(greedy.isCutOff());
    EXPECT_TRUE(eventually([&] { return other.answers().size() == 2; }));
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
    limits_.messagesPerTurn = 4;
    serve();
    WireClient& busy = connectAndAsk(1);
    WireClient& other = connectAndAsk(2);
    for (int request = 0; request < 500; ++request) {
        busy.send(resultRequest());
    }
    busy.socket().flush();
    other.send(eventRequest());
    other.socket().flush();
    ASSERT_TRUE(eventually([&] { return store_.committed().events.size() == 1; }));
    EXPECT_LT(store_.resultsBeforeFirstEvent(), 100U);
    EXPECT_TRUE(eventually([&] { return busy.answers().size() == 501; }));
}

TEST_F(MasterServerTest, APortThatIsTakenCannotBeOpened)
{
    serve();
    MasterServer second(classroom_, outside.clock(), limits_, guard_, [](const std::string&) {});
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
    classroom_.settings().set(u"WELCOMEMESSAGE", u"Hallo");
    serve(freeUdpPort());
    ASSERT_TRUE(server_->answersQuestions());
    const auto found = qt::findMasters(server_->udpPort(), std::chrono::milliseconds(300));
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found.front().address, u"127.0.0.1");
    EXPECT_EQ(found.front().settings,
              classroom_.settingsText({u"127.0.0.1", server_->port(), server_->udpPort()}));
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
}

} // namespace
