#include "common/ctl_Reference.h"
#include "common/ctl_RoundDots.h"
#include "molmasse/TrainerTest.h"

namespace molmasse
{
namespace
{

using phial::StringView;

TEST_F(TrainerTest, AWholeRoundGoesByKeysAlone)
{
    openInstalled();

    type(u"{enter}");
    EXPECT_EQ(seen(u"lab_Progress"), u"Aufgabe 1 von 2");
    EXPECT_EQ(formula(), u"H2O");
    EXPECT_EQ(seen(u"lab_Name"), u"Wasser");
    EXPECT_EQ(focused(), u"txt_Answer");

    type(u"18,0{enter}");
    EXPECT_EQ(seen(u"lab_Feedback"),
              u"Richtig! 18,0\u00A0g/mol, 10 Punkte für dich.<br>Alle kleinen Zahlen mitgerechnet.");
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
    touchPad(u"19\u232B8");
    EXPECT_EQ(answer(), u"18");
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

TEST_F(TrainerTest, AHeldEscapeAsksOnceAndDoesNotAnswer)
{
    constexpr phial::KeyStroke Escape{0, phial::Key::Escape, 0};
    openInstalled();
    type(u"{enter}");
    int questions = 0;
    outside.visual().onModal(u"frm_LeaveRound", [&](phial::Form& asking) {
        ++questions;
        phial::headless::press(asking, Escape, phial::headless::KeyDown::Repeat);
        EXPECT_TRUE(asking.Visible());
        asking.Unload();
    });
    phial::headless::hold(form(), Escape);
    EXPECT_EQ(questions, 1);
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
    EXPECT_EQ(drawer->parts()[0].name, u"Wasserstoff: 1,0\u00A0g/mol");
    EXPECT_EQ(drawer->parts()[3].name, u"Chlor: 35,5\u00A0g/mol");

    type(u"8{enter}{enter}");
    EXPECT_EQ(formula(), u"NaCl");
    EXPECT_EQ(seen(u"lab_Points"), u"10 Punkte");
    EXPECT_TRUE(isSeen(u"ref_Drawer")) << "it stays until it is closed";
    touch(u"but_Language");
    EXPECT_EQ(drawer->parts()[3].name, u"Chlorine: 35.5\u00A0g/mol");
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

TEST_F(TrainerTest, ScreenReadersSayTaskVerdictHintAndWorking)
{
    openInstalled();
    const auto said = [this] {
        return form().control<phial::ctl_Label>(u"lab_Feedback")->frame().announcement();
    };
    EXPECT_EQ(said(), u"");
    type(u"{enter}");
    EXPECT_EQ(said(), seen(u"lab_Feedback") + u"\nAufgabe 1 von 2\nWasser, H zwei O");
    type(u"25{enter}");
    EXPECT_EQ(said(), u"Leider nicht. Du hast noch 2 Versuche.");
    type(u"{f5}");
    EXPECT_EQ(said(), phial::plainMarkup(seen(u"lab_Hint")));
    type(u"18{enter}");
    EXPECT_EQ(said(),
              u"Richtig! 18,0\u00A0g/mol, 4 Punkte für dich.\nAlle kleinen Zahlen mitgerechnet.\n2 · 1,0 "
              u"+ 16,0 = 2,0 + 16,0 = 18,0\u00A0g/mol");
    type(u"{enter}");
    EXPECT_EQ(said(), u"Aufgabe 2 von 2\nNatriumchlorid, N a C l");
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

} // namespace
} // namespace molmasse
