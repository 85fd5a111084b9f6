#include "app/cls_Language.h"
#include "molmasse/TrainerTest.h"

namespace molmasse
{
namespace
{

using phial::StringView;

/// A finger meets what lies 9 mm or further apart: 36 pixels of the window.
void expectTargets(const phial::Container& container)
{
    for (const phial::ControlPtr& control : container.controls()) {
        const phial::ControlFrame& frame = control->frame();
        if (dynamic_cast<const phial::ctl_Button*>(control.get())) {
            const phial::PixelRectangle place = frame.pixelRectangle();
            EXPECT_GE(std::min(place.width, place.height) * frame.form()->Zoom(), 36 - 1e-6)
                << phial::toUtf8(frame.NAME());
        }
        if (const phial::Container* within = control->container()) {
            expectTargets(*within);
        }
    }
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

TEST_F(TrainerTest, TellsAboutItselfInTheLanguageInForce)
{
    openInstalled();
    const auto expectAbout = [this](StringView button, StringView caption) {
        EXPECT_EQ(buttonText(u"but_About"), button);
        outside.visual().onModal(u"frm_AppAbout", [caption](phial::Form& about) {
            EXPECT_EQ(about.Caption(), caption);
            about.Unload();
        });
        touch(u"but_About");
    };
    expectAbout(u"Über das Programm …", u"Info über Molmassen-Trainer");
    phial::LNG()->CURRENT(phial::ID_Language_English);
    expectAbout(u"About the program …", u"About Molar mass trainer");
}

TEST_F(TrainerTest, OpensItsHelpBookByKeyAndByTouchOnEachPage)
{
    installHelp({".", "K2", "K3"});
    openInstalled();
    expectHelp(u".");
    type(u"{f1}");
    expectHelp(u".");
    touch(u"but_Help");
    touch(u"but_Level", 0);
    expectHelp(u"K2");
    type(u"{f1}");
    EXPECT_EQ(focused(), u"txt_Answer");
    expectHelp(u"K2");
    touch(u"but_Help");
    EXPECT_EQ(focused(), u"txt_Answer");
}

TEST_F(TrainerTest, OpensTheChapterAboutBracketsAtAFormulaWithSome)
{
    installHelp({".", "K2", "K3"});
    install(Elements, "[leicht] Leicht | Easy\nNa(OH)2\n");
    open();
    touch(u"but_Level", 0);
    expectHelp(u"K3");
    type(u"{f1}");
}

TEST_F(TrainerTest, OpensTheWholeBookWhereItHasNoSuchChapter)
{
    installHelp({"."});
    openInstalled();
    touch(u"but_Level", 0);
    expectHelp(u".");
    type(u"{f1}");
}

TEST_F(TrainerTest, TellsWhatItIsWhereItHasNoHelpBook)
{
    openInstalled();
    outside.visual().onModal(u"frm_AppAbout", [](phial::Form& about) { about.Unload(); });
    type(u"{f1}");
    EXPECT_EQ(focused(), u"but_Level");
}

TEST_F(TrainerTest, TellsTheKeysOfHelpAndHint)
{
    openInstalled();
    const auto tip = [this](StringView button) {
        return form().control<phial::ctl_Button>(button)->frame().ToolTipText();
    };
    EXPECT_EQ(tip(u"but_Help"), u"Hilfe (F1)");
    EXPECT_EQ(tip(u"but_Hint"), u"Tipp zeigen (F5)");
    phial::LNG()->CURRENT(phial::ID_Language_English);
    EXPECT_EQ(tip(u"but_Help"), u"Help (F1)");
    EXPECT_EQ(tip(u"but_Hint"), u"Show the hint (F5)");
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

TEST_F(TrainerTest, EachButtonIsLargeEnoughForAFingerInEachWindow)
{
    openInstalled();
    for (const phial::PixelSize size : {phial::PixelSize{675, 477}, {1024, 560}, {900, 640}, {1920, 1080}}) {
        form().Width(size.width * phial::TwipsPerPixel);
        form().Height(size.height * phial::TwipsPerPixel);
        SCOPED_TRACE(size.width);
        expectTargets(form().container());
    }
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

TEST_F(TrainerTest, HeldKeysOfTheFrameActOnce)
{
    openInstalled();
    const auto function = [](int number) {
        return phial::KeyStroke{
            0, static_cast<phial::Key>(static_cast<std::int32_t>(phial::Key::F1) + number - 1), 0};
    };
    phial::headless::hold(form(), function(11));
    EXPECT_EQ(form().BorderStyle(), phial::BorderStyle::None);

    type(u"{enter}");
    phial::headless::hold(form(), function(2));
    EXPECT_TRUE(isSeen(u"ref_Drawer"));
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

TEST_F(TrainerTest, TypingGoesOnInTheAnswerBehindEachButtonOfTheHeaderAndTheFooter)
{
    openInstalled();
    type(u"{enter}");
    for (const auto* button :
         {u"but_Colours", u"but_Language", u"but_Screen", u"but_Help", u"but_Sound", u"but_Mascot"}) {
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

TEST_F(TrainerTest, TheWindowGoesWithItsForm)
{
    openInstalled();
    const auto window = form().shared_from_this();

    trainer.reset();

    EXPECT_FALSE(window->Visible());
    EXPECT_FALSE(window->isLoaded());
}

TEST_F(TrainerTest, SpeaksEnglishWithTheDecimalSignOfTheUser)
{
    install();
    phial::LNG()->CURRENT(phial::ID_Language_English);
    open();

    EXPECT_EQ(form().Caption(), u"Molar mass trainer");
    type(u"{enter}18.0{enter}");
    EXPECT_EQ(seen(u"lab_Name"), u"water");
    EXPECT_EQ(seen(u"lab_Feedback"),
              u"Right! 18.0\u00A0g/mol, 10 points for you.<br>All the small numbers taken in.");
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
    openInstalled();
    touch(u"but_Language");
    touch(u"but_Level", 0);
    touch(u"but_Hint");
    EXPECT_EQ(seen(u"lab_Hint"), u"2 \u00D7 H (1.0\u00A0g/mol)<br>1 \u00D7 O (16.0\u00A0g/mol)");
    type(u"18,0{enter}");
    EXPECT_EQ(seen(u"lab_Feedback"),
              u"Right! 18.0\u00A0g/mol, 7 points for you.<br>All the small numbers taken in.");

    touch(u"but_Language");
    EXPECT_EQ(seen(u"lab_Feedback"),
              u"Richtig! 18,0\u00A0g/mol, 7 Punkte für dich.<br>Alle kleinen Zahlen mitgerechnet.");
}

} // namespace
} // namespace molmasse
