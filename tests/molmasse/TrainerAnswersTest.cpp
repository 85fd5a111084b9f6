#include "app/cls_Language.h"
#include "core/Palette.h"
#include "molmasse/TrainerTest.h"
#include "support/Contrast.h"
#include "visual/Shape.h"
#include "visual/ctl_Button.h"
#include "visual/ctl_Label.h"

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

constexpr phial::KeyStroke Return{0, phial::Key::Return, 0};

TEST_F(TrainerTest, AHeldReturnPressesOnce)
{
    openInstalled();
    type(u"{enter}18");
    phial::headless::hold(form(), Return);
    EXPECT_EQ(buttonText(u"but_Check"), u"Weiter");
    EXPECT_EQ(formula(), u"H2O");

    type(u"{enter}");
    EXPECT_EQ(formula(), u"NaCl");
}

/// The box gets the key-up of the Return that has opened it.
TEST_F(TrainerTest, ReturnGoesOnBehindAMessageBoxThatItHasOpened)
{
    openInstalled();
    answerLeaving(u"but_Leave");
    type(u"{enter}25{enter}26{enter}27{enter}{esc}"); // a missed task is remembered
    form().focus(form().control<phial::ctl_Button>(u"but_Forget"));
    outside.dialogs().expectYesNo(phial::DialogAnswer::No);
    phial::headless::press(form(), Return);
    type(u"{enter}");
    EXPECT_EQ(seen(u"lab_Progress"), u"Aufgabe 1 von 2");
}

TEST_F(TrainerTest, PraisesTheWorkWithAnotherSentenceEachTime)
{
    install(Elements, "[a] A\nH2O\nH2O2\n");
    open();
    type(u"{enter}18{enter}");
    EXPECT_TRUE(contains(seen(u"lab_Feedback"), u"<br>Alle kleinen Zahlen mitgerechnet."));
    type(u"{enter}34{enter}");
    EXPECT_TRUE(contains(seen(u"lab_Feedback"), u"<br>Sauber gerechnet."));
}

TEST_F(TrainerTest, TheButtonsTellWhatTheyCostAndWhatTheyBegin)
{
    openInstalled();
    type(u"{enter}");
    EXPECT_EQ(buttonText(u"but_Hint"), u"Tipp (−3 Punkte)");
    expectRankBox();
    type(u"25{enter}26{enter}27{enter}{enter}58,4{enter}{enter}");
    EXPECT_EQ(buttonText(u"but_Missed"), u"Nur die falschen\nnoch einmal");
    EXPECT_EQ(form().control<phial::ctl_Button>(u"but_Missed")->frame().AccessibleName(),
              u"Nur die falschen noch einmal");
    phial::LNG()->CURRENT(phial::ID_Language_English);
    EXPECT_EQ(buttonText(u"but_Hint"), u"Hint (−3 points)");
    EXPECT_EQ(buttonText(u"but_Missed"), u"Only the missed ones\nonce more");
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

/// How the answer's field looks.
struct ShownField {
    phial::Colour ground;
    phial::Colour ink;
    std::optional<phial::Colour> sign; ///< the lock's; none while it is not shown
};

class DecidedField : public TrainerTest, public testing::WithParamInterface<phial::ColourSet>
{
protected:
    ShownField shown()
    {
        const auto lock = form().control<phial::Shape>(u"shp_Lock");
        return {field().BackColor(), field().ForeColor(),
                lock->frame().isReachable() ? std::optional(lock->FillColor()) : std::nullopt};
    }
    static double between(phial::Colour one, phial::Colour other)
    {
        return phial::test::contrast(one, other, GetParam());
    }
};

TEST_P(DecidedField, LooksLockedAndItsPadIsOff)
{
    constexpr double Readable = 4.3; // what is off, see the palette's own test
    constexpr double OfSigns = 3;
    constexpr double Told = 1.8;
    openInstalled();
    type(u"{enter}18");
    const ShownField open = shown();
    EXPECT_FALSE(open.sign);
    type(u"{enter}");
    const ShownField decided = shown();
    EXPECT_GE(between(decided.ink, decided.ground), Readable);
    EXPECT_GE(between(open.ink, decided.ink), Told);
    ASSERT_TRUE(decided.sign);
    EXPECT_GE(between(*decided.sign, phial::Palette::Ground), OfSigns);
    EXPECT_FALSE(form().control<phial::ctl_Button>(u"but_Pad")->Enabled());

    type(u"{enter}");
    EXPECT_EQ(shown().ground, open.ground);
    EXPECT_EQ(shown().ink, open.ink);
    EXPECT_FALSE(shown().sign);
    EXPECT_TRUE(form().control<phial::ctl_Button>(u"but_Pad")->Enabled());
}

INSTANTIATE_TEST_SUITE_P(Sets, DecidedField,
                         testing::Values(phial::ColourSet::Light, phial::ColourSet::Dark,
                                         phial::ColourSet::HighContrast));

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
    EXPECT_EQ(seen(u"lab_Feedback"),
              u"Richtig! 18,0\u00A0g/mol, 4 Punkte für dich.<br>Alle kleinen Zahlen mitgerechnet.");
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
    EXPECT_EQ(seen(u"lab_Hint"), u"2 · 1,0 + 16,0 = 2,0 + 16,0 = 18,0\u00A0g/mol");
    type(u"{f5}"); // there is nothing left to give a hint for
    EXPECT_EQ(seen(u"lab_Hint"), u"2 · 1,0 + 16,0 = 2,0 + 16,0 = 18,0\u00A0g/mol");
    EXPECT_EQ(seen(u"lab_Points"), u"10 Punkte");
}

TEST_F(TrainerTest, TheThirdWrongAnswerTellsTheSolutionWorkedOut)
{
    openInstalled();
    type(u"{enter}1{enter}2{enter}3{enter}");

    EXPECT_EQ(seen(u"lab_Feedback"), u"Schade. Richtig wären 18,0\u00A0g/mol.");
    EXPECT_EQ(seen(u"lab_Hint"), u"2 · 1,0 + 16,0 = 2,0 + 16,0 = 18,0\u00A0g/mol");
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

TEST_F(TrainerTest, F5ShowsTheAtomsCountedAndCostsThreePoints)
{
    openInstalled();
    type(u"{enter}{f5}");

    EXPECT_EQ(seen(u"lab_Hint"), u"2 \u00D7 H (1,0\u00A0g/mol)<br>1 \u00D7 O (16,0\u00A0g/mol)");
    EXPECT_EQ(focused(), u"txt_Answer");

    type(u"18{enter}");
    EXPECT_EQ(seen(u"lab_Points"), u"7 Punkte");
}

TEST_F(TrainerTest, TheHintButtonDoesAsF5)
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

/// Works out a term on the calculator that opens next.
void playCalculator(phial::headless::HeadlessVisualHost& visual, phial::StringView term, bool takes)
{
    visual.onModal(u"frm_ToolCalc", [term = phial::String(term), takes](phial::Form& calculator) {
        constexpr std::int32_t FormulaKey = 21;
        EXPECT_FALSE(calculator.control<phial::ctl_Button>(u"but_Key", FormulaKey)->Enabled());
        EXPECT_EQ(calculator.control<phial::ctl_Label>(u"lab_Task")->Caption(), u"H\u2082O");
        for (const char16_t sign : term) {
            phial::headless::strike(calculator, {.character = sign});
        }
        phial::headless::strike(calculator, takes ? phial::KeyStroke{.key = phial::Key::Return,
                                                                     .Shift = phial::ShiftMask::Control}
                                                  : phial::KeyStroke{.key = phial::Key::Escape});
    });
}

TEST_F(TrainerTest, F4OpensTheCalculatorAndTakesItsResultIntoTheAnswer)
{
    openInstalled();
    type(u"{enter}");
    playCalculator(outside.visual(), u"2*1+16", true);
    type(u"{f4}");
    EXPECT_EQ(answer(), u"18");
    EXPECT_EQ(focused(), u"txt_Answer");
    type(u"{enter}");
    EXPECT_EQ(seen(u"lab_Points"), u"10 Punkte");
    type(u"{f4}");
    EXPECT_EQ(answer(), u"18") << "closed, and no calculator comes";
}

TEST_F(TrainerTest, TheCalculatorsButtonDoesAsF4AndClosedOtherwiseNothing)
{
    openInstalled();
    type(u"{enter}7");
    playCalculator(outside.visual(), u"2*1+16", false);
    touch(u"but_Calculator");
    EXPECT_EQ(answer(), u"7");
    playCalculator(outside.visual(), u"1/3", true);
    touch(u"but_Calculator");
    EXPECT_EQ(answer(), u"0,3333333333");
    playCalculator(outside.visual(), u"10^14", true);
    touch(u"but_Calculator");
    EXPECT_EQ(answer(), u"0,3333333333") << "no number is cut";
}

TEST_F(TrainerTest, F4AndF5DoNothingOutsideATask)
{
    openInstalled();

    type(u"{f4}{f5}");

    EXPECT_TRUE(isSeen(u"pan_Start"));
    EXPECT_TRUE(isOpen());
}

TEST_F(TrainerTest, ThePadHonoursTheGreatestLengthAndReplacesAWrongAnswer)
{
    openInstalled();
    touch(u"but_Level", 0);
    touchPad(u"1234567890123");
    EXPECT_EQ(answer(), u"123456789012");

    touch(u"but_Check");
    touchPad(u"7");
    EXPECT_EQ(answer(), u"7");
    EXPECT_EQ(focused(), u"txt_Answer");
    type(u"18,0");
    EXPECT_EQ(answer(), u"18,0") << "typing goes on in the field and replaces what the pad has put there";
}

TEST_F(TrainerTest, ThePadAsksForTheMassInTheLanguageInForce)
{
    openInstalled();
    touch(u"but_Level", 0);
    const auto expectTitle = [this](phial::StringView title) {
        outside.visual().onModal(u"frm_DialogNumericTouch", [title](phial::Form& pad) {
            EXPECT_EQ(pad.control<phial::ctl_Label>(u"lab_Title")->frame().AccessibleName(), title);
            phial::headless::strike(pad, {.key = phial::Key::Escape});
        });
        touch(u"but_Pad");
    };
    expectTitle(u"Molare Masse in g/mol");
    touch(u"but_Language");
    expectTitle(u"Molar mass in g/mol");
    EXPECT_EQ(answer(), u"");
}

TEST_F(TrainerTest, APadThatIsClosedWithoutANumberLeavesNoAnswer)
{
    openInstalled();
    touch(u"but_Level", 0);
    touchPad(u"");
    EXPECT_EQ(answer(), u"");
    touch(u"but_Check");
    EXPECT_EQ(seen(u"lab_Feedback"), u"Bitte gib eine Zahl ein, zum Beispiel 12,5.");
    EXPECT_EQ(answer(), u"");
}

TEST_F(TrainerTest, InTouchModeAPressOnTheFieldOpensThePadBesideTheTask)
{
    openInstalled();
    outside.display().resize(1920, 1080);
    phial::QVAPP()->CONFIG()->TOUCHMODE(true);
    touch(u"but_Level", 0);
    outside.windows().place(form().control<phial::ctl_Pannel>(u"pan_Formula")->hWnd(), {332, 244, 892, 416});
    outside.windows().place(field().hWnd(), {332, 436, 552, 500});
    outside.visual().onModal(u"frm_DialogNumericTouch", [&](phial::Form& pad) {
        EXPECT_EQ(pad.Left() / phial::TwipsPerPixel, 904);
        EXPECT_EQ(pad.Top() / phial::TwipsPerPixel, 244);
        phial::headless::type(pad, u"18~");
    });
    phial::headless::click(field());
    EXPECT_EQ(answer(), u"18");
    touch(u"but_Check");
    EXPECT_TRUE(contains(seen(u"lab_Feedback"), u"Richtig!"));
    phial::headless::click(field()); // it is decided
    EXPECT_EQ(answer(), u"18");
}

TEST_F(TrainerTest, AnAnswerStaysAsItWasTyped)
{
    openInstalled();
    type(u"{enter}");
    for (const phial::StringView text : {u"", u"viel", u"18,0150", u"18."}) {
        field().inputText(phial::String(text), static_cast<std::int32_t>(text.size()), 0);
        phial::headless::click(field());
        form().control<phial::ctl_Button>(u"but_Check")->SetFocus();
        EXPECT_EQ(answer(), text);
        field().SetFocus();
    }
    type(u"{enter}");
    EXPECT_EQ(answer(), u"18.");
    EXPECT_TRUE(contains(seen(u"lab_Feedback"), u"Richtig!"));
}

} // namespace
} // namespace molmasse
