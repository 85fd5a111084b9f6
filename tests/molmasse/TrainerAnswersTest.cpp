#include "core/Palette.h"
#include "molmasse/TrainerTest.h"

namespace molmasse
{
namespace
{

using phial::String;

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
    EXPECT_EQ(seen(u"lab_Feedback"), u"Richtig! 18,0\u00A0g/mol, 4 Punkte für dich.");
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
    EXPECT_EQ(seen(u"lab_Hint"), u"2 \u00D7 1,0 + 16,0 = 18,0\u00A0g/mol");
    type(u"{f1}"); // there is nothing left to give a hint for
    EXPECT_EQ(seen(u"lab_Hint"), u"2 \u00D7 1,0 + 16,0 = 18,0\u00A0g/mol");
    EXPECT_EQ(seen(u"lab_Points"), u"10 Punkte");
}

TEST_F(TrainerTest, TheThirdWrongAnswerTellsTheSolutionWorkedOut)
{
    openInstalled();
    type(u"{enter}1{enter}2{enter}3{enter}");

    EXPECT_EQ(seen(u"lab_Feedback"), u"Schade. Richtig wären 18,0\u00A0g/mol.");
    EXPECT_EQ(seen(u"lab_Hint"), u"2 \u00D7 1,0 + 16,0 = 18,0\u00A0g/mol");
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

    EXPECT_EQ(seen(u"lab_Hint"), u"2 \u00D7 H (1,0\u00A0g/mol)<br>1 \u00D7 O (16,0\u00A0g/mol)");
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

} // namespace
} // namespace molmasse
