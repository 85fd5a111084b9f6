#include "core/CoreValuePacker.h"
#include "server/ServerTest.h"

#include <fstream>
#include <iterator>

namespace phial
{

namespace
{

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// Requests and commands of a client that is logged on: retries, time-outs, values, the log.
class ServerRequest : public ServerTest
{
protected:
    void SetUp() override { logOn(); }

    Variant request(StringView package = {}) { return server().REQUEST(u"PROPERTIES", u"GET", package); }

    std::string log() const
    {
        std::ifstream stream(folder.native() / "CommonAppData/QV Phial/Logs/network.log", std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), {}};
    }
};

TEST_F(ServerRequest, GivesTheValueOfTheAnswer)
{
    master.knows(u"PROPERTIES:GET", 42);
    EXPECT_EQ(request(u"Name"), Variant(42));
    EXPECT_EQ(outside.network().requests().back().message, u"PROPERTIES::GET::Name");
    EXPECT_EQ(server().lastAnswer(), u"42");
}

TEST_F(ServerRequest, AnAnswerIsToldApartFromNone)
{
    master.knows(u"A:B", 7);
    EXPECT_EQ(server().answerTo(u"A", u"B"), Variant(7));
    EXPECT_THAT(requestsFrom(1), ElementsAre(u"A:B")) << "the one logon does";
    master.isThere(false);
    EXPECT_EQ(server().answerTo(u"A", u"B"), std::nullopt);
}

TEST_F(ServerRequest, WaitsLongerForLargerPackages)
{
    struct Row {
        std::size_t length;
        double seconds;
    };
    for (const Row& row : {Row{0, 4}, Row{2000, 4}, Row{4608, 4}, Row{4609, 5}, Row{5632, 6}, Row{10240, 10},
                           Row{30720, 30}, Row{31744, 30}, Row{40000, 30}}) {
        request(String(row.length, u'x'));
        EXPECT_EQ(outside.network().requests().back().responseTimeout, row.seconds) << row.length;
    }
}

TEST_F(ServerRequest, SendsSixTimesWithGrowingTimeouts)
{
    master.isThere(false);
    EXPECT_EQ(request(), Variant(u""));
    EXPECT_THAT(requestsFrom(1), testing::Each(u"PROPERTIES:GET"));
    EXPECT_THAT(timeoutsFrom(1), ElementsAre(4, 6, 8, 10, 12, 14));
    EXPECT_EQ(options().ResponseTimeout, 4) << "the first one is in force again";
    EXPECT_NEAR(seconds(), 4 + 6 + 8 + 10 + 12 + 14 + 6 * 0.05, 1e-6);
}

TEST_F(ServerRequest, LetsTimeoutsGrowWhileTheyAreBelowFifteen)
{
    master.isThere(false);
    request(String(13 * 1024, u'x'));
    EXPECT_THAT(timeoutsFrom(1), ElementsAre(13, 15, 15, 15, 15, 15));
    const auto before = master.requests().size();
    request(String(14 * 1024, u'x'));
    EXPECT_THAT(timeoutsFrom(before), ElementsAre(14, 16, 16, 16, 16, 16));
    EXPECT_EQ(options().ResponseTimeout, 14);
}

TEST_F(ServerRequest, PausesAtRandomBetweenTwoSends)
{
    outside.random().numbers({0.5, 0.25});
    master.missesOne();
    master.missesOne();
    request();
    EXPECT_NEAR(seconds(), 4 + 0.05 + 0.05 + 6 + 0.05 + 0.025, 1e-6);
}

TEST_F(ServerRequest, DoesNotPumpWithoutAutomaticEvents)
{
    server().CONFIG()->AUTOEVENTS(false);
    master.missesOne();
    request();
    EXPECT_EQ(seconds(), 4);
}

TEST_F(ServerRequest, SendsAgainWhenTheConnectionFails)
{
    master.breaksOne();
    master.knows(u"PROPERTIES:GET", u"there");
    EXPECT_EQ(request(), Variant(u"there"));
    EXPECT_THAT(timeoutsFrom(1), ElementsAre(4, 6));
}

TEST_F(ServerRequest, LeavesTheTimeoutOfTheAnsweredSendForCommands)
{
    master.missesOne();
    request();
    server().COMMAND(u"A", u"B");
    EXPECT_EQ(outside.network().requests().back().responseTimeout, 6);
    request();
    server().COMMAND(u"A", u"B");
    EXPECT_EQ(outside.network().requests().back().responseTimeout, 4);
}

TEST_F(ServerRequest, TakesTheWordForATimeoutAsOne)
{
    master.answersOne(u"ERR:Timeout");
    master.knows(u"PROPERTIES:GET", 1);
    EXPECT_EQ(request(), Variant(1));
    EXPECT_EQ(requestsFrom(1).size(), 2U);
}

TEST_F(ServerRequest, IsEmptyForAnAnswerThatCannotBeRead)
{
    for (const StringView answer : {u"", u"003:x", u"002:99999", u"garbage", u"000:garbage"}) {
        master.says(u"PROPERTIES:GET", String(answer));
        EXPECT_EQ(request(), Variant()) << toUtf8(answer);
    }
    EXPECT_EQ(requestsFrom(1).size(), 5U) << "it is not asked again";
    EXPECT_TRUE(server().ONLINE());
}

TEST_F(ServerRequest, GivesPackedValues)
{
    const Variant list(Variant::Array{1, u"zwei", 3.5});
    master.knows(u"PROPERTIES:GET", list);
    EXPECT_EQ(request(), list);
}

TEST_F(ServerRequest, LogsOnFirstWhereNeeded)
{
    QVAPP()->SERVER(nullptr);
    server().INIT();
    master.knows(u"PROPERTIES:GET", 1);
    EXPECT_EQ(request(), Variant(1));
    EXPECT_THAT(requestsFrom(1), ElementsAre(u"SERVER:LOGON", u"PROPERTIES:GET"));
}

TEST_F(ServerRequest, IsEmptyWithoutAMaster)
{
    QVAPP()->SERVER(nullptr);
    server().INIT();
    master.isThere(false);
    EXPECT_EQ(request(), Variant());
    server().COMMAND(u"A", u"B");
    server().ALIVE();
    EXPECT_THAT(requestsFrom(1), ElementsAre(u"SERVER:LOGON"));
}

TEST_F(ServerRequest, SendsACommandOnce)
{
    master.isThere(false);
    server().COMMAND(u"RESULTS", u"SUBMIT", u"package");
    EXPECT_EQ(outside.network().requests().back().message, u"RESULTS::SUBMIT::package");
    EXPECT_EQ(requestsFrom(1).size(), 1U);
    EXPECT_EQ(seconds(), 4);
}

TEST_F(ServerRequest, DropsTheAnswerAndTheFailureOfACommand)
{
    request();
    const String before = server().lastAnswer();
    master.answersOne(u"008:dropped");
    server().COMMAND(u"A", u"B");
    master.breaksOne();
    server().COMMAND(u"A", u"B");
    EXPECT_EQ(server().lastAnswer(), before);
}

TEST_F(ServerRequest, TellsWhatBecameOfAMessage)
{
    using Delivery = cls_AppServer::Delivery;
    for (const StringView taken : {u"008:OK", u"008:", u"003:7", u"008:ERRORS", u"OK"}) {
        master.answersOne(String(taken));
        EXPECT_EQ(server().deliver(u"A", u"B"), Delivery::Taken) << toUtf8(taken);
    }
    EXPECT_EQ(server().deliver(u"A", u"B", u"refused"), Delivery::Refused);
    master.missesOne();
    EXPECT_EQ(server().deliver(u"A", u"B"), Delivery::Unanswered);
    master.breaksOne();
    EXPECT_EQ(server().deliver(u"A", u"B"), Delivery::Unanswered);
}

TEST_F(ServerRequest, TellsAnEmptyAnswerFromNone)
{
    master.knows(u"A:B", u"");
    EXPECT_EQ(server().answerTo(u"A", u"B"), Variant(u""));
    EXPECT_EQ(server().answerTo(u"A", u"C"), Variant(u"ERROR"));
    master.isThere(false);
    EXPECT_EQ(server().answerTo(u"A", u"B"), std::nullopt);
    QVAPP()->SERVER(nullptr);
    server().INIT();
    EXPECT_EQ(server().answerTo(u"A", u"B"), std::nullopt);
    EXPECT_EQ(server().deliver(u"A", u"B"), cls_AppServer::Delivery::Unanswered);
}

TEST_F(ServerRequest, FindsOutWhetherTheMasterIsStillThere)
{
    EXPECT_TRUE(server().isStillThere());
    EXPECT_THAT(requestsFrom(1), ElementsAre(u"SERVER:MODE"));
    master.missesOne();
    EXPECT_TRUE(server().isStillThere()) << "it has logged on anew";
    EXPECT_EQ(master.requests().back(), u"SERVER:LOGON");
    master.isThere(false);
    EXPECT_FALSE(server().isStillThere());
    EXPECT_FALSE(server().ONLINE());
    EXPECT_LT(seconds(), 70);
    master.isThere(true);
    EXPECT_TRUE(server().isStillThere());
    EXPECT_TRUE(server().ONLINE());
}

TEST_F(ServerRequest, TellsThatItIsAlive)
{
    server().ALIVE();
    EXPECT_EQ(outside.network().requests().back().message, u"SERVER::ALIVE::");
}

TEST_F(ServerRequest, WritesTheLog)
{
    master.knows(u"PROPERTIES:GET", u"Grün|1");
    master.missesOne();
    request(u"Farbe");
    server().COMMAND(u"EVENT", u"ADD", u"x");
    EXPECT_EQ(log(), "2026-03-02 08:00:00|REQUEST: SERVER:LOGON\r\n"
                     "2026-03-02 08:00:00|ANSWER: 008:LOGON:OK\r\n"
                     "2026-03-02 08:00:00|REQUEST: PROPERTIES:GET\r\n"
                     "2026-03-02 08:00:04|TIMEOUT\r\n"
                     "2026-03-02 08:00:04|ANSWER: 008:Grün|1\r\n"
                     "2026-03-02 08:00:04|COMMAND: EVENT:ADD\r\n");
}

TEST_F(ServerRequest, KeepsTheLogOfOneRun)
{
    const cls_AppServer next;
    EXPECT_EQ(log(), "");
}

} // namespace

} // namespace phial
