#include "app/cls_AppURL.h"
#include "app/cls_AppUser.h"
#include "app/cls_Language.h"
#include "molmasse/ClassroomTest.h"
#include "results/cls_AppRate.h"
#include "results/cls_DataEvent.h"
#include "results/cls_DataEvents.h"
#include "results/cls_DataScores.h"
#include "server/cls_AppServer.h"
#include "visual/Label.h"

#include <gmock/gmock-matchers.h>

namespace molmasse
{
namespace
{

using phial::String;
using phial::StringView;
using phial::Variant;
using phial::headless::Box;
using ::testing::ElementsAre;

// A lesson as the pupil lives through it.
using TrainerClassroom = ClassroomTest;

TEST_F(TrainerClassroom, IsNotLookedForWithoutNetwork)
{
    open();
    trainer->welcome();

    EXPECT_EQ(seen(u"lab_Classroom"), u"Ohne Klassenraum");
    EXPECT_FALSE(isSeen(u"but_Classroom"));
    EXPECT_TRUE(messages.empty());
}

TEST_F(TrainerClassroom, IsEnteredOnceTheWindowStands)
{
    open({});
    EXPECT_TRUE(messages.empty());
    trainer->welcome();

    EXPECT_EQ(messages.front(), u"SERVER::LOGON::Maxi");
    EXPECT_EQ(seen(u"lab_Classroom"), u"Im Klassenraum angemeldet (127.0.0.1)");
    EXPECT_TRUE(isSeen(u"pan_Start"));
    EXPECT_EQ(focused(), u"but_Level");
}

TEST_F(TrainerClassroom, IsReachedByTabBehindTheLevels)
{
    enter();

    type(u"{tab}");
    ASSERT_EQ(focused(), u"but_Level");
    type(u"{enter}");

    EXPECT_EQ(formula(), u"HCl");
}

TEST_F(TrainerClassroom, IsEnteredBesideAnotherAppOfThisComputer)
{
    outside.network().refusePorts(true);
    enter();

    EXPECT_EQ(seen(u"lab_Classroom"), u"Im Klassenraum angemeldet (127.0.0.1)");
}

TEST_F(TrainerClassroom, KnowsThePupilsNameBeforeTheLogOn)
{
    outside.settings().write(phial::SettingsHive::CurrentUser,
                             u"Software\\QV Brunnhof\\Phial\\Config\\ScreenNameMRU", Variant());
    outside.visual().onModal(u"frm_DialogUser", [](phial::Form& dialog) {
        dialog.control<phial::TextBox>(u"txt_Screenname")->Text(u"Uli");
        phial::headless::type(dialog, u"{enter}");
    });
    enter();

    EXPECT_EQ(messages.front(), u"SERVER::LOGON::Uli");
}

TEST_F(TrainerClassroom, LetsTheLevelsWaitForTheLogOn)
{
    whileAnswering = [this](const String& message) {
        if (message.starts_with(u"SERVER::LOGON::")) {
            EXPECT_EQ(seen(u"lab_Classroom"), u"Suche den Klassenraum …");
            EXPECT_FALSE(isSeen(u"but_Level", 0));
            touch(u"but_Level", 0);
            EXPECT_TRUE(isSeen(u"pan_Start"));
        }
    };
    enter();

    EXPECT_TRUE(isSeen(u"but_Level", 0));
    touch(u"but_Level", 0);
    EXPECT_TRUE(isSeen(u"pan_Task"));
}

TEST_F(TrainerClassroom, LetsNoRoundBeginBeforeItIsAllowed)
{
    app.clear();
    int asked = 0;
    whileAnswering = [&](const String& message) {
        if (message.starts_with(u"SERVER::MODE::")) {
            ++asked;
            EXPECT_FALSE(isSeen(u"but_Level", 0));
            EXPECT_FALSE(isSeen(u"but_Classroom"));
        }
    };
    outside.dialogs().expect(Box::Error);
    enter();
    EXPECT_EQ(asked, 1);
}

TEST_F(TrainerClassroom, LeavesTheFocusWhereAWaitingPupilHasPutIt)
{
    app.clear();
    outside.dialogs().expect(Box::Error);
    enter();
    phial::headless::tab(form());
    outside.advance(5.1);
    EXPECT_EQ(focused(), u"but_GiveUp");
}

TEST_F(TrainerClassroom, IsDoneWithoutWhenNoMasterAnswers)
{
    isThere = false;
    enter();

    EXPECT_EQ(seen(u"lab_Classroom"), u"Kein Klassenraum gefunden, du übst für dich.");
    expectRankBox();
    playRound();
    EXPECT_EQ(outside.dialogs().shown().back().title, u"Kunststück!");
}

TEST_F(TrainerClassroom, IsReplacedByALogOfThisComputerWithoutAMaster)
{
    isThere = false;
    enter();
    expectRankBox();
    playRound();

    phial::cls_DataEvents log;
    ASSERT_TRUE(log.LOAD(phial::QVAPP()->URL()->DATAHIGHSCORES() + u"event.qv-log"));
    ASSERT_EQ(log.COUNT(), 2);
    EXPECT_EQ(log.ITEM(1)->ACTION(), u"RUNDE BEGONNEN");
    EXPECT_EQ(log.ITEM(2)->ACTION(), u"RUNDE BEENDET");
    EXPECT_EQ(log.ITEM(2)->ADDITIONAL()->Get(u"PUNKTE"), Variant(20));
}

TEST_F(TrainerClassroom, GreetsThePupil)
{
    settings.Set(u"WELCOMEMESSAGE", u"Guten Morgen, 9b!");
    outside.dialogs().expect(Box::Info, u"Guten Morgen, 9b!");
    enter();
    EXPECT_EQ(outside.dialogs().shown().back().title, u"Du spielst Online!");

    // What the master has handed out is known at the next start, when one log-on is enough.
    messages.clear();
    trainer.reset();
    outside.dialogs().expect(Box::Info, u"Guten Morgen, 9b!");
    enter();
    EXPECT_EQ(sent(u"SERVER::LOGON::").size(), 1U);
}

TEST_F(TrainerClassroom, MayTakeTheLoginForThePupilsName)
{
    settings.Set(u"SCREENNAMES", false);
    enter();

    EXPECT_TRUE(phial::QVAPP()->USER()->SCREENNAMELOCK());
    EXPECT_EQ(sent(u"SERVER::LOGON::").back(), u"SERVER::LOGON::pupil");
}

TEST_F(TrainerClassroom, KeepsThePupilWaitingUntilTheTeacherChoosesTheTrainer)
{
    app = u"Wasser";
    outside.dialogs().expect(Box::Error);
    enter();
    EXPECT_TRUE(isSeen(u"pan_Waiting"));
    EXPECT_EQ(focused(), u"but_Ask");

    outside.advance(5.1);
    EXPECT_TRUE(isSeen(u"pan_Waiting"));

    app = u"Molmasse";
    outside.advance(5.1);
    EXPECT_TRUE(isSeen(u"pan_Start"));
    const std::size_t asked = messages.size();
    outside.advance(60);
    EXPECT_EQ(messages.size(), asked);
}

TEST_F(TrainerClassroom, TellsAPupilWhoAsksAgainWhyTheTrainerDoesNotBegin)
{
    app.clear();
    outside.dialogs().expect(Box::Error);
    enter();

    outside.dialogs().expect(Box::Error, u"Am Master wurde noch keine Lern-App ausgewählt. Bitte warte, bis "
                                         u"eine Lern-App ausgewählt wurde!");
    type(u"{enter}");
    EXPECT_TRUE(isSeen(u"pan_Waiting"));

    app = u"molmasse";
    touch(u"but_Ask");
    EXPECT_TRUE(isSeen(u"pan_Start"));
}

TEST_F(TrainerClassroom, AWaitingPupilMayLeave)
{
    app.clear();
    outside.dialogs().expect(Box::Error);
    enter();
    touch(u"but_GiveUp");
    EXPECT_FALSE(isOpen());

    const std::size_t asked = messages.size();
    outside.advance(60);
    EXPECT_EQ(messages.size(), asked);
}

TEST_F(TrainerClassroom, AsksOneQuestionAtATime)
{
    app.clear();
    outside.dialogs().expect(Box::Error);
    enter();
    messages.clear();
    whileAnswering = [this](const String& message) {
        app = u"Molmasse";
        if (message.starts_with(u"SERVER::MODE::")) {
            touch(u"but_Ask");
        }
    };
    outside.advance(5.1);

    EXPECT_EQ(sent(u"SERVER::MODE::").size(), 1U);
    EXPECT_TRUE(isSeen(u"pan_Start"));
}

TEST_F(TrainerClassroom, HearsOfEachRound)
{
    enter();
    touch(u"but_Level", 0);
    EXPECT_THAT(actions(), ElementsAre(u"RUNDE BEGONNEN"));
    type(u"18,0{enter}{enter}58,4{enter}");

    expectRankBox();
    type(u"{enter}");
    EXPECT_THAT(actions(), ElementsAre(u"RUNDE BEGONNEN", u"RUNDE BEENDET"));
    phial::CoreParameters about;
    about.Unpack(package(sent(u"EVENT::ADD::").back()).at(1).toText());
    EXPECT_EQ(about.Get(u"STUFE"), Variant(u"Leicht"));
    EXPECT_EQ(about.Get(u"PUNKTE"), Variant(20));
    EXPECT_EQ(about.Get(u"MAXIMUM"), Variant(20));
}

TEST_F(TrainerClassroom, GetsTheResultAndGivesTheRank)
{
    enter();
    outside.dialogs().expect(Box::Info, u"Du hast es auf den 4. Platz der Bestenliste geschafft!");
    playRound();

    EXPECT_EQ(sent(u"RESULTS::SUBMIT::").size(), 1U);
    ASSERT_EQ(sent(u"HIGHSCORE::SUBMIT::").size(), 1U);
    const std::vector<Variant> values = package(sent(u"HIGHSCORE::SUBMIT::").front());
    EXPECT_EQ(values.at(0), Variant(20.0));
    EXPECT_EQ(values.at(2), Variant(u"Leicht"));
    EXPECT_EQ(values.at(4), Variant(u"Maxi"));
    EXPECT_EQ(seen(u"lab_Rank"), u"Platz 4 der Bestenliste");
}

TEST_F(TrainerClassroom, LosesNoResultToAMasterThatHasGone)
{
    enter();
    touch(u"but_Level", 0);
    type(u"18,0{enter}{enter}58,4{enter}");
    isThere = false;
    expectRankBox();
    type(u"{enter}");

    EXPECT_EQ(outside.dialogs().shown().back().title, u"Kunststück!");
    EXPECT_EQ(phial::QVAPP()->RATE()->HIGHSCORE()->COUNT(), 1);
    EXPECT_EQ(seen(u"lab_Classroom"), u"Kein Klassenraum gefunden, du übst für dich.");
}

TEST_F(TrainerClassroom, FindsALostMasterAgainWithTheNextRound)
{
    enter();
    touch(u"but_Level", 0);
    type(u"18,0{enter}{enter}58,4{enter}");
    isThere = false;
    expectRankBox();
    type(u"{enter}");
    isThere = true;
    touch(u"but_Again");
    touch(u"but_Level", 0);
    EXPECT_NE(seen(u"lab_Classroom"), u"Kein Klassenraum gefunden, du übst für dich.");
    EXPECT_TRUE(phial::QVAPP()->SERVER()->ONLINE());
}

TEST_F(TrainerClassroom, OffersOnlyLeavingWhileTheResultIsOnItsWay)
{
    enter();
    int seenOnTheWay = 0;
    whileAnswering = [&](const String& message) {
        if (message.starts_with(u"HIGHSCORE::SUBMIT::")) {
            ++seenOnTheWay;
            EXPECT_TRUE(isSeen(u"pan_Summary"));
            EXPECT_FALSE(isSeen(u"but_Again"));
            EXPECT_FALSE(isSeen(u"but_List"));
            EXPECT_TRUE(isSeen(u"but_Quit"));
            EXPECT_EQ(seen(u"lab_Rank"), u"Dein Ergebnis wird eingetragen …");
            type(u"{enter}"); // leaves by intent only
        }
    };
    expectRankBox();
    playRound();

    EXPECT_EQ(seenOnTheWay, 1);
    EXPECT_TRUE(isSeen(u"but_Again"));
    EXPECT_EQ(focused(), u"but_Again");
}

TEST_F(TrainerClassroom, MayBeLeftWhileTheResultIsOnItsWay)
{
    enter();
    whileAnswering = [this](const String& message) {
        if (message.starts_with(u"HIGHSCORE::SUBMIT::")) {
            touch(u"but_Quit");
        }
    };
    expectRankBox();
    playRound();
    EXPECT_FALSE(isOpen());
}

TEST_F(TrainerClassroom, LetsThePupilGoOnWhileItTakesNoteOfTheEnd)
{
    enter();
    whileAnswering = [this](const String& message) {
        if (message.starts_with(u"EVENT::ADD::") && actions().back() == u"RUNDE BEENDET") {
            touch(u"but_Again");
        }
    };
    expectRankBox();
    playRound();
    EXPECT_TRUE(isSeen(u"pan_Start"));
}

TEST_F(TrainerClassroom, ShowsTheListOfTheWholeClass)
{
    scores.ADD(100, 100, u"Schwer", nullptr, u"u", u"c", u"Uli");
    enter();
    expectRankBox();
    playRound();

    outside.visual().onModal(u"frm_DialogHighscore", [](phial::Form& dialog) {
        EXPECT_EQ(dialog.control<phial::Label>(u"lab_Name", 0)->Caption(), u"Uli");
        dialog.Unload();
    });
    touch(u"but_List");
}

TEST_F(TrainerClassroom, SeesASignOfLifeEveryHalfMinuteOfARound)
{
    enter();
    outside.advance(100);
    EXPECT_TRUE(sent(u"SERVER::ALIVE::").empty());

    touch(u"but_Level", 0);
    outside.advance(61);
    EXPECT_EQ(sent(u"SERVER::ALIVE::").size(), 2U);

    expectRankBox();
    type(u"18,0{enter}{enter}58,4{enter}{enter}");
    outside.advance(100);
    EXPECT_EQ(sent(u"SERVER::ALIVE::").size(), 2U);
}

TEST_F(TrainerClassroom, MayBeLeftDuringTheLogOn)
{
    whileAnswering = [this](const String& message) {
        if (message.starts_with(u"SERVER::LOGON::")) {
            form().Unload();
        }
    };
    enter();
    EXPECT_FALSE(isOpen());
    EXPECT_TRUE(sent(u"SERVER::MODE::").empty());
}

TEST_F(TrainerClassroom, FollowsTheLanguage)
{
    app.clear();
    outside.dialogs().expect(Box::Error);
    enter();
    touch(u"but_Language");

    EXPECT_EQ(seen(u"lab_Classroom"), u"Logged on to the classroom (127.0.0.1)");
    EXPECT_EQ(seen(u"lab_WaitingTitle"), u"It will begin soon");
    EXPECT_EQ(buttonText(u"but_Ask"), u"Ask again");
    EXPECT_EQ(buttonText(u"but_Classroom"), u"Classroom …");
}

} // namespace
} // namespace molmasse
