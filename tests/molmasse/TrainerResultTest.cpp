#include "app/RecentNames.h"
#include "app/cls_AppURL.h"
#include "app/cls_AppUser.h"
#include "app/cls_Language.h"
#include "common/MissedTasks.h"
#include "core/CoreFiles.h"
#include "core/CoreRoot.h"
#include "molmasse/TrainerTest.h"
#include "results/cls_DataScores.h"
#include "results/ctl_Mark.h"
#include "visual/Label.h"
#include "visual/ListView.h"

#include <gmock/gmock-matchers.h>

namespace molmasse
{
namespace
{

using phial::String;
using phial::StringView;
using phial::headless::Box;
using ::testing::_;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

// What follows a round on a computer of its own: lists, mark, certificate, text file.
class TrainerResult : public TrainerTest
{
protected:
    TrainerResult()
    {
        phial::rememberName({u"Maxi", u"fox"});
        install();
    }

    String certificate() { return path(u"installed\\Resources\\Forms\\Urkunde.zr-frm"); }

    static String list(StringView file) { return phial::QVAPP()->URL()->DATAHIGHSCORES() + String(file); }
    static std::shared_ptr<phial::cls_DataScores> stored(StringView file)
    {
        auto scores = std::make_shared<phial::cls_DataScores>();
        scores->LOAD(list(file));
        return scores;
    }

    std::shared_ptr<phial::ctl_Mark> mark() { return form().control<phial::ctl_Mark>(u"ctl_Mark1"); }
    std::shared_ptr<phial::ListView> reviewed() { return form().control<phial::ListView>(u"lst_Review"); }
    std::shared_ptr<phial::ListRow> reviewRow(std::int32_t row) { return reviewed()->ITEMS()->Item(row); }
    /// The cells of the rows.
    std::vector<std::vector<String>> review()
    {
        std::vector<std::vector<String>> rows;
        for (const auto& row : *reviewed()->ITEMS()) {
            rows.push_back({row->Cell(1), row->Cell(2), row->Cell(3)});
        }
        return rows;
    }
    String lastBoxTitle() { return outside.dialogs().shown().back().title; }
};

TEST_F(TrainerResult, OfTheFirstRoundLeadsTheList)
{
    open();
    expectRankBox();
    playRound();

    EXPECT_EQ(lastBoxTitle(), u"Kunststück!");
    EXPECT_EQ(seen(u"lab_Rank"), u"Platz 1 der Bestenliste");
    EXPECT_EQ(focused(), u"but_Again");
}

TEST_F(TrainerResult, StandsInBothListsWithExerciseAndCounts)
{
    open();
    expectRankBox();
    playRound();

    for (const auto* file : {u"HIGHSCORE.qv-hsr", u"results.qv-rsl"}) {
        const auto scores = stored(file);
        ASSERT_EQ(scores->COUNT(), 1);
        const auto score = scores->ITEM(1);
        EXPECT_EQ(score->SCREENNAME(), u"Maxi");
        EXPECT_EQ(score->UEBM(), u"Leicht");
        EXPECT_DOUBLE_EQ(score->POINTS(), 20);
        EXPECT_EQ(score->ADDITIONAL()->Get(u"AUFGABEN"), phial::Variant(2));
        EXPECT_EQ(score->ADDITIONAL()->Get(u"GELOEST"), phial::Variant(2));
    }
    EXPECT_DOUBLE_EQ(stored(u"HIGHSCORE.qv-hsr")->ITEM(1)->POINTSMAX(), 20);
}

TEST_F(TrainerResult, OfARoundWithMissedTasksOffersThemAgain)
{
    open();
    touch(u"but_Level", 0);
    type(u"1{enter}2{enter}3{enter}{enter}58,4{enter}");
    expectRankBox();
    type(u"{enter}");
    EXPECT_TRUE(isSeen(u"but_Missed"));
    EXPECT_EQ(form().control<phial::ctl_Button>(u"but_Again")->Width(), 268);
    EXPECT_EQ(seen(u"lab_Praise"), u"1 von 2 Formeln gelöst");

    touch(u"but_Missed");
    EXPECT_EQ(seen(u"lab_Progress"), u"Aufgabe 1 von 1");
    EXPECT_EQ(formula(), u"H2O");
    type(u"18{enter}{enter}");
    EXPECT_EQ(seen(u"lab_Rank"), u"Diese Runde war zum Üben, sie zählt in keiner Liste.");
    EXPECT_FALSE(isSeen(u"but_Missed")) << "nothing is left";
    EXPECT_EQ(form().control<phial::ctl_Button>(u"but_Again")->Width(), 552);
    EXPECT_FALSE(form().control<phial::ctl_Button>(u"but_Certificate")->Enabled());
    EXPECT_EQ(stored(u"HIGHSCORE.qv-hsr")->COUNT(), 1);
    EXPECT_EQ(stored(u"results.qv-rsl")->COUNT(), 1);

    touch(u"but_Again");
    expectRankBox();
    playRound();
    EXPECT_FALSE(isSeen(u"but_Missed"));
    EXPECT_TRUE(form().control<phial::ctl_Button>(u"but_Certificate")->Enabled());
}

TEST_F(TrainerResult, OfPracticeIsNoneToLose)
{
    open();
    touch(u"but_Level", 0);
    type(u"1{enter}2{enter}3{enter}{enter}1{enter}2{enter}3{enter}");
    expectRankBox();
    type(u"{enter}");
    touch(u"but_Missed");
    type(u"18{enter}");
    outside.visual().onModal(u"frm_LeaveRound", [](phial::Form& asking) {
        EXPECT_EQ(asking.control<phial::ctl_Label>(u"lab_Question")->Caption(),
                  u"Mit dem Üben aufhören? Es gehen keine Punkte verloren.");
        phial::headless::click(*asking.control<phial::ctl_Button>(u"but_Leave"));
    });
    type(u"{esc}");
    EXPECT_TRUE(isSeen(u"pan_Start"));
}

TEST_F(TrainerResult, ThatWasMissedIsNotCountedWhenTheTeacherHasDeletedIt)
{
    open();
    learning::MissedTasks missed(phial::QVAPP()->USER()->SCREENNAME());
    missed.missed(u"NaCl");
    missed.missed(u"XeF2");
    touch(u"but_Level", 0);
    answerLeaving(u"but_Leave");
    type(u"{esc}");
    EXPECT_EQ(seen(u"lab_Remembered"),
              u"Eine Aufgabe ist zum Üben gemerkt.<br>Sie kommt in ihrer Stufe zuerst dran.");
}

TEST_F(TrainerResult, ListsTheTasksWithSignWordAndColour)
{
    open();
    touch(u"but_Level", 0);
    type(u"1{enter}18{enter}{enter}1{enter}2{enter}3{enter}");
    expectRankBox();
    type(u"{enter}");
    EXPECT_THAT(review(), ElementsAre(ElementsAre(u"H\u2082O", u"\u21BB später richtig", u"7"),
                                      ElementsAre(u"NaCl", u"\u2715 nicht gelöst", u"0")));
    EXPECT_EQ(reviewRow(1)->ForeColor(), phial::Palette::TryAgain);
    EXPECT_EQ(reviewRow(2)->ForeColor(), phial::Palette::Failure);

    touch(u"but_Again");
    touch(u"but_Level", 0);
    type(u"58,4{enter}{enter}18{enter}"); // what was missed comes first
    expectRankBox();
    type(u"{enter}");
    EXPECT_THAT(review(), ElementsAre(ElementsAre(u"NaCl", _, u"10"),
                                      ElementsAre(u"H\u2082O", u"\u2713 gleich richtig", u"10")));
    EXPECT_EQ(reviewRow(2)->ForeColor(), phial::Palette::Right);
}

TEST_F(TrainerResult, ShowsTheWorkingOfTheChosenTask)
{
    open();
    expectRankBox();
    playRound();
    EXPECT_EQ(seen(u"lab_Working"), u"Wähle eine Aufgabe, dann siehst du hier die Lösung.");
    reviewed()->inputChoice(1);
    EXPECT_EQ(seen(u"lab_Working"), u"H\u2082O:<br>2 · 1,0 + 16,0 = 2,0 + 16,0 = 18,0\u00A0g/mol");
    EXPECT_EQ(reviewed()->frame().announcement(),
              u"H\u2082O:\n2 · 1,0 + 16,0 = 2,0 + 16,0 = 18,0\u00A0g/mol");

    touch(u"but_Language");
    EXPECT_EQ(seen(u"lab_Working"), u"H\u2082O:<br>2 · 1.0 + 16.0 = 2.0 + 16.0 = 18.0\u00A0g/mol");
    EXPECT_EQ(reviewRow(1)->Cell(2), u"\u2713 right at once");
    EXPECT_EQ(reviewed()->COLUMNHEADERS()->Item(3)->Text(), u"Points");

    touch(u"but_Again");
    expectRankBox();
    playRound();
    EXPECT_EQ(seen(u"lab_Working"), u"Choose a task to see its solution here.");
}

TEST_F(TrainerResult, TheTasksAreReachedByTab)
{
    open();
    expectRankBox();
    playRound();
    while (focused() != u"lst_Review") {
        phial::headless::tab(form(), true);
        ASSERT_NE(focused(), u"but_Again");
    }
    EXPECT_EQ(reviewed()->frame().AccessibleName(), u"Die Aufgaben der Runde");
}

TEST_F(TrainerResult, OfAWeakRoundBeginsWithWhatWasSolved)
{
    open();
    const auto play = [this](StringView keys) {
        touch(u"but_Level", 0);
        type(keys);
        expectRankBox();
        type(u"{enter}");
    };
    play(u"1{enter}2{enter}3{enter}{enter}1{enter}2{enter}3{enter}");
    EXPECT_EQ(seen(u"lab_Praise"), u"Übung macht den Meister!");
    EXPECT_EQ(seen(u"lab_Solved"), u"0 von 2 Formeln gelöst");

    touch(u"but_Again");
    play(u"18{enter}{enter}1{enter}2{enter}3{enter}");
    EXPECT_EQ(seen(u"lab_Praise"), u"1 von 2 Formeln gelöst, eine mehr als zuletzt");
    EXPECT_EQ(seen(u"lab_Solved"), u"Übung macht den Meister!");
    touch(u"but_Language");
    EXPECT_EQ(seen(u"lab_Praise"), u"1 of 2 formulas solved, one more than last time");
}

TEST_F(TrainerResult, LetsTheNextRoundBeginWithWhatWasMissed)
{
    open();
    touch(u"but_Level", 0);
    type(u"18{enter}{enter}1{enter}2{enter}3{enter}");
    expectRankBox();
    type(u"{enter}");
    touch(u"but_Again");
    touch(u"but_Level", 0);
    EXPECT_EQ(formula(), u"NaCl");
    type(u"58,4{enter}{enter}18{enter}");
    expectRankBox();
    type(u"{enter}");
    touch(u"but_Again");
    touch(u"but_Level", 0);
    EXPECT_EQ(formula(), u"H2O") << "what was solved at once has been learnt";
}

TEST_F(TrainerResult, ThatWasMissedCanBeForgotten)
{
    open();
    EXPECT_EQ(seen(u"lab_Remembered"), u"");
    EXPECT_FALSE(isSeen(u"but_Forget"));
    touch(u"but_Level", 0);
    type(u"18{enter}{enter}1{enter}2{enter}3{enter}");
    expectRankBox();
    type(u"{enter}");
    touch(u"but_Again");
    EXPECT_EQ(seen(u"lab_Remembered"),
              u"Eine Aufgabe ist zum Üben gemerkt.<br>Sie kommt in ihrer Stufe zuerst dran.");

    outside.dialogs().expectYesNo(phial::DialogAnswer::No);
    touch(u"but_Forget");
    EXPECT_TRUE(isSeen(u"but_Forget"));
    outside.dialogs().expectYesNo(
        phial::DialogAnswer::Yes,
        u"Sollen die gemerkten Aufgaben vergessen werden? Sie kommen dann nicht mehr zuerst dran.");
    touch(u"but_Forget");
    EXPECT_FALSE(isSeen(u"but_Forget"));
    EXPECT_EQ(seen(u"lab_Remembered"), u"");
    EXPECT_EQ(focused(), u"but_Level");
    touch(u"but_Level", 0);
    EXPECT_EQ(formula(), u"H2O");
}

TEST_F(TrainerResult, KeepsTheGermanLabelOfTheExerciseInEitherLanguage)
{
    phial::LNG()->CURRENT(phial::ID_Language_English);
    open();
    expectRankBox();
    playRound();

    EXPECT_EQ(stored(u"HIGHSCORE.qv-hsr")->ITEM(1)->UEBM(), u"Leicht");
}

TEST_F(TrainerResult, ShowsTheMarkAsASignAndInWords)
{
    open();
    expectRankBox();
    playRound();
    EXPECT_EQ(mark()->MARK(), phial::enm_Mark::ID_Mark_1P);
    EXPECT_EQ(seen(u"lab_Mark"), u"Note 1+ (Sehr gut plus)");

    // Four of ten points: one wrong try and the hint.
    touch(u"but_Again");
    touch(u"but_Level", 1);
    expectRankBox();
    type(u"1{enter}{f5}36,5{enter}{enter}");
    EXPECT_EQ(mark()->MARK(), phial::enm_Mark::ID_Mark_4M);
    EXPECT_EQ(seen(u"lab_Mark"), u"Note 4- (Ausreichend minus)");
    EXPECT_EQ(seen(u"lab_Rank"), u"Platz 2 der Bestenliste");
    touch(u"but_Language");
    EXPECT_EQ(seen(u"lab_Mark"), u"Mark 4- (sufficient minus)");
    EXPECT_EQ(seen(u"lab_Rank"), u"Number 2 of the best");
}

TEST_F(TrainerResult, TheMarkStandsAboveTheMiddleOfItsWords)
{
    open();
    expectRankBox();
    playRound();

    const auto middleOf = [](const phial::Control& control) { return control.Left() + control.Width() / 2; };
    EXPECT_NEAR(middleOf(*mark()), middleOf(*form().control<phial::ctl_Label>(u"lab_Mark")), 1);
}

TEST_F(TrainerResult, ThatTheListDoesNotTakeHasNoRank)
{
    open();
    phial::cls_DataScores full;
    for (int i = 0; i < 10; ++i) {
        full.ADD(100, 100, u"Schwer");
    }
    ASSERT_TRUE(full.SAVE(list(u"HIGHSCORE.qv-hsr")));

    outside.dialogs().expect(Box::Info,
                             u"Leider war das nichts! Für die Bestenliste hat DAS nicht gereicht!");
    playRound();
    EXPECT_EQ(seen(u"lab_Rank"), u"");
}

TEST_F(TrainerResult, OpensTheListWithItsRankStressed)
{
    open();
    expectRankBox();
    playRound();

    outside.visual().onModal(u"frm_DialogHighscore", [](phial::Form& dialog) {
        EXPECT_EQ(dialog.control<phial::Label>(u"lab_Name", 0)->Caption(), u"Maxi");
        EXPECT_EQ(dialog.control<phial::Label>(u"lab_Ueb", 0)->Caption(), u"Leicht");
        EXPECT_EQ(dialog.control<phial::Label>(u"lab_Rank", 0)->ForeColor(), phial::QBColor(12));
        dialog.Unload();
    });
    touch(u"but_List");
}

TEST_F(TrainerResult, IsPrintedOnACertificate)
{
    outside.forms().add(certificate(), {{u"name", u"{NAME}"}, {u"text", u"{TEXT}"}});
    open();
    expectRankBox();
    playRound();
    touch(u"but_Certificate");

    ASSERT_EQ(outside.forms().printed().size(), 1U);
    const auto& texts = outside.forms().printed().front().texts;
    EXPECT_EQ(texts.at(0), u"Maxi");
    EXPECT_THAT(phial::toUtf8(texts.at(1)), HasSubstr("Schwierigkeit: Leicht"));
    EXPECT_THAT(phial::toUtf8(texts.at(1)), HasSubstr("20 von 20 Punkten"));
    EXPECT_THAT(phial::toUtf8(texts.at(1)), HasSubstr("Note: 1+ (Sehr gut plus)"));
}

TEST_F(TrainerResult, IsPrintedInTheLanguageInForce)
{
    outside.forms().add(certificate(), {{u"text", u"{TEXT}"}, {u"title", u"{TITLE}"}});
    open();
    expectRankBox();
    playRound();
    touch(u"but_Language");
    touch(u"but_Certificate");

    EXPECT_THAT(phial::toUtf8(outside.forms().printed().front().texts.at(0)), HasSubstr("difficulty: Easy"));
    EXPECT_EQ(outside.forms().printed().front().texts.at(1), u"Molar Mass Diploma");
}

TEST_F(TrainerResult, WithoutACertificateFileIsSaid)
{
    open();
    expectRankBox();
    playRound();

    outside.dialogs().expect(Box::Error);
    touch(u"but_Certificate");
    EXPECT_TRUE(isSeen(u"pan_Summary"));
}

TEST_F(TrainerResult, GoesIntoATextFile)
{
    open();
    expectRankBox();
    playRound();

    outside.dialogs().expectSaveFile(path(u"liste.txt"));
    outside.dialogs().expect(Box::Done);
    touch(u"but_Export");
    const String text = phial::coreRoot().CoreFiles().ReadText(path(u"liste.txt"));
    EXPECT_THAT(phial::toUtf8(text), HasSubstr("Maxi"));
}

TEST_F(TrainerResult, IsNotWrittenWhenThePupilChoosesNoFile)
{
    open();
    expectRankBox();
    playRound();

    outside.dialogs().expectSaveFile(u"");
    touch(u"but_Export");
}

TEST_F(TrainerResult, ThatCannotBeWrittenIsToldInPlainWords)
{
    open();
    expectRankBox();
    playRound();

    outside.dialogs().expectSaveFile(path(u"no such folder\\liste.txt"));
    outside.dialogs().expect(Box::Error,
                             u"Die Datei konnte nicht geschrieben werden. Bitte wähle einen anderen Ort.");
    touch(u"but_Export");
    EXPECT_TRUE(isOpen());
}

TEST_F(TrainerResult, EverythingOnThePageIsReachedByTab)
{
    open();
    expectRankBox();
    playRound();

    std::vector<String> stops;
    for (int i = 0; i < 12; ++i) {
        stops.push_back(focused());
        phial::headless::tab(form());
    }
    EXPECT_THAT(stops, ::testing::ElementsAre(u"but_Again", u"but_Quit", u"but_Mascot", u"but_Sound",
                                              u"but_Colours", u"but_Language", u"but_Screen", u"but_Help",
                                              u"lst_Review", u"but_List", u"but_Certificate", u"but_Export"));
}

} // namespace
} // namespace molmasse
