#include "PuzzleTest.h"
#include "app/cls_AppUser.h"
#include "common/ctl_RoundDots.h"
#include "core/Palette.h"
#include "mascot/ctl_Bubble.h"
#include "visual/Label.h"
#include "visual/ListView.h"
#include "visual/VisualHost.h"

#include <fstream>
#include <gtest/gtest.h>
#include <iterator>

namespace puzzle
{
namespace
{

using phial::String;
using phial::StringView;

constexpr int Carbon = 6;
constexpr int Fluorine = 9;
constexpr int Sodium = 11;
constexpr int Sulfur = 16;
constexpr int Chlorine = 17;
constexpr int Potassium = 19;

class PuzzleRound : public PuzzleTest
{
protected:
    static constexpr std::string_view TwoTasks = "[nachbarn] Anfang | Start\nNa | Natrium | sodium\n"
                                                 "F Cl | Halogene | Halogens\n[leer] Leer | Empty\nK\n";
    void begin(int level = 0)
    {
        open(TwoTasks);
        touch(u"but_Level", level);
    }
    /// Puts the only tile of the empty table there, and has it judged.
    void tryPlace(int protons)
    {
        drag(0, protons);
        touch(u"but_Check");
    }
    String said() { return form().control<phial::ctl_Label>(u"lab_Feedback")->frame().announcement(); }
};

TEST_F(PuzzleRound, IsPlayedByDragging)
{
    begin();
    EXPECT_EQ(seen(u"lab_Progress"), u"Aufgabe 1 von 2");
    EXPECT_EQ(seen(u"lab_Theme"), u"Natrium");
    EXPECT_EQ(focused(), u"pse_Table");
    drag(0, Sodium);
    touch(u"but_Check");
    EXPECT_EQ(seen(u"lab_Feedback"),
              u"Richtig! Am richtigen Platz, 10 Punkte für dich.<br>Jedes Kärtchen am richtigen Platz.");
    EXPECT_EQ(seen(u"lab_Hint"), u"Na\u00A0(11): Periode\u00A03, Hauptgruppe\u00A0I");
    touch(u"but_Check");

    EXPECT_EQ(seen(u"lab_Theme"), u"Halogene");
    drag(0, Fluorine);
    drag(1, Chlorine);
    touch(u"but_Check");
    EXPECT_TRUE(contains(seen(u"lab_Feedback"), u"Alle am richtigen Platz, 10 Punkte"));
    expectRankBox();
    touch(u"but_Check");
    EXPECT_EQ(seen(u"lab_Result"), u"20 von 20 Punkten");
    EXPECT_EQ(seen(u"lab_Solved"), u"2 von 2 Aufgaben gelöst");
    const auto review = form().control<phial::ListView>(u"lst_Review");
    EXPECT_EQ(review->ITEMS()->Item(2)->Title(), u"F, Cl");
}

TEST_F(PuzzleRound, LeavesWhatIsRightAndSendsTheRestHome)
{
    begin();
    drag(0, Sodium);
    touch(u"but_Check");
    touch(u"but_Check");
    drag(0, Fluorine);
    drag(1, Carbon);
    EXPECT_EQ(table().DRAGSYMBOLDROP(1), u"C");
    touch(u"but_Check");
    EXPECT_EQ(seen(u"lab_Feedback"),
              u"Lege die Kärtchen nur auf graue Plätze. Die anderen sind schon besetzt.")
        << "and no try is used up";
    drag(place(Carbon), place(Sodium));
    touch(u"but_Check");
    EXPECT_EQ(seen(u"lab_Feedback"),
              u"Cl: gleiche Periode, aber 6 Gruppen weiter rechts.<br>Du hast noch 2 Versuche.");
    EXPECT_EQ(table().DRAGSYMBOLDROP(0), u"F");
    EXPECT_EQ(table().DRAGSYMBOLDROP(1), u"");
    EXPECT_TRUE(table().HIGHLIGHTS()->Exists(u"F"));
    EXPECT_FALSE(table().HIGHLIGHTS()->Exists(u"Cl")) << "a frame would tell where it belongs";
    EXPECT_EQ(focused(), u"pse_Table");
}

TEST_F(PuzzleRound, EndsATaskAfterThreeWrongPlacesAndShowsTheRightOne)
{
    begin(1);
    tryPlace(Sodium);
    EXPECT_EQ(seen(u"lab_Feedback"),
              u"K: gleiche Gruppe, aber eine Periode tiefer.<br>Du hast noch 2 Versuche.");
    EXPECT_EQ(seen(u"lab_Hint"), u"");
    tryPlace(Sulfur);
    EXPECT_EQ(seen(u"lab_Feedback"),
              u"K ist ein Metall. Die meisten stehen links und in der Mitte.<br>Du hast noch einen Versuch.");
    EXPECT_EQ(seen(u"lab_Hint"), u"Zahl der Protonen: K 19. In dieser Ordnung stehen sie im Periodensystem.");
    EXPECT_FALSE(table().FADED()->Exists(u"K"));
    tryPlace(Chlorine);
    EXPECT_EQ(seen(u"lab_Feedback"), u"Schade. Richtig wären die umrandeten Plätze.");
    EXPECT_EQ(seen(u"lab_Hint"), u"K\u00A0(19): Periode\u00A04, Hauptgruppe\u00A0I");
    EXPECT_TRUE(table().FADED()->Exists(u"K")) << "the table shows it now";
    EXPECT_TRUE(table().HIGHLIGHTS()->Exists(u"K"));
    EXPECT_EQ(table().DRAGSYMBOL(0), u"") << "there is nothing left to be moved";
    EXPECT_EQ(focused(), u"but_Check");
}

TEST_F(PuzzleRound, AsksWhatWasMissedOnceMore)
{
    begin(1);
    for (const int wrong : {Sodium, Sulfur, Chlorine}) {
        tryPlace(wrong);
    }
    expectRankBox();
    touch(u"but_Check");
    EXPECT_EQ(seen(u"lab_Result"), u"0 von 10 Punkten");
    touch(u"but_Missed");
    EXPECT_EQ(seen(u"lab_Progress"), u"Aufgabe 1 von 1");
    EXPECT_FALSE(table().FADED()->Exists(u"K"));
    tryPlace(Potassium);
    touch(u"but_Check");
    EXPECT_EQ(seen(u"lab_Rank"), u"Diese Runde war zum Üben, sie zählt in keiner Liste.");
    touch(u"but_Again");
    EXPECT_EQ(seen(u"lab_Remembered"), u"") << "it has been learnt";
}

TEST_F(PuzzleRound, CostsNoTryWhenTheSamePlaceIsTriedAgain)
{
    begin(1);
    tryPlace(Sodium);
    tryPlace(Sodium);
    EXPECT_EQ(seen(u"lab_Feedback"), u"Das hattest du schon. Versuche es anders.");
    EXPECT_EQ(table().DRAGSYMBOLDROP(0), u"") << "it went home all the same";
    tryPlace(Potassium);
    EXPECT_TRUE(contains(seen(u"lab_Feedback"), u"7 Punkte für dich"));
}

TEST_F(PuzzleRound, WaitsUntilEachTileIsPlaced)
{
    begin(1);
    touch(u"but_Check");
    EXPECT_EQ(seen(u"lab_Feedback"), u"Lege erst jedes Kärtchen auf einen grauen Platz.");
    drag(home(0), {grid().cell(8, 1).left + 9, grid().cell(8, 1).top + 9}); // no element stands there
    touch(u"but_Check");
    EXPECT_EQ(seen(u"lab_Feedback"), u"Lege erst jedes Kärtchen auf einen grauen Platz.");
}

TEST_F(PuzzleRound, TakesOneTileAPlace)
{
    open("[leer] Leer | Empty\nF Cl\n");
    touch(u"but_Level", 0);
    drag(0, Fluorine);
    drag(1, Fluorine);
    touch(u"but_Check");
    EXPECT_EQ(seen(u"lab_Feedback"), u"Auf jeden Platz gehört nur ein Kärtchen.");
}

TEST_F(PuzzleRound, TellsTheTrendsOfNeighboursAsHint)
{
    begin(1);
    drag(0, Sodium); // not judged yet
    type(u"{f5}");
    EXPECT_EQ(seen(u"lab_Hint"),
              u"K: steht unter Natrium, also auch ein Außenelektron, aber eine Schale mehr.");
    EXPECT_EQ(table().DRAGSYMBOLDROP(0), u"Na") << "what lies there unjudged stays";
    drag(place(Sodium), place(Potassium));
    touch(u"but_Check");
    EXPECT_TRUE(contains(seen(u"lab_Feedback"), u"7 Punkte für dich"));
}

TEST_F(PuzzleRound, TellsProtonsOnTilesOfTheFirstLevelAlone)
{
    begin(0);
    EXPECT_EQ(table().DRAGSYMBOL(0), u"Na");
    answerLeaving();
    type(u"{esc}");
    touch(u"but_Level", 1);
    EXPECT_EQ(table().DRAGSYMBOL(0), u"K\u200B") << "which is none of the table's elements";
}

TEST_F(PuzzleRound, IsSpokenToScreenReaders)
{
    begin(1);
    EXPECT_EQ(said(), seen(u"lab_Feedback") + u"\nAufgabe 1 von 1\nK");
    tryPlace(Sodium);
    EXPECT_EQ(said(), u"K: gleiche Gruppe, aber eine Periode tiefer.\nDu hast noch 2 Versuche.");
    tryPlace(Potassium);
    EXPECT_EQ(said(), u"Richtig! Am richtigen Platz, 7 Punkte für dich.\nJedes Kärtchen am "
                      u"richtigen Platz.\nK\u00A0(19): Periode\u00A04, Hauptgruppe\u00A0I");
}

TEST_F(PuzzleRound, GoesOnInTheOtherLanguage)
{
    begin(0);
    drag(0, Sodium);
    touch(u"but_Language");
    EXPECT_EQ(seen(u"lab_Theme"), u"sodium");
    EXPECT_EQ(table().DRAGSYMBOLDROP(0), u"Na");
    EXPECT_EQ(focused(), u"pse_Table");
    touch(u"but_Check");
    EXPECT_EQ(seen(u"lab_Feedback"),
              u"Right! In the right place, 10 points for you.<br>The symbol that sounds unlike the name "
              u"was known as well.");
    EXPECT_EQ(seen(u"lab_Hint"), u"Na\u00A0(11): period\u00A03, main\u00A0group\u00A0I");
    touch(u"but_Check");
    EXPECT_EQ(seen(u"lab_Theme"), u"Halogens");
    drag(0, Chlorine);
    drag(1, Sodium);
    touch(u"but_Check");
    EXPECT_EQ(seen(u"lab_Feedback"), u"F: same group, but one period higher.<br>You have 2 tries left.");
}

TEST_F(PuzzleRound, GivesNoPeriodAwayByTheColourOfAPlace)
{
    begin(0);
    EXPECT_TRUE(table().GONE()->Exists(u"Na"));
    EXPECT_TRUE(table().GONE()->Exists(u"F")) << "another empty place";
    EXPECT_FALSE(table().GONE()->Exists(u"O"));
    drag(0, Sodium);
    touch(u"but_Check");
    EXPECT_FALSE(table().GONE()->Exists(u"Na")) << "it is told now";
    EXPECT_TRUE(table().HIGHLIGHTS()->Exists(u"Na"));
    touch(u"but_Check");
    EXPECT_FALSE(table().HIGHLIGHTS()->Exists(u"Na")) << "which is another task's";
}

TEST_F(PuzzleRound, FollowsTheColoursThatThePupilHasChosen)
{
    begin(0);
    EXPECT_EQ(table().Colouring(), phial::TableColours::ByTheme);
}

TEST_F(PuzzleRound, StandsOnAGroundOfThoseColours)
{
    begin(0);
    EXPECT_EQ(table().BACKCOLOR(), phial::Palette::Surface);
}

// A classroom has one list of a name for all apps.
TEST_F(PuzzleRound, GoesToAListOfItsOwnThatTheMasterKnows)
{
    begin(1);
    tryPlace(Potassium);
    expectRankBox();
    touch(u"but_Check");
    EXPECT_TRUE(folder.has("public/Documents/QV Phial/Highscores/Puzzle/PUZZLE.qv-hsr"));
    EXPECT_FALSE(folder.has("public/Documents/QV Phial/Highscores/Puzzle/HIGHSCORE.qv-hsr"));
    EXPECT_EQ(seen(u"lab_Rank"), u"Platz 1 der Bestenliste");
    outside.visual().onModal(u"frm_DialogHighscore", [](phial::Form& dialog) {
        EXPECT_EQ(dialog.control<phial::Label>(u"lab_Ueb", 0)->Caption(), u"Leer");
        dialog.Unload();
    });
    touch(u"but_List");
    std::ifstream about(phial::test::treeFolder() / "apps/Puzzle/data/app.txt");
    const std::string told(std::istreambuf_iterator<char>(about), {});
    EXPECT_NE(told.find("Modules = \"PUZZLE\""), std::string::npos) << told;
}

TEST_F(PuzzleRound, HintsHaveTheRoomOfTheDrawerThatItDoesNotNeed)
{
    begin(0);
    const auto hint = form().control<phial::ctl_Label>(u"lab_Hint")->frame().pixelRectangle();
    const auto stop = form().control<phial::ctl_Button>(u"but_Stop")->frame().pixelRectangle();
    const auto drawer = form().control<phial::ctl_Button>(u"but_Reference");
    EXPECT_FALSE(drawer->frame().isReachable());
    EXPECT_EQ(hint.bottom(), drawer->frame().pixelRectangle().bottom());
    EXPECT_LT(hint.bottom(), stop.top);
}

// The column beside the board is narrow.
TEST_F(PuzzleRound, NoWordIsBrokenInTheMascotsBalloon)
{
    open(TwoTasks);
    phial::QVAPP()->USER()->SCREENNAME(u"Maximiliane-Sophie");
    form().innerSize({1024, 581});
    touch(u"but_Level", 0);
    const auto balloon = form().control<phial::ctl_Bubble>(u"bub_Mascot");
    ASSERT_TRUE(contains(balloon->TEXT(), u"Maximiliane-Sophie")) << phial::toUtf8(balloon->TEXT());
    const auto face = phial::visualHost().metrics().face(balloon->TEXTFONT()->traits());
    EXPECT_LE(face->width(u"Maximiliane-Sophie."),
              balloon->frame().pixelRectangle().width - 2.0 * balloon->TEXTMARGIN() - balloon->SHADOWOFFX());
}

// As pictures of the app do it.
TEST_F(PuzzleRound, IsFilledWithAnswersOfEachKind)
{
    open("[leer] Leer | Empty\nF Cl\n");
    touch(u"but_Level", 0);
    app->app().fill(learning::Judgement::Unreadable);
    touch(u"but_Check");
    EXPECT_EQ(seen(u"lab_Feedback"), u"Lege erst jedes Kärtchen auf einen grauen Platz.");
    for (const auto* left : {u"noch 2 Versuche", u"noch einen Versuch"}) {
        app->app().fill(learning::Judgement::Wrong);
        EXPECT_NE(table().DRAGSYMBOLDROP(0), u"F");
        EXPECT_EQ(table().DRAGSYMBOLDROP(1), u"Cl");
        touch(u"but_Check");
        EXPECT_TRUE(contains(seen(u"lab_Feedback"), left));
    }
    app->app().fill(learning::Judgement::Right);
    EXPECT_EQ(table().DRAGSYMBOLDROP(0), u"F");
    touch(u"but_Check");
    EXPECT_TRUE(contains(seen(u"lab_Feedback"), u"4 Punkte für dich"));
}

TEST_F(PuzzleRound, TellsWhatIsMissing)
{
    makeTree(u"installed\\");
    openHere();
    EXPECT_TRUE(contains(seen(u"lab_Missing"), u"elements2.dat"));
}

TEST_F(PuzzleRound, TellsTheTeacherWhichLineIsWrong)
{
    open("[nachbarn] Anfang | Start\nNa\nNa Xy\n");
    EXPECT_EQ(seen(u"lab_Complaint"),
              u"Für die Lehrkraft: kaertchen.txt, Zeile 3: „Na Xy“ enthält ein unbekanntes "
              u"Element und wurde ausgelassen.");
    open("[nachbarn] Anfang | Start\n");
    EXPECT_TRUE(contains(seen(u"lab_Missing"), u"kaertchen.txt"));
}

} // namespace
} // namespace puzzle
