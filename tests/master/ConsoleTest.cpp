#include "master/Console.h"

#include "TestRoom.h"
#include "app/cls_Language.h"
#include "app/sys_Global.h"
#include "core/CoreParameters.h"
#include "support/AppSession.h"

#include <gmock/gmock-matchers.h>
#include <sstream>

using namespace phial;
using namespace phial::master;
using phial::test::TestRoom;
using testing::AllOf;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

namespace
{

class ConsoleTest : public phial::test::AppSession
{
protected:
    ConsoleTest() { LNG()->CURRENT(ID_Language_German); }

    /// What a command answers.
    std::string answerTo(StringView line)
    {
        output_.str({});
        last_.reset();
        console_.run(line, [this](Console::Outcome outcome) { last_ = outcome; });
        return output_.str();
    }

    void addResult(StringView name, double points)
    {
        room_.store.addResult(resultOf(name, points));
        room_.store.commit();
    }

    static Result resultOf(StringView name, double points)
    {
        return {Moment{45000.5},        {String(name), u"login", u"PC7"}, u"Salze", points, 10,
                CoreParameters().Pack()};
    }
    /// A message from a computer.
    void receive(std::uint64_t client, StringView address, StringView text)
    {
        room_.classroom.receive({{client, ++messages_}, String(address), {}}, text, [](const AnswerText&) {});
        room_.desk.start();
    }
    void submit(StringView module, StringView name, double points)
    {
        EXPECT_TRUE(room_.change([&](ClassBook& book) {
            std::vector<NoticeCase> notices;
            book.submit(module, resultOf(name, points), u"10.0.0.1", notices);
        }));
    }

    TestRoom room_{outside.clock()};
    std::ostringstream output_;
    Console console_{room_.classroom, room_.desk, room_.apps, outside.clock(), outside.files(), output_};
    std::optional<Console::Outcome> last_;
    std::uint64_t messages_ = 0;
};

TEST_F(ConsoleTest, HelpListsAllCommandsInTheLanguageInForce)
{
    const std::string german = answerTo(u"help");
    EXPECT_EQ(std::ranges::count(german, '\n'), 13);
    EXPECT_THAT(german, HasSubstr("  app IDENT|none                wählt die Lern-App"));
    LNG()->CURRENT(ID_Language_English);
    EXPECT_THAT(answerTo(u"HELP"), HasSubstr("  export FILE.csv               writes all results"));
}

TEST_F(ConsoleTest, ABlankLineDoesNothing)
{
    EXPECT_EQ(answerTo(u"  \t"), "");
    EXPECT_EQ(last_, Console::Outcome::Done);
}

TEST_F(ConsoleTest, AnUnknownCommandIsNamedAndFails)
{
    EXPECT_EQ(answerTo(u"dance now"), "\"dance\" kenne ich nicht; \"help\" zeigt, was es gibt.\n");
    EXPECT_EQ(last_, Console::Outcome::Failed);
}

TEST_F(ConsoleTest, ShowsWhoIsThereWhoIsSilentAndWhoHasGone)
{
    EXPECT_EQ(answerTo(u"pupils"), "Niemand ist angemeldet.\n");
    for (const std::uint64_t client : {1U, 2U, 3U}) {
        room_.classroom.roster().connect(client);
    }
    receive(1, u"192.168.1.20", u"SERVER::LOGON::Zoë");
    receive(2, u"192.168.1.21", u"SERVER::LOGON::Anna");
    receive(3, u"192.168.1.22", u"SERVER::LOGON::Ben");
    outside.clock().advance(360);
    receive(1, u"192.168.1.20", u"SERVER::ALIVE::");
    room_.classroom.roster().disconnect(3, true);
    EXPECT_EQ(answerTo(u"pupils"), "Name  Rechner       Zustand  Angemeldet           Zuletzt gehört\n"
                                   "Anna  192.168.1.21  still    02.03.2026 08:00:00  02.03.2026 08:00:00\n"
                                   "Ben   192.168.1.22  weg      02.03.2026 08:00:00  02.03.2026 08:00:00\n"
                                   "Zoë   192.168.1.20  da       02.03.2026 08:00:00  02.03.2026 08:06:00\n");
    LNG()->CURRENT(ID_Language_English);
    EXPECT_THAT(answerTo(u"pupils"),
                AllOf(HasSubstr("  there  "), HasSubstr("  silent  "), HasSubstr("  gone  ")));
}

TEST_F(ConsoleTest, ShowsWhoHasNotHandedIn)
{
    EXPECT_EQ(answerTo(u"results --missing"), "Niemand ist angemeldet.\n");
    receive(1, u"192.168.1.20", u"SERVER::LOGON::Zoë");
    receive(2, u"192.168.1.21", u"SERVER::LOGON::Anna");
    Result result = resultOf(u"zoë", 5);
    result.at = outside.clock().moment();
    room_.store.addResult(result);
    room_.store.commit();
    EXPECT_EQ(answerTo(u"results fehlend"),
              "Name  Rechner       Zustand  Angemeldet           Zuletzt gehört\n"
              "Anna  192.168.1.21  still    02.03.2026 08:00:00  02.03.2026 08:00:00\n");
    receive(2, u"192.168.1.21", u"SERVER::LOGOFF::Anna");
    EXPECT_EQ(answerTo(u"results Missing"), "Alle, die sich angemeldet haben, haben abgegeben.\n");
}

TEST_F(ConsoleTest, ChoosesAnAppAndLetsItGo)
{
    EXPECT_EQ(answerTo(u"app"), "Es ist keine Lern-App ausgewählt.\n");
    EXPECT_EQ(answerTo(u"app molmassen-TRAINER"), "Ausgewählt ist: Molmasse\n");
    EXPECT_EQ(room_.store.committed().app, u"Molmasse");
    EXPECT_EQ(answerTo(u"app NONE"), "Es ist keine Lern-App ausgewählt.\n");
    EXPECT_EQ(room_.store.committed().app, u"");
}

TEST_F(ConsoleTest, WarnsOfAnAppThatIsNotHereAndNamesThoseKnown)
{
    EXPECT_EQ(answerTo(u"app Molmase"),
              "Achtung: Die Lern-App \"Molmase\" gibt es auf diesem Rechner nicht.\n"
              "Bekannt sind:\n"
              "  Molmasse  Molmassen-Trainer\n"
              "Ausgewählt ist: Molmase\n");
    room_.apps = {};
    EXPECT_EQ(answerTo(u"app Fremd"), "Achtung: Die Lern-App \"Fremd\" gibt es auf diesem Rechner nicht.\n"
                                      "Ausgewählt ist: Fremd\n");
}

TEST_F(ConsoleTest, SetsAndDeletesValues)
{
    EXPECT_EQ(answerTo(u"set"), "Es ist nichts gesetzt.\n");
    EXPECT_EQ(answerTo(u"set WelcomeMessage  Guten   Morgen!"), "WELCOMEMESSAGE = Guten   Morgen!\n");
    EXPECT_EQ(answerTo(u"set highscore.max 5"), "HIGHSCORE.MAX = 5\nWELCOMEMESSAGE = Guten   Morgen!\n");
    EXPECT_EQ(answerTo(u"set WELCOMEMESSAGE"), "HIGHSCORE.MAX = 5\n");
    EXPECT_EQ(answerTo(u"set SCREENNAMES no"), "HIGHSCORE.MAX = 5\nSCREENNAMES = nein\n");
    EXPECT_EQ(room_.store.committed().settings.size(), 2U);
}

TEST_F(ConsoleTest, RefusesValuesThatCannotBe)
{
    EXPECT_EQ(answerTo(u"set SCREENNAMES vielleicht"), "SCREENNAMES kann ja oder nein sein.\n");
    EXPECT_EQ(answerTo(u"set Salze.ONCE 2"), "Salze.ONCE kann ja oder nein sein.\n");
    EXPECT_EQ(answerTo(u"set Salze.MAX 0"), "Salze.MAX kann 1 bis 1000 sein.\n");
    EXPECT_EQ(answerTo(u"set Salze.MAX 2.5"), "Salze.MAX kann 1 bis 1000 sein.\n");
    EXPECT_EQ(answerTo(u"set X " + String(501, u'x')), "Der Wert ist zu lang.\n");
    EXPECT_EQ(answerTo(u"set WELCOMEMESSAGE " + String(400, u':')), "Der Wert ist zu lang.\n");
    EXPECT_EQ(answerTo(u"set " + String(65, u'x') + u" 1"), "Der Name ist zu lang.\n");
    EXPECT_EQ(last_, Console::Outcome::Failed);
    EXPECT_TRUE(room_.store.committed().settings.empty());
}

TEST_F(ConsoleTest, ShowsTheLatestResults)
{
    EXPECT_EQ(answerTo(u"results"), "Es gibt noch keine Ergebnisse.\n");
    for (int round = 1; round <= 25; ++round) {
        addResult(u"Anna", round / 4.0);
    }
    EXPECT_EQ(answerTo(u"results 1"),
              "Nr.  Zeit                 Name  Rechner  Übung  Punkte  von  Note  Zusatz\n"
              "25   15.03.2023 12:00:00  Anna  PC7      Salze  6,25    10   3\n");
    EXPECT_EQ(std::ranges::count(answerTo(u"results"), '\n'), 1 + 20);
    EXPECT_EQ(std::ranges::count(answerTo(u"results all"), '\n'), 1 + 25);
    EXPECT_EQ(answerTo(u"results some"), "Das ist keine Anzahl: some\n");
}

TEST_F(ConsoleTest, ShowsEvents)
{
    EXPECT_EQ(answerTo(u"events"), "Es gibt noch keine Ereignisse.\n");
    CoreParameters more;
    more.Set(u"Runde", 2);
    room_.store.addEvent({Moment{45000.5}, {u"Anna", u"anna", u"PC7"}, u"Start", more.Pack()});
    EXPECT_EQ(answerTo(u"events"), "Zeit                 Name  Rechner  Ereignis  Zusatz\n"
                                   "15.03.2023 12:00:00  Anna  PC7      Start     Runde = 2\n");
}

TEST_F(ConsoleTest, MarksPointsBeyondTheReachableAndDoubtfulNames)
{
    addResult(u"Anna", 12);
    addResult(u"\u0410nna", 10);
    EXPECT_EQ(answerTo(u"results"),
              "Nr.  Zeit                 Name      Rechner  Übung  Punkte  von  Note  Zusatz\n"
              "1    15.03.2023 12:00:00  (!) Anna  PC7      Salze  12 !    10   1+\n"
              "2    15.03.2023 12:00:00  (!) \u0410nna  PC7      Salze  10      10   1+\n"
              "(!) Der Name enthält verborgene Zeichen oder lässt sich mit einem anderen verwechseln.\n"
              "! Mehr Punkte, als zu erreichen sind.\n");
    submit(u"HIGHSCORE", u"A\u202Enna", 11);
    EXPECT_THAT(answerTo(u"highscore highscore"),
                AllOf(HasSubstr("(!) A\u2039202E\u203Anna  PC7      11 !    10"), HasSubstr("\n(!) Der Name"),
                      HasSubstr("\n! Mehr Punkte")));
}

TEST_F(ConsoleTest, NamesFromRightToLeftKeepToTheirCell)
{
    addResult(u"\u05D3\u05DF", 1);
    EXPECT_THAT(answerTo(u"results"), HasSubstr("00  \u2068\u05D3\u05DF\u2069    PC7      Salze"));
}

TEST_F(ConsoleTest, ShowsAHighscoreAndTakesItAway)
{
    EXPECT_EQ(answerTo(u"highscore"), "Es gibt noch keine Bestenliste.\n");
    EXPECT_EQ(answerTo(u"highscore Salze"), "Diese Bestenliste ist leer.\n");
    submit(u"Salze", u"Anna", 2.5);
    EXPECT_EQ(answerTo(u"highscore"), "Bestenliste  Begonnen von  Begonnen am\n"
                                      "SALZE        10.0.0.1      15.03.2023 12:00:00\n");
    EXPECT_EQ(answerTo(u"highscore salze"), "Rang  Name  Rechner  Punkte  von  Übung  Zeit\n"
                                            "1     Anna  PC7      2,5     10   Salze  15.03.2023 12:00:00\n");
    EXPECT_EQ(answerTo(u"reset salze"), "Die Bestenliste ist jetzt leer.\n");
    EXPECT_EQ(answerTo(u"highscore"), "Es gibt noch keine Bestenliste.\n");
    EXPECT_EQ(answerTo(u"reset alkane"), "Diese Bestenliste gibt es nicht.\n");
    EXPECT_EQ(answerTo(u"changes"),
              "02.03.2026 08:00:00  reset  SALZE 1: Anna; 2.5 / 10; Salze; 15.03.2023 12:00:00\n"
              "02.03.2026 08:00:00  reset  SALZE\n");
}

TEST_F(ConsoleTest, TakesAwayWhatOneComputerHasBegun)
{
    submit(u"M1", u"Anna", 1);
    submit(u"M2", u"Anna", 1);
    EXPECT_EQ(answerTo(u"reset --from 10.0.0.9"), "Entfernte Bestenlisten: 0\n");
    EXPECT_EQ(answerTo(u"reset --from 10.0.0.1"), "Entfernte Bestenlisten: 2\n");
    EXPECT_TRUE(room_.store.committed().lists.empty());
    EXPECT_TRUE(room_.store.committed().origins.empty());
}

TEST_F(ConsoleTest, LeavesTheListsOfTheAppAndOfTheTeacherWhereOneComputersAreTakenAway)
{
    room_.chooseApp(u"Molmasse");
    room_.set(u"ALKANE.ONCE", u"yes");
    for (const StringView module : {u"M1", u"SALZE", u"HIGHSCORE", u"ALKANE"}) {
        submit(module, u"Anna", 1);
    }
    EXPECT_EQ(answerTo(u"reset --from 10.0.0.1"), "Entfernte Bestenlisten: 1\n");
    EXPECT_THAT(answerTo(u"highscore"),
                AllOf(HasSubstr("SALZE"), HasSubstr("HIGHSCORE"), HasSubstr("ALKANE"), Not(HasSubstr("M1"))));
}

TEST_F(ConsoleTest, AListCanBeTypedAsItIsShown)
{
    submit(u"SALZ\u202EE", u"Anna", 1);
    submit(u"SALZ\u2039202E\u203AE", u"Ben", 1);
    submit(u"M\u200BY\u00A0LIST", u"Cem", 3);
    submit(u"M\u200BY\u00A0LIST", u"Dora", 2);
    EXPECT_THAT(answerTo(u"highscore salz\u2039202E\u203Ae"), HasSubstr("Ben")) << "the one called so";
    EXPECT_EQ(answerTo(u"reset salz\u2039202E\u203Ae"), "Die Bestenliste ist jetzt leer.\n");
    EXPECT_THAT(answerTo(u"highscore salz\u2039202E\u203Ae"), HasSubstr("Anna"));
    EXPECT_EQ(answerTo(u"remove m\u2039200B\u203Ay list 1"), "Entfernt: ein Eintrag von Cem\n");
    EXPECT_EQ(answerTo(u"reset m\u2039200B\u203Ay list"), "Die Bestenliste ist jetzt leer.\n");
    EXPECT_EQ(answerTo(u"reset m\u2039200B\u203Ay list"), "Diese Bestenliste gibt es nicht.\n");
}

TEST_F(ConsoleTest, WhatIsTypedTurnsNoLineRound)
{
    addResult(u"An\u202Ena", 1);
    EXPECT_EQ(answerTo(u"rename An\u202Ena Anna"), "An\u2039202E\u203Ana heißt jetzt Anna.\n");
    EXPECT_THAT(answerTo(u"rename An\u202Ena Anna"), StartsWith("An\u2039202E\u203Ana hat nichts"));
    EXPECT_THAT(answerTo(u"app \u202EX"), HasSubstr("Ausgewählt ist: \u2039202E\u203AX\n"));
    EXPECT_THAT(answerTo(u"set A\u202EB C\u202ED"), HasSubstr("A\u2039202E\u203AB = C\u2039202E\u203AD\n"));
    EXPECT_THAT(answerTo(u"dance\u202E"), Not(HasSubstr("\u202E")));
}

TEST_F(ConsoleTest, RemovesOneEntryOfAHighscore)
{
    submit(u"My list", u"Anna", 3);
    submit(u"My list", u"Ben", 2);
    submit(u"My list", u"Cem", 1);
    EXPECT_EQ(answerTo(u"remove my list 2"), "Entfernt: ein Eintrag von Ben\n");
    EXPECT_THAT(answerTo(u"highscore my list"), AllOf(HasSubstr("1     Anna"), HasSubstr("2     Cem")));
    EXPECT_EQ(answerTo(u"changes"),
              "02.03.2026 08:00:00  remove  MY LIST 2: Ben; 2 / 10; Salze; 15.03.2023 12:00:00\n");
    EXPECT_EQ(answerTo(u"remove my list 3"), "Diesen Eintrag gibt es nicht.\n");
    EXPECT_EQ(answerTo(u"remove other 1"), "Diesen Eintrag gibt es nicht.\n");
    for (const StringView line : {u"remove", u"remove 1", u"remove my list", u"remove x 0"}) {
        EXPECT_THAT(answerTo(line), StartsWith("Bitte Modul und Rang angeben")) << toUtf8(line);
    }
}

TEST_F(ConsoleTest, RemovesOneResult)
{
    addResult(u"Anna", 1);
    addResult(u"Ben", 2);
    EXPECT_EQ(answerTo(u"remove results 1"), "Entfernt: ein Eintrag von Anna\n");
    EXPECT_EQ(answerTo(u"remove RESULTS 1"), "Diesen Eintrag gibt es nicht.\n");
    EXPECT_EQ(room_.store.results().size(), 1U);
    EXPECT_EQ(room_.store.committed().changes.front().about,
              u"RESULTS 1: Anna; 1 / 10; Salze; 15.03.2023 12:00:00");
}

TEST_F(ConsoleTest, CorrectsANameEverywhere)
{
    addResult(u"Ana B", 1);
    addResult(u"ana b", 2);
    addResult(u"Ben", 3);
    submit(u"SALZE", u"Ana B", 1);
    receive(1, u"10.0.0.1", u"SERVER::LOGON::ANA B");
    EXPECT_EQ(answerTo(u"rename \"Ana B\" \"Anna Bo\""), "Ana B heißt jetzt Anna Bo.\n");
    EXPECT_THAT(answerTo(u"results"), Not(HasSubstr("Ana")));
    EXPECT_THAT(answerTo(u"highscore salze"), HasSubstr("1     Anna Bo"));
    EXPECT_THAT(answerTo(u"pupils"), HasSubstr("Anna Bo"));
    EXPECT_EQ(room_.store.committed().changes.size(), 3U) << "one for each spelling";
    EXPECT_EQ(room_.store.committed().changes.front().about, u"ANA B > Anna Bo");
    EXPECT_EQ(answerTo(u"rename Nobody Anna"), "Nobody hat nichts abgegeben.\n");
    for (const StringView line : {u"rename", u"rename Anna", u"rename a b c", u"rename a \"\""}) {
        EXPECT_THAT(answerTo(line), StartsWith("Bitte den alten und den neuen Namen angeben"))
            << toUtf8(line);
    }
}

TEST_F(ConsoleTest, ANameCanBeTypedAsItIsShown)
{
    addResult(u"An\u200Bna", 1);
    submit(u"SALZE", u"An\u200Bna", 1);
    EXPECT_EQ(answerTo(u"rename An\u2039200B\u203Ana Anna"), "An\u2039200B\u203Ana heißt jetzt Anna.\n");
    EXPECT_EQ(room_.store.results().front().sender.screenName, u"Anna");
    EXPECT_THAT(answerTo(u"highscore salze"), HasSubstr("1     Anna"));
}

TEST_F(ConsoleTest, LongCellsAreCut)
{
    addResult(String(40, u'x'), 1);
    EXPECT_THAT(answerTo(u"results"), HasSubstr(std::string(31, 'x') + "…  PC7"));
}

TEST_F(ConsoleTest, ExportsResultsIntoAFile)
{
    addResult(u"Anna", 7.5);
    const std::string file = (folder.native() / "Klasse 9a.csv").string();
    EXPECT_EQ(answerTo(u"export " + fromUtf8(file)), "Geschrieben: " + file + "\n");
    EXPECT_THAT(folder.read("Klasse 9a.csv"), HasSubstr("\"Anna\""));
}

TEST_F(ConsoleTest, ExportsIntoTheUsersOwnFolderAndMoreThanOnePiece)
{
    outside.environment().set(u"HOME", folder.path());
    for (int result = 0; result < 5001; ++result) {
        room_.store.addResult(resultOf(u"Anna", 1));
    }
    room_.store.commit();
    EXPECT_EQ(answerTo(u"export ~/9a.csv"), "Geschrieben: " + (folder.native() / "9a.csv").string() + "\n");
    EXPECT_EQ(std::ranges::count(folder.read("9a.csv"), '\n'), 5002);
}

TEST_F(ConsoleTest, SaysWhereAFileCannotBeWritten)
{
    EXPECT_EQ(answerTo(u"export"), "Bitte den Namen der Datei angeben: export DATEI.csv\n");
    const std::string file = (folder.native() / "nowhere" / "a.csv").string();
    EXPECT_EQ(answerTo(u"export " + fromUtf8(file)), file + " lässt sich nicht schreiben.\n");
    EXPECT_EQ(last_, Console::Outcome::Failed);
}

TEST_F(ConsoleTest, SaysWhenTheStoreFailsAndKeepsWhatItHolds)
{
    room_.store.failCommits(true);
    EXPECT_EQ(answerTo(u"app Molmasse"), "");
    EXPECT_FALSE(last_) << "perhaps it was kept";
    room_.store.failCommits(false);
    room_.desk.tick();
    EXPECT_EQ(output_.str(), "Ausgewählt ist: Molmasse\n");
    room_.store.failEvents(true);
    room_.store.vanish(true);
    EXPECT_EQ(answerTo(u"results --missing"), "Niemand ist angemeldet.\n");
}

TEST_F(ConsoleTest, SaysWhenTheStoreDoesNotAnswer)
{
    room_.hand.freeze();
    EXPECT_EQ(answerTo(u"results"), "");
    EXPECT_FALSE(last_);
    outside.clock().advance(StoreDesk::Limits().patience);
    room_.desk.tick();
    EXPECT_EQ(output_.str(), "Die Datenbank antwortet nicht.\n");
    EXPECT_EQ(last_, Console::Outcome::Failed);
    EXPECT_EQ(answerTo(u"app"), "Es ist keine Lern-App ausgewählt.\n");
    EXPECT_EQ(answerTo(u"set A B"), "Die Datenbank antwortet nicht.\n");
}

TEST_F(ConsoleTest, QuitEndsIt)
{
    EXPECT_EQ(answerTo(u" quit "), "");
    EXPECT_EQ(last_, Console::Outcome::Quit);
}

} // namespace
