#include "app/cls_Language.h"
#include "common/ctl_Reference.h"
#include "common/ctl_RoundDots.h"
#include "core/Palette.h"
#include "molmasse/TrainerTest.h"

#include <gmock/gmock-matchers.h>

namespace molmasse
{
namespace
{

using phial::String;
using phial::StringView;

constexpr StringView DeleteSign = u"\u232B";

bool contains(const String& text, StringView part)
{
    return text.find(part) != String::npos;
}

TEST_F(TrainerTest, BeginsWithTheChoiceOfTheLevel)
{
    openInstalled();

    EXPECT_EQ(form().Caption(), u"Molmassen-Trainer");
    EXPECT_TRUE(isSeen(u"pan_Start"));
    EXPECT_FALSE(isSeen(u"pan_Task"));
    EXPECT_EQ(form().control<phial::ctl_Button>(u"but_Level", 0)->Caption(), u"Leicht");
    EXPECT_EQ(form().control<phial::ctl_Button>(u"but_Level", 1)->Caption(), u"Mittel");
    EXPECT_EQ(form().find(u"but_Level", 2), nullptr);
    EXPECT_EQ(focused(), u"but_Level");
}

TEST_F(TrainerTest, HelpTellsAboutTheTrainerInTheLanguageInForce)
{
    openInstalled();
    const auto expectAbout = [this](StringView button, StringView caption) {
        EXPECT_EQ(form().control<phial::ctl_Button>(u"but_Help")->frame().AccessibleName(), button);
        outside.visual().onModal(u"frm_AppAbout", [caption](phial::Form& about) {
            EXPECT_EQ(about.Caption(), caption);
            about.Unload();
        });
        touch(u"but_Help");
    };
    expectAbout(u"Hilfe", u"Info über Molmassen-Trainer");
    phial::LNG()->CURRENT(phial::ID_Language_English);
    expectAbout(u"Help", u"About Molar mass trainer");
}

TEST_F(TrainerTest, FillsItsWindowAtEachSize)
{
    openInstalled();
    form().Width(1920 * phial::TwipsPerPixel);
    form().Height(1080 * phial::TwipsPerPixel);

    EXPECT_DOUBLE_EQ(form().Zoom(), 1080.0 / 640);
    const auto placeOf = [this](StringView control) {
        return form().control<phial::Control>(control)->frame().pixelRectangle();
    };
    const double width = form().ScaleWidth();
    EXPECT_NEAR(placeOf(u"bar_Header").width, width, 1e-6);
    EXPECT_NEAR(placeOf(u"pan_Footer").bottom(), form().ScaleHeight(), 1e-6);
    EXPECT_NEAR(placeOf(u"but_Help").right(), width - 32, 0.1);
    EXPECT_EQ(placeOf(u"lab_Title").left, 32);
    EXPECT_NEAR(placeOf(u"pan_Start").left, (width - 900) / 2, 0.1);
}

TEST_F(TrainerTest, F11FillsTheScreenAndLetsItGo)
{
    openInstalled();
    type(u"{f11}");
    EXPECT_EQ(form().BorderStyle(), phial::BorderStyle::None);
    EXPECT_EQ(form().WindowState(), phial::WindowState::Maximized);
    type(u"{f11}");
    EXPECT_EQ(form().BorderStyle(), phial::BorderStyle::Sizable);
    EXPECT_EQ(form().WindowState(), phial::WindowState::Normal);
}

TEST_F(TrainerTest, TheFullScreenIsReachedByTouchFromAMaximizedWindow)
{
    openInstalled();
    form().WindowState(phial::WindowState::Maximized);
    touch(u"but_Screen");
    EXPECT_EQ(form().BorderStyle(), phial::BorderStyle::None);
    touch(u"but_Screen");
    EXPECT_EQ(form().BorderStyle(), phial::BorderStyle::Sizable);
    EXPECT_EQ(form().WindowState(), phial::WindowState::Maximized);
}

TEST_F(TrainerTest, AWholeRoundGoesByKeysAlone)
{
    openInstalled();

    type(u"{enter}");
    EXPECT_EQ(seen(u"lab_Progress"), u"Aufgabe 1 von 2");
    EXPECT_EQ(formula(), u"H2O");
    EXPECT_EQ(seen(u"lab_Name"), u"Wasser");
    EXPECT_EQ(focused(), u"txt_Answer");

    type(u"18,0{enter}");
    EXPECT_EQ(seen(u"lab_Feedback"), u"Richtig! 18,0 g/mol, 10 Punkte für dich.");
    EXPECT_EQ(seen(u"lab_Points"), u"10 Punkte");
    EXPECT_EQ(buttonText(u"but_Check"), u"Weiter");

    type(u"{enter}");
    EXPECT_EQ(formula(), u"NaCl");
    EXPECT_EQ(answer(), u"");
    EXPECT_EQ(seen(u"lab_Feedback"), u"");

    type(u"58.4{enter}");
    EXPECT_EQ(buttonText(u"but_Check"), u"Ergebnis");

    expectRankBox();
    type(u"{enter}");
    EXPECT_EQ(seen(u"lab_Praise"), u"Ausgezeichnet!");
    EXPECT_EQ(seen(u"lab_Result"), u"20 von 20 Punkten");
    EXPECT_EQ(seen(u"lab_Solved"), u"2 von 2 Formeln gelöst");
    EXPECT_EQ(focused(), u"but_Again");

    type(u"{enter}");
    EXPECT_TRUE(isSeen(u"pan_Start"));
    EXPECT_EQ(seen(u"lab_Points"), u"");

    type(u"{esc}");
    EXPECT_FALSE(isOpen());
}

TEST_F(TrainerTest, AWholeRoundGoesByTouchAlone)
{
    openInstalled();

    touch(u"but_Level", 0);
    touchPad(u"1");
    touchPad(u"9");
    touchPad(DeleteSign);
    touchPad(u"8,0");
    EXPECT_EQ(answer(), u"18,0");
    touch(u"but_Check");
    EXPECT_TRUE(contains(seen(u"lab_Feedback"), u"Richtig!"));
    touch(u"but_Check");

    touchPad(u"58,4");
    touch(u"but_Check");
    expectRankBox();
    touch(u"but_Check");
    EXPECT_EQ(seen(u"lab_Result"), u"20 von 20 Punkten");

    touch(u"but_Again");
    touch(u"but_Level", 1);
    EXPECT_EQ(formula(), u"HCl");
    answerLeaving(u"but_Leave");
    touch(u"but_Stop");
    EXPECT_TRUE(isSeen(u"pan_Start"));
}

TEST_F(TrainerTest, EscapeInARoundAsksFirstAndLeadsToTheStartPage)
{
    openInstalled();
    type(u"{enter}18{enter}");
    outside.visual().onModal(u"frm_LeaveRound", [](phial::Form& asking) {
        EXPECT_EQ(asking.control<phial::ctl_Label>(u"lab_Question")->Caption(),
                  u"Runde abbrechen? 10 Punkte gehen verloren.");
        phial::headless::type(asking, u"{enter}"); // goes on practising
    });
    type(u"{esc}");
    EXPECT_TRUE(isSeen(u"pan_Task"));
    EXPECT_EQ(focused(), u"txt_Answer");
    EXPECT_EQ(seen(u"lab_Points"), u"10 Punkte");

    answerLeaving(u"but_Leave");
    type(u"{esc}");
    EXPECT_TRUE(isSeen(u"pan_Start"));
    EXPECT_EQ(seen(u"lab_Points"), u"");
    type(u"{esc}");
    EXPECT_FALSE(isOpen());
}

TEST_F(TrainerTest, EscapeInThatQuestionGoesOnToo)
{
    openInstalled();
    type(u"{enter}");
    outside.visual().onModal(u"frm_LeaveRound",
                             [](phial::Form& asking) { phial::headless::type(asking, u"{esc}"); });
    touch(u"but_Stop");
    EXPECT_TRUE(isSeen(u"pan_Task"));
    EXPECT_EQ(focused(), u"txt_Answer");
}

TEST_F(TrainerTest, ClosingTheWindowInARoundAsksAsEscapeDoes)
{
    openInstalled();
    type(u"{enter}18{enter}");
    answerLeaving(u"but_GoOn");
    form().inputClose();
    EXPECT_TRUE(isOpen());
    EXPECT_TRUE(isSeen(u"pan_Task"));
    EXPECT_EQ(focused(), u"txt_Answer");
    EXPECT_EQ(seen(u"lab_Points"), u"10 Punkte");

    answerLeaving(u"but_Leave");
    form().inputClose();
    EXPECT_FALSE(isOpen());
}

TEST_F(TrainerTest, ClosingTheWindowElsewhereDoesNotAsk)
{
    openInstalled();
    form().inputClose();
    EXPECT_FALSE(isOpen());
}

TEST_F(TrainerTest, TheMassesAreAtHandForNothing)
{
    openInstalled();
    const auto drawer = form().control<learning::ctl_Reference>(u"ref_Drawer");
    type(u"{enter}1");
    EXPECT_FALSE(isSeen(u"ref_Drawer"));
    EXPECT_EQ(buttonText(u"but_Reference"), u"Atommassen (F2)");
    type(u"{f2}");
    ASSERT_TRUE(isSeen(u"ref_Drawer"));
    EXPECT_EQ(focused(), u"txt_Answer");
    ASSERT_EQ(drawer->parts().size(), 4U) << "of both formulas of the level";
    EXPECT_EQ(drawer->parts()[0].name, u"Wasserstoff: 1,0 g/mol");
    EXPECT_EQ(drawer->parts()[3].name, u"Chlor: 35,5 g/mol");

    type(u"8{enter}{enter}");
    EXPECT_EQ(formula(), u"NaCl");
    EXPECT_EQ(seen(u"lab_Points"), u"10 Punkte");
    EXPECT_TRUE(isSeen(u"ref_Drawer")) << "it stays until it is closed";
    touch(u"but_Language");
    EXPECT_EQ(drawer->parts()[3].name, u"Cl: 35.5 g/mol");
    EXPECT_TRUE(isSeen(u"ref_Drawer"));
}

TEST_F(TrainerTest, TheMassesAreClosedByEscapeByTheirKeyAndByTouch)
{
    openInstalled();
    type(u"{enter}");
    type(u"{f2}{esc}");
    EXPECT_FALSE(isSeen(u"ref_Drawer"));
    EXPECT_TRUE(isSeen(u"pan_Task"));
    type(u"{f2}{f2}");
    EXPECT_FALSE(isSeen(u"ref_Drawer"));
    touch(u"but_Reference");
    EXPECT_TRUE(isSeen(u"ref_Drawer"));
    touch(u"but_Reference");
    EXPECT_FALSE(isSeen(u"ref_Drawer"));
    touch(u"but_Reference");
    phial::headless::click(*form().control<learning::ctl_Reference>(u"ref_Drawer"));
    EXPECT_FALSE(isSeen(u"ref_Drawer"));
    EXPECT_EQ(focused(), u"txt_Answer");
}

TEST_F(TrainerTest, TheMassesCoverNothingOfTheTask)
{
    openInstalled();
    type(u"{enter}{f2}");
    const auto areaOf = [this](StringView control) {
        const auto found = form().control<phial::Control>(control);
        const auto corner = found->frame().originOnForm();
        const auto area = found->frame().pixelRectangle();
        return phial::PixelRectangle{corner.x, corner.y, area.width, area.height};
    };
    for (const auto [width, height] : {phial::PixelSize{1024, 572}, phial::PixelSize{1920, 1050}}) {
        form().Width(width * phial::TwipsPerPixel);
        form().Height(height * phial::TwipsPerPixel);
        const auto drawer = areaOf(u"ref_Drawer");
        for (const auto* piece :
             {u"pan_Formula", u"txt_Answer", u"lab_Feedback", u"lab_Hint", u"but_Check"}) {
            EXPECT_LE(drawer.bottom(), areaOf(piece).top);
        }
        EXPECT_LE(drawer.right(), areaOf(u"but_Reference").left);
    }
}

TEST_F(TrainerTest, ANewRoundBeginsWithTheMassesClosedAndHasThoseOfItsLevel)
{
    openInstalled();
    type(u"{enter}{f2}");
    answerLeaving(u"but_Leave");
    type(u"{esc}{esc}");
    type(u"{f2}"); // on the start page there is nothing to look up
    touch(u"but_Level", 1);
    EXPECT_FALSE(isSeen(u"ref_Drawer"));
    type(u"{f2}");
    EXPECT_EQ(form().control<learning::ctl_Reference>(u"ref_Drawer")->parts().size(), 2U) << "H and Cl";
}

TEST_F(TrainerTest, TheSameWrongAnswerAgainCostsNothing)
{
    openInstalled();
    type(u"{enter}25{enter}25{enter}25.0{enter}");
    EXPECT_EQ(seen(u"lab_Feedback"), u"Das hattest du schon. Versuche es anders.");
    type(u"26{enter}25,0{enter}");
    EXPECT_EQ(seen(u"lab_Feedback"), u"Das hattest du schon. Versuche es anders.");
    type(u"18{enter}");
    EXPECT_EQ(seen(u"lab_Points"), u"4 Punkte");

    type(u"{enter}25{enter}"); // of another task
    EXPECT_EQ(seen(u"lab_Feedback").find(u"Das hattest du schon"), String::npos);
}

TEST_F(TrainerTest, AHeldReturnPressesOnce)
{
    openInstalled();
    type(u"{enter}18");
    phial::KeyEvent down{static_cast<std::int32_t>(phial::Key::Return)};
    for (int repeat = 0; repeat < 5; ++repeat) {
        phial::KeyEvent again = down;
        form().inputKeyDown(again);
    }
    EXPECT_EQ(buttonText(u"but_Check"), u"Weiter");
    EXPECT_EQ(formula(), u"H2O");

    form().inputKeyUp(down);
    type(u"{enter}");
    EXPECT_EQ(formula(), u"NaCl");
}

TEST_F(TrainerTest, APressRightBehindAVerdictIsNotHeard)
{
    openInstalled();
    trainer->deafFor(400);
    type(u"{enter}18");
    touch(u"but_Check");
    touch(u"but_Check");
    EXPECT_EQ(formula(), u"H2O");
    outside.advance(0.399);
    touch(u"but_Check");
    EXPECT_EQ(formula(), u"H2O");
    outside.advance(0.001);
    touch(u"but_Check");
    EXPECT_EQ(formula(), u"NaCl");
}

TEST_F(TrainerTest, ADecidedTasksFieldLooksLockedAndItsPadIsOff)
{
    openInstalled();
    type(u"{enter}18");
    const auto field = form().control<phial::TextBox>(u"txt_Answer");
    EXPECT_EQ(field->BackColor(), phial::Palette::Surface);
    type(u"{enter}");
    EXPECT_EQ(field->BackColor(), phial::Palette::Ground);
    EXPECT_FALSE(form().control<phial::ctl_Button>(u"but_Key", 0)->Enabled());

    type(u"{enter}");
    EXPECT_EQ(field->BackColor(), phial::Palette::Surface);
    EXPECT_TRUE(form().control<phial::ctl_Button>(u"but_Key", 0)->Enabled());
}

TEST_F(TrainerTest, TypingGoesOnInTheAnswerBehindEachButtonOfTheHeader)
{
    openInstalled();
    type(u"{enter}");
    for (const auto* button : {u"but_Colours", u"but_Language", u"but_Screen", u"but_Help"}) {
        if (StringView(button) == u"but_Help") {
            outside.visual().onModal(u"frm_AppAbout", [](phial::Form& about) { about.Unload(); });
        }
        form().control<phial::Control>(button)->SetFocus();
        touch(button);
        EXPECT_EQ(focused(), u"txt_Answer");
    }
}

TEST_F(TrainerTest, TheSecondLevelIsReachedByTab)
{
    openInstalled();

    type(u"{tab}{enter}");

    EXPECT_EQ(formula(), u"HCl");
    EXPECT_EQ(seen(u"lab_Name"), u"");
}

TEST_F(TrainerTest, ScreenReadersSayTaskVerdictHintAndWorking)
{
    openInstalled();
    const auto said = [this] {
        return form().control<phial::ctl_Label>(u"lab_Feedback")->frame().announcement();
    };
    EXPECT_EQ(said(), u"");
    type(u"{enter}");
    EXPECT_EQ(said(), u"Aufgabe 1 von 2\nWasser, H2O");
    type(u"25{enter}");
    EXPECT_EQ(said(), u"Leider nicht. Du hast noch 2 Versuche.");
    type(u"{f1}");
    EXPECT_EQ(said(), phial::plainMarkup(seen(u"lab_Hint")));
    type(u"18{enter}");
    EXPECT_EQ(said(), u"Richtig! 18,0 g/mol, 4 Punkte für dich.\n2 \u00D7 1,0 + 16,0 = 18,0 g/mol");
    type(u"{enter}");
    EXPECT_EQ(said(), u"Aufgabe 2 von 2\nNatriumchlorid, NaCl");
}

TEST_F(TrainerTest, AWrongAnswerMayBeMended)
{
    openInstalled();
    type(u"{enter}25{enter}");

    EXPECT_EQ(seen(u"lab_Feedback"), u"Leider nicht. Du hast noch 2 Versuche.");
    EXPECT_EQ(buttonText(u"but_Check"), u"Prüfen");

    // The wrong answer is selected, so that typing replaces it.
    type(u"26{enter}");
    EXPECT_EQ(answer(), u"26");
    EXPECT_EQ(seen(u"lab_Feedback"), u"Leider nicht. Du hast noch einen Versuch.");

    type(u"18{enter}");
    EXPECT_EQ(seen(u"lab_Feedback"), u"Richtig! 18,0 g/mol, 4 Punkte für dich.");
}

TEST_F(TrainerTest, AWrongAnswerTellsTheMistakeThatItShows)
{
    openInstalled();
    type(u"{enter}17{enter}");
    EXPECT_EQ(seen(u"lab_Feedback"), u"Denk an die kleine 2 hinter H.<br>Du hast noch 2 Versuche.");
    EXPECT_EQ(seen(u"lab_Hint"), u"");
    type(u"16{enter}");
    EXPECT_EQ(seen(u"lab_Feedback"),
              u"Das ist erst die Masse von O. Es fehlen noch Atome.<br>Du hast noch einen Versuch.");
}

TEST_F(TrainerTest, AVerdictHasASignAWordAndAColour)
{
    openInstalled();
    const auto colour = [this] { return form().control<phial::ctl_Label>(u"lab_Feedback")->ForeColor(); };
    type(u"{enter}");
    EXPECT_EQ(seen(u"lab_Verdict"), u"");
    type(u"17{enter}");
    EXPECT_EQ(seen(u"lab_Verdict"), u"\u21BB");
    EXPECT_EQ(colour(), phial::Palette::TryAgain);
    type(u"18{enter}");
    EXPECT_EQ(seen(u"lab_Verdict"), u"\u2713");
    EXPECT_EQ(colour(), phial::Palette::Right);
    type(u"{enter}1{enter}2{enter}3{enter}");
    EXPECT_EQ(seen(u"lab_Verdict"), u"\u2715");
    EXPECT_EQ(colour(), phial::Palette::Failure);
}

TEST_F(TrainerTest, TheSecondWrongAnswerShowsTheAtomsForNothing)
{
    openInstalled();
    type(u"{enter}25{enter}26{enter}");
    EXPECT_EQ(seen(u"lab_Hint"), u"2 \u00D7 H<br>1 \u00D7 O");
    touch(u"but_Language");
    EXPECT_EQ(seen(u"lab_Hint"), u"2 \u00D7 H<br>1 \u00D7 O");
    touch(u"but_Language");
    touchPad(u"18");
    touch(u"but_Check");
    EXPECT_EQ(seen(u"lab_Points"), u"4 Punkte");
}

TEST_F(TrainerTest, ARightAnswerIsWorkedOutToo)
{
    openInstalled();
    type(u"{enter}18{enter}");
    EXPECT_EQ(seen(u"lab_Hint"), u"2 \u00D7 1,0 + 16,0 = 18,0 g/mol");
    type(u"{f1}"); // there is nothing left to give a hint for
    EXPECT_EQ(seen(u"lab_Hint"), u"2 \u00D7 1,0 + 16,0 = 18,0 g/mol");
    EXPECT_EQ(seen(u"lab_Points"), u"10 Punkte");
}

TEST_F(TrainerTest, TheThirdWrongAnswerTellsTheSolutionWorkedOut)
{
    openInstalled();
    type(u"{enter}1{enter}2{enter}3{enter}");

    EXPECT_EQ(seen(u"lab_Feedback"), u"Schade. Richtig wären 18,0 g/mol.");
    EXPECT_EQ(seen(u"lab_Hint"), u"2 \u00D7 1,0 + 16,0 = 18,0 g/mol");
    EXPECT_EQ(seen(u"lab_Points"), u"0 Punkte");

    // What is decided is not edited any more.
    type(u"18");
    EXPECT_EQ(answer(), u"3");
    type(u"{enter}");
    EXPECT_EQ(formula(), u"NaCl");
    EXPECT_EQ(seen(u"lab_Hint"), u"");
}

TEST_F(TrainerTest, WhatIsNoNumberIsTurnedDownWithoutLosingATry)
{
    openInstalled();
    type(u"{enter}viel{enter}");
    EXPECT_EQ(seen(u"lab_Feedback"), u"Bitte gib eine Zahl ein, zum Beispiel 12,5.");

    type(u"{del}{enter}");
    EXPECT_EQ(seen(u"lab_Feedback"), u"Bitte gib eine Zahl ein, zum Beispiel 12,5.");

    type(u"18{enter}");
    EXPECT_EQ(seen(u"lab_Points"), u"10 Punkte");
}

TEST_F(TrainerTest, F1ShowsTheAtomsCountedAndCostsThreePoints)
{
    openInstalled();
    type(u"{enter}{f1}");

    EXPECT_EQ(seen(u"lab_Hint"), u"2 \u00D7 H (1,0 g/mol)<br>1 \u00D7 O (16,0 g/mol)");
    EXPECT_EQ(focused(), u"txt_Answer");

    type(u"18{enter}");
    EXPECT_EQ(seen(u"lab_Points"), u"7 Punkte");
}

TEST_F(TrainerTest, TheHintButtonDoesAsF1)
{
    openInstalled();
    touch(u"but_Level", 0);
    touch(u"but_Hint");

    EXPECT_TRUE(contains(seen(u"lab_Hint"), u"\u00D7 O"));
    EXPECT_FALSE(isSeen(u"but_Hint"));
    touchPad(u"18");
    touch(u"but_Check");
    EXPECT_EQ(seen(u"lab_Points"), u"7 Punkte");
}

TEST_F(TrainerTest, F1DoesNothingOutsideATask)
{
    openInstalled();

    type(u"{f1}");

    EXPECT_TRUE(isSeen(u"pan_Start"));
    EXPECT_TRUE(isOpen());
}

TEST_F(TrainerTest, ThePadHonoursSelectionAndGreatestLength)
{
    openInstalled();
    touch(u"but_Level", 0);
    touchPad(u"1234567890123");
    EXPECT_EQ(answer(), u"123456789012");

    touch(u"but_Check");
    touchPad(u"7");
    EXPECT_EQ(answer(), u"7");
    touchPad(DeleteSign);
    touchPad(DeleteSign);
    EXPECT_EQ(answer(), u"");
}

TEST_F(TrainerTest, TheDotsFollowTheTasks)
{
    openInstalled();
    type(u"{enter}");
    const auto spoken = [this](std::size_t dot) {
        return form().control<learning::ctl_RoundDots>(u"dot_Round")->parts().at(dot).name;
    };
    EXPECT_EQ(spoken(0), u"Aufgabe 1: noch 3 Versuche");
    type(u"25{enter}");
    EXPECT_EQ(spoken(0), u"Aufgabe 1: noch 2 Versuche");
    type(u"18{enter}");
    EXPECT_EQ(spoken(0), u"Aufgabe 1: 7 Punkte");
    EXPECT_EQ(spoken(1), u"Aufgabe 2: kommt noch");
    type(u"{enter}");
    EXPECT_EQ(spoken(1), u"Aufgabe 2: noch 3 Versuche");
}

TEST_F(TrainerTest, TheWindowGoesWithItsForm)
{
    openInstalled();
    const auto window = form().shared_from_this();

    trainer.reset();

    EXPECT_FALSE(window->Visible());
    EXPECT_FALSE(window->isLoaded());
}

TEST_F(TrainerTest, ThePraiseFollowsThePoints)
{
    openInstalled();
    touch(u"but_Level", 1);
    expectRankBox();
    type(u"1{enter}2{enter}3{enter}{enter}");

    EXPECT_EQ(seen(u"lab_Praise"), u"Übung macht den Meister!");
    EXPECT_EQ(seen(u"lab_Result"), u"0 von 10 Punkten");
    EXPECT_FALSE(isSeen(u"pan_ResultDone"));
    touch(u"but_Quit");
    EXPECT_FALSE(isOpen());
}

TEST_F(TrainerTest, SpeaksEnglishWithTheDecimalSignOfTheUser)
{
    install();
    phial::LNG()->CURRENT(phial::ID_Language_English);
    open();

    EXPECT_EQ(form().Caption(), u"Molar mass trainer");
    type(u"{enter}18.0{enter}");
    EXPECT_EQ(seen(u"lab_Name"), u"water");
    EXPECT_EQ(seen(u"lab_Feedback"), u"Right! 18.0 g/mol, 10 points for you.");
    EXPECT_EQ(buttonText(u"but_Check"), u"Next");
}

TEST_F(TrainerTest, TheLanguageButtonTranslatesEverythingThatIsSeen)
{
    openInstalled();
    type(u"{enter}");
    touchPad(u"1");
    touch(u"but_Check");
    EXPECT_EQ(seen(u"lab_Progress"), u"Aufgabe 1 von 2");

    touch(u"but_Language");
    EXPECT_EQ(form().Caption(), u"Molar mass trainer");
    EXPECT_EQ(seen(u"lab_Title"), u"Molar mass trainer");
    EXPECT_EQ(seen(u"lab_Progress"), u"Task 1 of 2");
    EXPECT_EQ(seen(u"lab_Points"), u"0 points");
    EXPECT_EQ(seen(u"lab_Name"), u"water");
    EXPECT_EQ(seen(u"lab_Feedback"),
              u"That is the mass of H alone. Other atoms are missing.<br>You have 2 tries left.");
    EXPECT_EQ(buttonText(u"but_Check"), u"Check");
    EXPECT_EQ(buttonText(u"but_Language"), u"DE");
    EXPECT_EQ(answer(), u"1");

    touchPad(u"7"); // what is typed meanwhile has not been judged
    touch(u"but_Language");
    EXPECT_EQ(seen(u"lab_Feedback"),
              u"Das ist erst die Masse von H. Es fehlen noch Atome.<br>Du hast noch 2 Versuche.");
    EXPECT_EQ(buttonText(u"but_Language"), u"EN");
}

TEST_F(TrainerTest, TheDecimalSignIsThatOfTheLanguageAndBothAreRead)
{
    constexpr std::int32_t CommaKey = 9;
    openInstalled();
    touch(u"but_Language");
    EXPECT_EQ(form().control<phial::ctl_Button>(u"but_Key", CommaKey)->Caption(), u".");
    touch(u"but_Level", 0);
    touch(u"but_Hint");
    EXPECT_EQ(seen(u"lab_Hint"), u"2 \u00D7 H (1.0 g/mol)<br>1 \u00D7 O (16.0 g/mol)");
    type(u"18,0{enter}");
    EXPECT_EQ(seen(u"lab_Feedback"), u"Right! 18.0 g/mol, 7 points for you.");

    touch(u"but_Language");
    EXPECT_EQ(form().control<phial::ctl_Button>(u"but_Key", CommaKey)->Caption(), u",");
    EXPECT_EQ(seen(u"lab_Feedback"), u"Richtig! 18,0 g/mol, 7 Punkte für dich.");
}

TEST_F(TrainerTest, TellsThatTheInstallationIsMissing)
{
    // The search is made twice, and each one tells that it found nothing.
    outside.dialogs().expect(phial::headless::Box::Error);
    outside.dialogs().expect(phial::headless::Box::Error);
    open();

    EXPECT_TRUE(isSeen(u"pan_Missing"));
    EXPECT_TRUE(contains(seen(u"lab_Missing"), u"Die Installation von QV Phial wurde nicht gefunden."));
    type(u"{enter}");
    EXPECT_FALSE(isOpen());
}

TEST_F(TrainerTest, NamesAMissingElementFile)
{
    install({});
    open();

    EXPECT_TRUE(contains(seen(u"lab_Missing"), u"Die Datei mit den Elementen fehlt"));
    EXPECT_TRUE(contains(seen(u"lab_Missing"), path(u"installed\\resources\\data\\elements2.dat")));
    touch(u"but_Leave");
    EXPECT_FALSE(isOpen());
}

TEST_F(TrainerTest, NamesAMissingTaskFile)
{
    install(Elements, {});
    open();

    EXPECT_TRUE(contains(seen(u"lab_Missing"), u"Die Datei mit den Formeln fehlt"));
    EXPECT_TRUE(contains(seen(u"lab_Missing"), u"formeln.txt"));
}

TEST_F(TrainerTest, ATaskFileWithoutTasksCountsAsMissing)
{
    install(Elements, "\x01\xff\x02 nothing of use [\n]\n|||\n");
    open();

    EXPECT_TRUE(isSeen(u"pan_Missing"));
}

TEST_F(TrainerTest, ARoundIsAsLongAsTheTeachersListTells)
{
    std::string tasks = "[lang] Lang | Long | 37\n";
    for (int count = 1; count <= 40; ++count) {
        tasks += "NaCl" + std::to_string(count) + "\n";
    }
    install(Elements, tasks + "[kurz] Kurz | Short\nH2O\n");
    open();
    EXPECT_FALSE(contains(seen(u"lab_Intro"), u"zehn"));
    type(u"{enter}");
    EXPECT_EQ(seen(u"lab_Progress"), u"Aufgabe 1 von 37");
    answerLeaving(u"but_Leave");
    type(u"{esc}");
    touch(u"but_Level", 1);
    EXPECT_EQ(seen(u"lab_Progress"), u"Aufgabe 1 von 1");
}

TEST_F(TrainerTest, ALongFormulaIsSmallerAndFits)
{
    install(Elements, "[lang] Lang\n" + std::string(40, 'H') + "\nH2O\n");
    open();
    type(u"{enter}");
    const auto label = form().control<phial::ctl_TermLabel>(u"trm_Formula");
    EXPECT_EQ(label->TEXTFONT()->Size(), 24);
    type(u"40{enter}{enter}");
    EXPECT_EQ(formula(), u"H2O");
    EXPECT_EQ(label->TEXTFONT()->Size(), 39);
}

TEST_F(TrainerTest, AFormulaThatHasNoRoomIsLeftOutAndTheTeacherToldItsLine)
{
    install(Elements, "[lang] Lang\nH2O\n" + std::string(45, 'H') + "\nXx2\n");
    open();
    EXPECT_EQ(seen(u"lab_Complaint"),
              u"Für die Lehrkraft: formeln.txt, Zeile 3: „" + String(39, u'H') +
                  u"…“ ist zu lang für die Seite und wurde ausgelassen. Noch eine Zeile ist fehlerhaft.");
    touch(u"but_Language");
    EXPECT_TRUE(contains(seen(u"lab_Complaint"), u"formeln.txt, line 3"));
    touch(u"but_Level", 0);
    EXPECT_EQ(seen(u"lab_Progress"), u"Task 1 of 1");
}

TEST_F(TrainerTest, AnElementThatThereIsNotIsNeverAskedFor)
{
    install(Elements, "[a] A\nH2O\nXx2\n");
    open();
    EXPECT_TRUE(contains(seen(u"lab_Complaint"), u"Zeile 3: „Xx2“ enthält ein unbekanntes Element"));
}

TEST_F(TrainerTest, AWholeTaskFileHasNoComplaint)
{
    openInstalled();
    EXPECT_EQ(seen(u"lab_Complaint"), u"");
}

TEST_F(TrainerTest, ADamagedTaskFileServesWithWhatIsWhole)
{
    install(Elements, "\xff\xfe junk\n[leicht\nH2O | Wasser\n||\nwasser\n[mittel] Mittel\n");
    open();

    EXPECT_TRUE(isSeen(u"pan_Start"));
    type(u"{enter}");
    EXPECT_EQ(formula(), u"H2O");
    EXPECT_EQ(seen(u"lab_Progress"), u"Aufgabe 1 von 1");
}

} // namespace
} // namespace molmasse
