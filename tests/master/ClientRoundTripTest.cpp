#include "TestRoom.h"
#include "app/cls_App.h"
#include "app/cls_AppConfig.h"
#include "app/cls_AppURL.h"
#include "app/cls_AppUser.h"
#include "app/sys_Global.h"
#include "core/CoreParameters.h"
#include "master/Classroom.h"
#include "master/MasterServer.h"
#include "qt/base/QtClock.h"
#include "qt/base/QtEventPump.h"
#include "qt/base/QtNetClient.h"
#include "results/cls_AppRate.h"
#include "results/cls_DataScore.h"
#include "results/cls_DataScores.h"
#include "server/cls_AppServer.h"
#include "server/cls_AppServerConfig.h"
#include "support/AppSession.h"

#include <gmock/gmock-more-matchers.h>

using namespace phial;
using phial::test::TestRoom;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

namespace
{

/// A pupil's app with the real client, on real sockets, against the real master in the same process; both
/// live by the one event loop. Random numbers are 0, so that no random pause takes time.
class ClientRoundTrip : public phial::test::AppSession
{
protected:
    ClientRoundTrip()
    {
        guard_->setReporter(fail);
        session.reset();
        Platform platform = outside.platform();
        platform.clock = std::make_shared<qt::QtClock>();
        platform.pump = std::make_shared<qt::QtEventPump>(guard_);
        platform.newNetClient = [guard = guard_] { return std::make_shared<qt::QtNetClient>(guard); };
        session.emplace(platform);
        outside.random().numbers({0.0});

        std::filesystem::create_directories(folder.native() / "highscores");
        QVAPP()->URL()->DATAHIGHSCORES(path(u"highscores\\"));
        QVAPP()->CONFIG()->IDENT(u"Molmasse");
        QVAPP()->USER()->SCREENNAME(u"Anna");
        startMaster();
        client().CONFIG()->SERVERPORT(port_);
        client().CONFIG()->CLIENTPORT(0); // any that is free
        client().INIT();
    }

    cls_AppServer& client() { return *QVAPP()->SERVER(); }
    static EventPump& pump() { return *SessionState::current().platform().pump; }

    /// At first on any free port, later on the same again.
    void startMaster()
    {
        master_.emplace(room_.classroom, room_.desk, clock_, master::ServerLimits{}, room_.notices, *guard_);
        ASSERT_TRUE(master_->listen({QHostAddress::LocalHost, port_, 0}));
        port_ = master_->port();
    }
    void stopMaster() { master_.reset(); }

    /// Runs the task once, after that time in milliseconds.
    void after(std::int32_t milliseconds, std::function<void()> task)
    {
        timer_ = pump().startTimer(milliseconds, [this, task = std::move(task)] {
            timer_.disconnect();
            task();
        });
    }

    void expectInfo(const String& text) { outside.dialogs().expect(headless::Box::Info, text); }
    std::int32_t submit(double points)
    {
        return QVAPP()->RATE()->SUBMIT(points, 10, u"Salze", nullptr, u"HIGHSCORE", false);
    }

    std::vector<String> pupils() const
    {
        std::vector<String> names;
        for (const master::Pupil& pupil : room_.classroom.pupils()) {
            names.push_back(pupil.logOn.name);
        }
        return names;
    }

    std::shared_ptr<qt::DispatchGuard> guard_ = std::make_shared<qt::DispatchGuard>();
    qt::QtClock clock_;
    TestRoom room_{clock_};
    std::optional<master::MasterServer> master_;
    std::uint16_t port_ = 0;
    Connection timer_;
};

TEST_F(ClientRoundTrip, LogsOnAndOff)
{
    EXPECT_TRUE(client().CONNECT());
    EXPECT_THAT(pupils(), ElementsAre(u"Anna"));
    client().DISCONNECT();
    EXPECT_THAT(pupils(), IsEmpty());
}

TEST_F(ClientRoundTrip, TakesOverWhatTheMasterHandsOut)
{
    room_.set(u"WELCOMEMESSAGE", u"Willkommen|im {Chemieraum}");
    room_.set(u"SCREENNAMES", u"0");
    client().CONFIG()->PACK(client().REQUEST(u"SERVER", u"PACK").toText());
    EXPECT_EQ(client().CONFIG()->SERVERPORT(), port_);

    expectInfo(u"Willkommen|im {Chemieraum}");
    EXPECT_TRUE(client().CONNECT());
    EXPECT_EQ(QVAPP()->USER()->SCREENNAME(), u"pupil");
}

TEST_F(ClientRoundTrip, RunsTheChosenAppOnly)
{
    outside.dialogs().expect(headless::Box::Error);
    EXPECT_FALSE(client().ALLOWED()) << "none is chosen";
    room_.chooseApp(u"Formeln");
    outside.dialogs().expect(headless::Box::Error);
    EXPECT_FALSE(client().ALLOWED());
    room_.chooseApp(u"molmasse");
    EXPECT_TRUE(client().ALLOWED());
}

TEST_F(ClientRoundTrip, AsksForSettings)
{
    room_.set(u"Level", u"3");
    EXPECT_EQ(client().SETTING(u"level", 1).toWhole(), 3);
    EXPECT_EQ(client().SETTING(u"Missing", 1), Variant(1));
}

TEST_F(ClientRoundTrip, RecordsEvents)
{
    CoreParameters additional;
    additional.Set(u"Round", 7);
    client().ACTION(u"Runde begonnen", &additional);
    ASSERT_THAT(room_.store.committed().events, SizeIs(1));
    const master::PupilEvent& event = room_.store.committed().events.front();
    EXPECT_EQ(event.action, u"Runde begonnen");
    EXPECT_EQ(event.additional, additional.Pack());
    EXPECT_EQ(event.sender.screenName, u"Anna");
}

TEST_F(ClientRoundTrip, SubmitsResultsAndGetsTheirRanks)
{
    EXPECT_EQ(submit(5), 1);
    EXPECT_EQ(submit(8), 1);
    EXPECT_EQ(submit(6), 2);
    EXPECT_THAT(room_.store.results(), SizeIs(3));
    const auto scores = QVAPP()->RATE()->HIGHSCORE();
    ASSERT_EQ(scores->COUNT(), 3);
    EXPECT_EQ(scores->ITEM(1)->POINTS(), 8);
    EXPECT_EQ(scores->ITEM(1)->SCREENNAME(), u"Anna");
    EXPECT_FALSE(std::filesystem::exists(folder.native() / "highscores/results.qv-rsl"));
}

TEST_F(ClientRoundTrip, TellsThePupilTheRank)
{
    expectInfo(u"Du hast es auf den 1. Platz der Bestenliste geschafft!");
    QVAPP()->RATE()->SUBMIT(8, 10, u"Salze");
    room_.set(u"HIGHSCORE.MAX", u"1");
    expectInfo(u"Leider war das nichts! \rFür die Bestenliste hat DAS nicht gereicht!");
    EXPECT_EQ(QVAPP()->RATE()->SUBMIT(1, 10, u"Salze"), -1);
}

TEST_F(ClientRoundTrip, SurvivesAMasterThatIsStartedAgain)
{
    EXPECT_EQ(submit(5), 1);
    stopMaster();
    startMaster();
    EXPECT_EQ(submit(8), 1);
    EXPECT_THAT(room_.store.results(), SizeIs(2));
}

TEST_F(ClientRoundTrip, AsksAgainUntilTheMasterIsBack)
{
    ASSERT_TRUE(client().CONNECT());
    stopMaster();
    after(120, [this] { startMaster(); });
    room_.set(u"Level", u"3");
    EXPECT_EQ(client().SETTING(u"Level", 1).toWhole(), 3);
}

TEST_F(ClientRoundTrip, GoesOnAloneWithoutAMaster)
{
    stopMaster();
    EXPECT_EQ(submit(5), 1);
    client().ACTION(u"Runde beendet");
    EXPECT_TRUE(std::filesystem::exists(folder.native() / "highscores/results.qv-rsl"));
    EXPECT_TRUE(std::filesystem::exists(folder.native() / "highscores/event.qv-log"));
    EXPECT_FALSE(client().AVAILABLE());
}

TEST_F(ClientRoundTrip, AnswersRequestsWithinARequest)
{
    room_.set(u"Outer", u"outer");
    room_.set(u"Inner", u"inner");
    ASSERT_TRUE(client().CONNECT());
    Variant inner;
    pump().post([&] { inner = client().SETTING(u"Inner", u""); });
    EXPECT_EQ(client().SETTING(u"Outer", u""), Variant(u"outer"));
    EXPECT_EQ(inner, Variant(u"inner"));
}

TEST_F(ClientRoundTrip, LogsOnOnceWhenAHandlerAsksMeanwhile)
{
    bool inner = true;
    pump().post([&] { inner = client().AVAILABLE(); });
    EXPECT_TRUE(client().CONNECT());
    EXPECT_FALSE(inner);
    EXPECT_THAT(pupils(), ElementsAre(u"Anna"));
}

TEST_F(ClientRoundTrip, SurvivesThePreparationOfAnotherClientMeanwhile)
{
    room_.set(u"Level", u"3");
    ASSERT_TRUE(client().CONNECT());
    pump().post([&] { client().INIT(); });
    EXPECT_EQ(client().SETTING(u"Level", 1).toWhole(), 3);
}

TEST_F(ClientRoundTrip, SurvivesTheEndOfTheConnectionMeanwhile)
{
    room_.set(u"Level", u"3");
    ASSERT_TRUE(client().CONNECT());
    pump().post([&] { client().DISCONNECT(); });
    EXPECT_EQ(client().SETTING(u"Level", 1).toWhole(), 3);
}

} // namespace
