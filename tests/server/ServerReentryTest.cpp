#include "server/ServerTest.h"

namespace phial
{

namespace
{

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// What handlers do to the client while one of its calls waits.
class ServerReentry : public ServerTest
{
protected:
    /// Runs the task in the next wait.
    void meanwhile(std::function<void()> task)
    {
        SessionState::current().platform().pump->post(std::move(task));
    }
};

TEST_F(ServerReentry, ALogonWithinALogonIsFalseAtOnce)
{
    master.takes(1);
    bool inner = true;
    meanwhile([&] { inner = server().CONNECT(); });
    EXPECT_TRUE(server().CONNECT());
    EXPECT_FALSE(inner);
    EXPECT_THAT(master.requests(), ElementsAre(u"SERVER:LOGON"));
}

TEST_F(ServerReentry, ARequestWithinALogonIsEmpty)
{
    master.takes(1);
    Variant inner = 1;
    bool available = true;
    bool allowed = false;
    meanwhile([&] {
        inner = server().REQUEST(u"A", u"B");
        available = server().AVAILABLE();
        allowed = server().ALLOWED();
        server().COMMAND(u"A", u"B");
    });
    EXPECT_TRUE(server().CONNECT());
    EXPECT_EQ(inner, Variant());
    EXPECT_FALSE(available);
    EXPECT_TRUE(allowed);
    EXPECT_THAT(master.requests(), ElementsAre(u"SERVER:LOGON"));
}

TEST_F(ServerReentry, ALogonWithinTheQuestionForTheNameIsFalseAtOnce)
{
    outside.machine().UserName(u"");
    QVAPP()->USER()->SCREENNAME(u"");
    bool inner = true;
    outside.visual().onModal(u"frm_DialogUser", [&](Form& form) {
        inner = server().CONNECT();
        form.Unload();
    });
    EXPECT_TRUE(server().CONNECT());
    EXPECT_FALSE(inner);
}

TEST_F(ServerReentry, TheClientIsLoggedOnDuringThePauseBehindALogon)
{
    outside.random().numbers({0.5});
    master.knows(u"A:B", 7);
    Variant inner;
    master.asked = [&](const WireRequest& request) {
        if (request.command == u"LOGON") {
            meanwhile([&] { inner = server().REQUEST(u"A", u"B"); });
        }
    };
    EXPECT_TRUE(server().CONNECT());
    EXPECT_EQ(inner, Variant(7));
}

TEST_F(ServerReentry, AnotherLogonCanFollowOneThatFailed)
{
    EXPECT_RAISES(cls_AppServer().CONNECT(), ObjectNotSet);
    server().CLIENT(nullptr);
    EXPECT_RAISES(server().CONNECT(), ObjectNotSet);
    server().INIT();
    EXPECT_TRUE(server().CONNECT());
}

TEST_F(ServerReentry, EachRequestKeepsItsOwnAnswer)
{
    logOn();
    master.takes(1);
    master.knows(u"OUTER:GET", u"outer");
    master.knows(u"INNER:GET", u"inner");
    Variant inner;
    meanwhile([&] { inner = server().REQUEST(u"INNER", u"GET"); });
    EXPECT_EQ(server().REQUEST(u"OUTER", u"GET"), Variant(u"outer"));
    EXPECT_EQ(inner, Variant(u"inner"));
}

TEST_F(ServerReentry, EachRequestKeepsItsOwnTimeouts)
{
    logOn();
    master.missesOne();
    meanwhile([&] { server().REQUEST(u"INNER", u"GET", String(20 * 1024, u'x')); });
    server().REQUEST(u"OUTER", u"GET");
    EXPECT_THAT(requestsFrom(1), ElementsAre(u"OUTER:GET", u"INNER:GET", u"OUTER:GET"));
    EXPECT_THAT(timeoutsFrom(1), ElementsAre(4, 20, 6));
}

TEST_F(ServerReentry, AMessageDoesNotReplaceAnAnswer)
{
    logOn();
    master.takes(1);
    master.knows(u"A:B", u"answer");
    bool handled = false;
    meanwhile([&] { handled = outside.network().send(u"008:message"); });
    EXPECT_EQ(server().REQUEST(u"A", u"B"), Variant(u"answer"));
    EXPECT_TRUE(handled);
}

TEST_F(ServerReentry, AnAnswerThatComesTwiceDoesNotReplaceTheNext)
{
    logOn();
    master.repeatsItself();
    master.knows(u"A:B", 1);
    master.knows(u"C:D", 2);
    EXPECT_EQ(server().REQUEST(u"A", u"B"), Variant(1));
    EXPECT_EQ(server().REQUEST(u"C", u"D"), Variant(2));
}

TEST_F(ServerReentry, AMessageIsKeptAndNotActedOn)
{
    EXPECT_TRUE(outside.network().send(u"SERVER::LOGOFF::"));
    EXPECT_EQ(server().lastAnswer(), u"SERVER::LOGOFF::");
    EXPECT_THAT(master.requests(), IsEmpty());
}

TEST_F(ServerReentry, AClientThatWasReplacedIsHeardNoMore)
{
    const auto before = server().CLIENT();
    server().CLIENT(nullptr);
    EXPECT_FALSE(outside.network().send(u"late"));
    EXPECT_EQ(server().lastAnswer(), u"");
}

TEST_F(ServerReentry, ARequestSurvivesTheReplacementOfItsClient)
{
    logOn();
    master.missesOne();
    master.knows(u"A:B", 1);
    meanwhile([&] { server().INIT(); });
    EXPECT_EQ(server().REQUEST(u"A", u"B"), Variant(1));
}

TEST_F(ServerReentry, ACallSurvivesTheReplacementOfItsObject)
{
    logOn();
    master.missesOne();
    master.knows(u"A:B", 1);
    meanwhile([&] { QVAPP()->SERVER(std::make_shared<cls_AppServer>()); });
    cls_AppServer& replaced = server();
    EXPECT_EQ(replaced.REQUEST(u"A", u"B"), Variant(1));
    EXPECT_FALSE(server().ONLINE());
}

TEST_F(ServerReentry, ALogonSurvivesTheReplacementOfItsObject)
{
    master.takes(1);
    meanwhile([&] { QVAPP()->SERVER(std::make_shared<cls_AppServer>()); });
    EXPECT_TRUE(server().CONNECT());
}

TEST_F(ServerReentry, SettingsMayBeReplacedDuringARequest)
{
    logOn();
    master.takes(1);
    master.knows(u"A:B", 1);
    server().CONFIG()->SERVERIP(u"an-address-that-is-long.enough-for-the-heap.example");
    meanwhile([&] { server().CONFIG(std::make_shared<cls_AppServerConfig>()); });
    EXPECT_EQ(server().REQUEST(u"A", u"B"), Variant(1));
    EXPECT_EQ(server().CONFIG()->SERVERIP(), u"127.0.0.1");
}

TEST_F(ServerReentry, LoggingOffDuringARequestEndsNeither)
{
    logOn();
    master.takes(1);
    master.knows(u"A:B", 1);
    meanwhile([&] { server().DISCONNECT(); });
    EXPECT_EQ(server().REQUEST(u"A", u"B"), Variant(1));
    EXPECT_EQ(outside.network().closed(), 2);
}

} // namespace

} // namespace phial
