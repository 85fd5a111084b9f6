#include "server/ServerTest.h"

namespace phial
{

namespace
{

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// How the client is prepared and logs on, and the states between which it moves.
class ServerLogon : public ServerTest
{
protected:
    void giveUp()
    {
        master.isThere(false);
        ASSERT_FALSE(server().CONNECT());
        master.isThere(true);
    }

    void expectWelcome(const String& text)
    {
        outside.dialogs().expect(headless::Box::Info, text);
        server().CONFIG()->SETTINGS()->Set(u"WELCOMEMESSAGE", text);
    }

    void askForName(std::function<void()> inDialog)
    {
        outside.visual().onModal(u"frm_DialogUser", [inDialog = std::move(inDialog)](Form& form) {
            inDialog();
            form.Unload();
        });
    }
};

TEST_F(ServerLogon, PreparesTheClientAndSendsNothing)
{
    CoreNetOptions expected;
    expected.ConnectTimeout = 30;
    expected.ResponseTimeout = 4;
    expected.BufferSize = 10240;
    EXPECT_EQ(options(), expected);
    EXPECT_THAT(outside.network().openedPorts(), ElementsAre(10051));
    EXPECT_THAT(master.requests(), IsEmpty());
    EXPECT_FALSE(server().ONLINE());
}

TEST_F(ServerLogon, PreparesTheClientWithItsSettings)
{
    server().CONFIG()->CLIENTPORT(20051);
    server().CONFIG()->TIMEOUT(7);
    server().INIT();
    EXPECT_EQ(outside.network().openedPorts().back(), 20051);
    EXPECT_EQ(options().ConnectTimeout, 7);
}

TEST_F(ServerLogon, ClosesTheClientOfBeforeWhenPreparedAgain)
{
    const auto before = server().CLIENT();
    server().INIT();
    EXPECT_NE(server().CLIENT(), before);
    EXPECT_EQ(outside.network().closed(), 1);
}

TEST_F(ServerLogon, TurnsSoundOffWhereAllSoundsAreOff)
{
    EXPECT_TRUE(QVAPP()->CONFIG()->SOUND());
    QVAPP()->CONFIG()->SOUNDMODE(ID_SoundMode_AllOff);
    server().INIT();
    EXPECT_FALSE(QVAPP()->CONFIG()->SOUND());
}

TEST_F(ServerLogon, GivesUpWithoutItsPort)
{
    outside.network().refusePorts(true);
    server().INIT();
    EXPECT_FALSE(server().AVAILABLE());
    EXPECT_FALSE(server().CONNECT());
    EXPECT_THAT(master.requests(), IsEmpty());
}

TEST_F(ServerLogon, SendsTheScreenName)
{
    EXPECT_TRUE(server().CONNECT());
    EXPECT_TRUE(server().ONLINE());
    ASSERT_EQ(outside.network().requests().size(), 1U);
    const headless::SentRequest& request = outside.network().requests().front();
    EXPECT_EQ(request.message, u"SERVER::LOGON::Anna");
    EXPECT_EQ(request.address, u"127.0.0.1");
    EXPECT_EQ(request.port, 10049);
    EXPECT_EQ(request.connectTimeout, 2);
    EXPECT_EQ(request.responseTimeout, 4);
}

TEST_F(ServerLogon, GoesWhereTheSettingsSay)
{
    server().CONFIG()->SERVERIP(u"10.0.0.7");
    server().CONFIG()->SERVERPORT(20049);
    logOn();
    EXPECT_EQ(outside.network().requests().front().address, u"10.0.0.7");
    EXPECT_EQ(outside.network().requests().front().port, 20049);
}

TEST_F(ServerLogon, PutsTheConnectTimeoutBack)
{
    server().CONFIG()->TIMEOUT(17);
    master.asked = [this](const WireRequest&) { server().CONFIG()->TIMEOUT(99); };
    logOn();
    EXPECT_EQ(options().ConnectTimeout, 17);
    EXPECT_EQ(server().CONFIG()->TIMEOUT(), 17);
}

TEST_F(ServerLogon, PausesUpToTwoSecondsAtRandom)
{
    outside.random().numbers({0.75});
    logOn();
    EXPECT_EQ(seconds(), 1.5);
}

TEST_F(ServerLogon, DoesNotPauseWithoutSuccess)
{
    outside.random().numbers({0.75});
    master.knows(u"SERVER:LOGON", u"LOGON:NO");
    EXPECT_FALSE(server().CONNECT());
    EXPECT_EQ(seconds(), 0);
}

TEST_F(ServerLogon, AcceptsTheAnswerWithItsTypeOnly)
{
    master.says(u"SERVER:LOGON", u"008:LOGON:OK");
    EXPECT_TRUE(server().CONNECT());
}

TEST_F(ServerLogon, RefusesTheAnswerWithoutItsType)
{
    master.says(u"SERVER:LOGON", u"LOGON:OK");
    EXPECT_FALSE(server().CONNECT());
    EXPECT_FALSE(server().AVAILABLE());
}

TEST_F(ServerLogon, RefusesOtherAnswers)
{
    for (const StringView answer : {u"", u"008:", u"008:logon:ok", u"008:LOGON:OK ", u"011:1", u"003:1"}) {
        master.says(u"SERVER:LOGON", String(answer));
        server().RECHECK();
        EXPECT_FALSE(server().CONNECT()) << toUtf8(answer);
    }
}

TEST_F(ServerLogon, EndsAtTheFirstTimeoutWithoutAMaster)
{
    master.isThere(false);
    EXPECT_FALSE(server().CONNECT());
    EXPECT_THAT(master.requests(), ElementsAre(u"SERVER:LOGON"));
    EXPECT_EQ(seconds(), 4.05) << "the response time-out and one pump";
    EXPECT_FALSE(server().AVAILABLE());
    EXPECT_THAT(master.requests(), ElementsAre(u"SERVER:LOGON")) << "it has given up";
}

TEST_F(ServerLogon, EndsAtTheFirstFailureOfTheConnection)
{
    master.breaksOne();
    EXPECT_FALSE(server().CONNECT());
    EXPECT_THAT(master.requests(), ElementsAre(u"SERVER:LOGON"));
    EXPECT_EQ(seconds(), 0.05);
}

TEST_F(ServerLogon, TakesAnAnswerThatComesJustInTime)
{
    master.takes(4);
    EXPECT_TRUE(server().CONNECT());
    EXPECT_EQ(seconds(), 4);
}

TEST_F(ServerLogon, TakesNoAnswerThatComesLate)
{
    master.takes(4.5);
    EXPECT_FALSE(server().CONNECT());
}

TEST_F(ServerLogon, TriesTwiceTheSameAddressForAnAlternateOne)
{
    master.isThere(false);
    prepareUserSetting(u"ServerAlternateIP", u"10.0.0.8");
    EXPECT_FALSE(server().CONNECT());
    ASSERT_EQ(outside.network().requests().size(), 2U);
    for (const headless::SentRequest& request : outside.network().requests()) {
        EXPECT_EQ(request.message, u"SERVER::LOGON::Anna");
        EXPECT_EQ(request.address, u"127.0.0.1");
    }
    EXPECT_FALSE(server().AVAILABLE());
    EXPECT_EQ(outside.network().requests().size(), 2U);
}

TEST_F(ServerLogon, SucceedsAtTheSecondTryForAnAlternateAddress)
{
    master.missesOne();
    prepareUserSetting(u"ServerAlternateIP", u"10.0.0.8");
    expectWelcome(u"Hallo");
    EXPECT_TRUE(server().CONNECT());
}

TEST_F(ServerLogon, FindsTheAlternateAddressBelowTheRootsKey)
{
    master.missesOne();
    QVAPP()->REGKEY(u"Elsewhere\\");
    outside.settings().prepare(SettingsHive::CurrentUser, u"Elsewhere\\ServerAlternateIP", u"10.0.0.8");
    EXPECT_TRUE(server().CONNECT());
}

TEST_F(ServerLogon, ShowsTheWelcomeMessage)
{
    expectWelcome(u"Willkommen im Chemieraum!");
    logOn();
    ASSERT_EQ(outside.dialogs().shown().size(), 1U);
    EXPECT_EQ(outside.dialogs().shown().front().title, u"Du spielst Online!");
    EXPECT_EQ(outside.dialogs().shown().front().detail, u"Ico\\32\\Computer\\Signs\\Information.ico");
}

TEST_F(ServerLogon, SendsNothingWithNoNetwork)
{
    QVAPP()->CONFIG()->PARAMETERS()->Set(u"NONETWORK", u"");
    EXPECT_FALSE(server().CONNECT());
    EXPECT_FALSE(server().AVAILABLE());
    EXPECT_TRUE(server().ALLOWED());
    EXPECT_THAT(master.requests(), IsEmpty());
    EXPECT_FALSE(std::filesystem::exists(folder.native() / "CommonAppData/QV Phial/Logs/network.log"));
}

TEST_F(ServerLogon, GoesOfflineWithNoNetwork)
{
    logOn();
    QVAPP()->CONFIG()->PARAMETERS()->Set(u"NONETWORK", u"");
    EXPECT_FALSE(server().CONNECT());
    EXPECT_FALSE(server().ONLINE());
}

TEST_F(ServerLogon, RaisesWithoutAClient)
{
    cls_AppServer unprepared;
    EXPECT_RAISES(unprepared.CONNECT(), ObjectNotSet);
    EXPECT_RAISES(unprepared.AVAILABLE(), ObjectNotSet);
    EXPECT_RAISES(unprepared.MONITOR(), ObjectNotSet);
}

TEST_F(ServerLogon, LetsTheComputerNameItsUserWhereTheMasterSaysSo)
{
    server().CONFIG()->SETTINGS()->Set(u"SCREENNAMES", false);
    logOn();
    EXPECT_EQ(master.package(), u"pupil");
    EXPECT_TRUE(QVAPP()->USER()->SCREENNAMELOCK());

    server().CONFIG()->SETTINGS()->Set(u"SCREENNAMES", true);
    QVAPP()->USER()->SCREENNAME(u"Berta");
    logOn();
    EXPECT_EQ(master.package(), u"Berta");
    EXPECT_FALSE(QVAPP()->USER()->SCREENNAMELOCK());
}

TEST_F(ServerLogon, TakesASettingThatIsNoBooleanForTheDefault)
{
    server().CONFIG()->SETTINGS()->Set(u"SCREENNAMES", u"perhaps");
    logOn();
    EXPECT_EQ(master.package(), u"Anna");
}

TEST_F(ServerLogon, TakesTheLoginForAMissingName)
{
    QVAPP()->USER()->SCREENNAME(u"");
    logOn();
    EXPECT_EQ(master.package(), u"pupil");
}

TEST_F(ServerLogon, AsksForANameWhereThereIsNotEvenALogin)
{
    outside.machine().UserName(u"");
    QVAPP()->USER()->SCREENNAME(u"");
    askForName([] { QVAPP()->USER()->SCREENNAME(u"Carla"); });
    logOn();
    EXPECT_EQ(master.package(), u"Carla");
}

TEST_F(ServerLogon, TriesAgainAfterARecheck)
{
    giveUp();
    EXPECT_FALSE(server().AVAILABLE());
    server().RECHECK();
    EXPECT_TRUE(server().AVAILABLE());
    EXPECT_TRUE(server().ONLINE());
}

TEST_F(ServerLogon, KeepsTryingOnceAMasterIsKnown)
{
    logOn();
    giveUp();
    EXPECT_FALSE(server().ONLINE());
    EXPECT_TRUE(server().AVAILABLE());
    EXPECT_TRUE(server().ONLINE());
}

TEST_F(ServerLogon, IsPatientOnceAMasterIsKnown)
{
    logOn();
    server().DISCONNECT();
    const auto before = master.requests().size();
    giveUp();
    EXPECT_THAT(timeoutsFrom(before), ElementsAre(4, 6, 8, 10, 12, 14));
}

TEST_F(ServerLogon, IsAvailableWithoutTrafficWhileLoggedOn)
{
    logOn();
    EXPECT_TRUE(server().AVAILABLE());
    EXPECT_THAT(master.requests(), ElementsAre(u"SERVER:LOGON"));
}

TEST_F(ServerLogon, StaysLoggedOnThroughATimeout)
{
    logOn();
    master.isThere(false);
    EXPECT_EQ(server().REQUEST(u"A", u"B"), Variant(u""));
    EXPECT_TRUE(server().ONLINE());
}

TEST_F(ServerLogon, IsNotOnlineWhenItsPortIsLostLater)
{
    logOn();
    outside.network().refusePorts(true);
    server().INIT();
    EXPECT_FALSE(server().ONLINE());
    EXPECT_TRUE(server().AVAILABLE()) << "a master is known";
    logOn();
    EXPECT_TRUE(server().ONLINE());
}

TEST_F(ServerLogon, LogsOffAndClosesTwice)
{
    logOn();
    server().DISCONNECT();
    EXPECT_THAT(requestsFrom(1), ElementsAre(u"SERVER:LOGOFF"));
    EXPECT_EQ(master.package(), u"Anna");
    EXPECT_EQ(outside.network().closed(), 2);
    server().DISCONNECT();
    EXPECT_THAT(requestsFrom(1), ElementsAre(u"SERVER:LOGOFF", u"SERVER:LOGOFF"));
    EXPECT_EQ(outside.network().closed(), 4);
}

TEST_F(ServerLogon, LogsOffSilentlyFromAMasterThatHasGone)
{
    logOn();
    master.breaksOne();
    server().DISCONNECT();
    EXPECT_EQ(outside.network().closed(), 2);
}

TEST_F(ServerLogon, LogsOffOnlyWhereItIsLoggedOn)
{
    server().DISCONNECT();
    EXPECT_THAT(master.requests(), IsEmpty());
    EXPECT_EQ(outside.network().closed(), 0);
}

TEST_F(ServerLogon, OpensTheMonitor)
{
    server().MONITOR();
    EXPECT_EQ(outside.network().monitorsShown(), 1);
}

} // namespace

} // namespace phial
