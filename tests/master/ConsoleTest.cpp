#include "master/Console.h"

#include "MemoryStore.h"
#include "app/cls_Language.h"
#include "app/sys_Global.h"
#include "core/CoreParameters.h"
#include "support/AppSession.h"

#include <gmock/gmock-matchers.h>
#include <sstream>

using namespace phial;
using namespace phial::master;
using phial::test::MemoryStore;
using testing::HasSubstr;

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
        last_ = console_.run(line);
        return output_.str();
    }

    void addResult(StringView name, double points)
    {
        store_.addResult({Moment{45000.5},
                          {String(name), u"login", u"PC7"},
                          u"Salze",
                          points,
                          10,
                          CoreParameters().Pack()});
        store_.commit();
    }

    MemoryStore store_;
    Classroom classroom_{store_, outside.clock()};
    std::ostringstream output_;
    Console console_{classroom_, store_, outside.files(), output_};
    Console::Outcome last_ = Console::Outcome::Done;
};

TEST_F(ConsoleTest, HelpListsAllCommandsInTheLanguageInForce)
{
    const std::string german = answerTo(u"help");
    EXPECT_EQ(std::ranges::count(german, '\n'), 10);
    EXPECT_THAT(german, HasSubstr("  app IDENT|none       wählt die Lern-App"));
    LNG()->CURRENT(ID_Language_English);
    EXPECT_THAT(answerTo(u"HELP"), HasSubstr("  export FILE.csv      writes all results"));
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

TEST_F(ConsoleTest, ShowsWhoIsLoggedOn)
{
    EXPECT_EQ(answerTo(u"pupils"), "Niemand ist angemeldet.\n");
    classroom_.answer({{1, 1}, u"192.168.1.20", {}}, u"SERVER::LOGON::Zoë");
    classroom_.answer({{2, 1}, u"192.168.1.21", {}}, u"SERVER::LOGON::Anna");
    EXPECT_EQ(answerTo(u"pupils"), "Name  Rechner       Angemeldet           Zuletzt gehört\n"
                                   "Anna  192.168.1.21  02.03.2026 08:00:00  02.03.2026 08:00:00\n"
                                   "Zoë   192.168.1.20  02.03.2026 08:00:00  02.03.2026 08:00:00\n");
}

TEST_F(ConsoleTest, ChoosesAnAppAndLetsItGo)
{
    EXPECT_EQ(answerTo(u"app"), "Es ist keine Lern-App ausgewählt.\n");
    EXPECT_EQ(answerTo(u"app Molmassen-Trainer 2"), "Ausgewählt ist: Molmassen-Trainer 2\n");
    EXPECT_EQ(store_.committed().app, u"Molmassen-Trainer 2");
    EXPECT_EQ(answerTo(u"app NONE"), "Es ist keine Lern-App ausgewählt.\n");
    EXPECT_EQ(store_.committed().app, u"");
}

TEST_F(ConsoleTest, SetsAndDeletesValues)
{
    EXPECT_EQ(answerTo(u"set"), "Es ist nichts gesetzt.\n");
    EXPECT_EQ(answerTo(u"set WelcomeMessage  Guten   Morgen!"), "WELCOMEMESSAGE = Guten   Morgen!\n");
    EXPECT_EQ(answerTo(u"set highscore.max 5"), "HIGHSCORE.MAX = 5\nWELCOMEMESSAGE = Guten   Morgen!\n");
    EXPECT_EQ(answerTo(u"set WELCOMEMESSAGE"), "HIGHSCORE.MAX = 5\n");
    EXPECT_EQ(answerTo(u"set SCREENNAMES no"), "HIGHSCORE.MAX = 5\nSCREENNAMES = nein\n");
    EXPECT_EQ(store_.committed().settings.size(), 2U);
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
    EXPECT_TRUE(store_.committed().settings.empty());
}

TEST_F(ConsoleTest, ShowsTheLatestResults)
{
    EXPECT_EQ(answerTo(u"results"), "Es gibt noch keine Ergebnisse.\n");
    for (int round = 1; round <= 25; ++round) {
        addResult(u"Anna", round / 4.0);
    }
    EXPECT_EQ(answerTo(u"results 1"), "Zeit                 Name  Rechner  Übung  Punkte  von  Note  Zusatz\n"
                                      "15.03.2023 12:00:00  Anna  PC7      Salze  6,25    10   3\n");
    EXPECT_EQ(std::ranges::count(answerTo(u"results"), '\n'), 1 + 20);
    EXPECT_EQ(std::ranges::count(answerTo(u"results all"), '\n'), 1 + 25);
    EXPECT_EQ(answerTo(u"results some"), "Das ist keine Anzahl: some\n");
}

TEST_F(ConsoleTest, ShowsEvents)
{
    EXPECT_EQ(answerTo(u"events"), "Es gibt noch keine Ereignisse.\n");
    CoreParameters more;
    more.Set(u"Runde", 2);
    store_.addEvent({Moment{45000.5}, {u"Anna", u"anna", u"PC7"}, u"Start", more.Pack()});
    EXPECT_EQ(answerTo(u"events"), "Zeit                 Name  Rechner  Ereignis  Zusatz\n"
                                   "15.03.2023 12:00:00  Anna  PC7      Start     Runde = 2\n");
}

TEST_F(ConsoleTest, ShowsAHighscoreAndEmptiesIt)
{
    EXPECT_EQ(answerTo(u"highscore"), "Es gibt noch keine Bestenliste.\n");
    EXPECT_EQ(answerTo(u"highscore Salze"), "Diese Bestenliste ist leer.\n");
    classroom_.highscores().submit(
        u"Salze", {Moment{45000.5}, {u"Anna", u"anna", u"PC7"}, u"leicht", 2.5, 10, CoreParameters().Pack()});
    classroom_.commit();
    EXPECT_EQ(answerTo(u"highscore"), "SALZE\n");
    EXPECT_EQ(answerTo(u"highscore salze"), "Rang  Name  Punkte  von  Übung   Zeit\n"
                                            "1     Anna  2,5     10   leicht  15.03.2023 12:00:00\n");
    EXPECT_EQ(answerTo(u"reset salze"), "Die Bestenliste ist jetzt leer.\n");
    EXPECT_EQ(answerTo(u"highscore salze"), "Diese Bestenliste ist leer.\n");
    EXPECT_EQ(answerTo(u"reset alkane"), "Diese Bestenliste gibt es nicht.\n");
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

TEST_F(ConsoleTest, SaysWhereAFileCannotBeWritten)
{
    EXPECT_EQ(answerTo(u"export"), "Bitte den Namen der Datei angeben: export DATEI.csv\n");
    const std::string file = (folder.native() / "nowhere" / "a.csv").string();
    EXPECT_EQ(answerTo(u"export " + fromUtf8(file)), file + " lässt sich nicht schreiben.\n");
    EXPECT_EQ(last_, Console::Outcome::Failed);
}

TEST_F(ConsoleTest, SaysWhenTheStoreFailsAndKeepsWhatItHolds)
{
    store_.failCommits(true);
    EXPECT_EQ(answerTo(u"app Molmasse"), "Die Datenbank meldet einen Fehler: the disk is full\n");
    store_.failCommits(false);
    EXPECT_EQ(answerTo(u"app"), "Es ist keine Lern-App ausgewählt.\n");
}

TEST_F(ConsoleTest, QuitEndsIt)
{
    EXPECT_EQ(answerTo(u" quit "), "");
    EXPECT_EQ(last_, Console::Outcome::Quit);
}

} // namespace
