#include "dialogs/KeyboardWindowTest.h"

#include "core/SessionState.h"
#include "headless/Hand.h"
#include "visual/VisualHost.h"
#include "visual/ctl_Label.h"

#include <gmock/gmock-more-matchers.h>

namespace phial::test
{

TEST_F(KeyboardWindowTest, AsksInTheUsualWordsWithoutATitle)
{
    open();
    EXPECT_EQ(keyboard.get<ctl_Label>(u"lab_Title")->Caption(), u"");
    EXPECT_EQ(keyboard.get<ctl_Label>(u"lab_Description")->Caption(), u"Bitte geben Sie den Wert ein:");
    EXPECT_TRUE(keyboard.get<ctl_Label>(u"lab_Description")->Visible());
    LNG()->CURRENT(ID_Language_English);
    EXPECT_EQ(keyboard.get<ctl_Label>(u"lab_Description")->Caption(), u"Please enter the value:");
    EXPECT_EQ(keyboard.form->Caption(), u"Keyboard");
}

TEST_F(KeyboardWindowTest, AsksWithItsTitleAsItStands)
{
    keyboard.window.title(u"Dein <b>Name</b>|x");
    open();
    LNG()->CURRENT(ID_Language_English);
    EXPECT_EQ(keyboard.get<ctl_Label>(u"lab_Title")->Caption(), u"Dein <b>Name</b>|x");
    EXPECT_EQ(keyboard.get<ctl_Label>(u"lab_Title")->accessibleText(), u"Dein <b>Name</b>|x");
    EXPECT_TRUE(keyboard.get<ctl_Label>(u"lab_Title")->Visible());
    EXPECT_EQ(keyboard.get<ctl_Label>(u"lab_Description")->Caption(), u"");
    EXPECT_EQ(keyboard.window.question(), u"Dein <b>Name</b>|x");
}

TEST_F(KeyboardWindowTest, ALongTitleEndsWithAnEllipsisAndIsToldInFull)
{
    const String title = u"Bitte gib hier den vollständigen Namen deiner Schule und den Ort an, in dem sie "
                         u"steht, und dazu die Klasse, in der du bist, und das Fach, um das es geht";
    keyboard.window.title(title);
    open();
    const auto label = keyboard.get<ctl_Label>(u"lab_Title");
    const String shown = label->Caption();
    EXPECT_EQ(shown.back(), u'…');
    EXPECT_TRUE(title.starts_with(shown.substr(0, shown.size() - 1)));
    EXPECT_GT(shown.size(), 20U) << "two lines of it";
    EXPECT_EQ(label->frame().ToolTipText(), title);
    EXPECT_EQ(label->frame().AccessibleName(), title);
    EXPECT_EQ(keyboard.window.question(), title);
    keyboard.window.title(u"Name");
    keyboard.window.translate();
    EXPECT_EQ(label->Caption(), u"Name");
    EXPECT_EQ(label->frame().ToolTipText(), u"");
}

// How it ends.

TEST_F(KeyboardWindowTest, EscapeAbortsAMomentLater)
{
    open();
    headless::strike(*keyboard.form, {.key = Key::Escape});
    EXPECT_TRUE(keyboard.form->isLoaded()) << "never from within a key's handler";
    outside.advance(0.099);
    EXPECT_TRUE(keyboard.form->isLoaded());
    outside.advance(0.002);
    EXPECT_FALSE(keyboard.form->isLoaded());
    EXPECT_FALSE(keyboard.window.isAccepted());
    EXPECT_FALSE(keyboard.form->control<Timer>(u"tmr_Unload")->Enabled());
}

TEST_F(KeyboardWindowTest, TheCrossAborts)
{
    open();
    headless::click(*keyboard.get<ctl_Button>(u"but_Close"));
    outside.advance(0.11);
    EXPECT_FALSE(keyboard.form->isLoaded());
    EXPECT_FALSE(keyboard.window.isAccepted());
}

TEST_F(KeyboardWindowTest, ReturnConfirms)
{
    open();
    headless::strike(*keyboard.form, {.key = Key::Return});
    EXPECT_EQ(keyboard.confirmed, 1);
    EXPECT_FALSE(keyboard.window.isEnding());
}

TEST_F(KeyboardWindowTest, AcceptedItClosesAMomentLater)
{
    open();
    keyboard.window.accept();
    EXPECT_TRUE(keyboard.window.isAccepted());
    outside.advance(0.099);
    EXPECT_TRUE(keyboard.form->isLoaded());
    outside.advance(0.002);
    EXPECT_FALSE(keyboard.form->isLoaded());
    EXPECT_TRUE(keyboard.window.isAccepted());
}

TEST_F(KeyboardWindowTest, TheFirstEndCounts)
{
    open();
    keyboard.window.abort();
    headless::strike(*keyboard.form, {.key = Key::Return});
    keyboard.window.accept();
    EXPECT_EQ(keyboard.confirmed, 0);
    EXPECT_FALSE(keyboard.window.isAccepted());
    outside.advance(0.11);
    EXPECT_FALSE(keyboard.form->isLoaded());
}

TEST_F(KeyboardWindowTest, AnAbortAtOnceWaitsForNothing)
{
    open();
    keyboard.window.abortAtOnce();
    EXPECT_FALSE(keyboard.form->isLoaded());
    EXPECT_FALSE(keyboard.window.isAccepted());
}

TEST_F(KeyboardWindowTest, AnAbortAtOnceDoesNotTakeBackAnAcceptance)
{
    open();
    keyboard.window.accept();
    keyboard.window.abortAtOnce();
    EXPECT_TRUE(keyboard.window.isAccepted());
}

TEST_F(KeyboardWindowTest, LeavingItDoesNothing)
{
    open();
    keyboard.form->inputDeactivate();
    outside.advance(0.2);
    EXPECT_EQ(keyboard.confirmed, 0);
    EXPECT_TRUE(keyboard.form->isLoaded());
}

TEST_F(KeyboardWindowTest, LeavingAKeyboardThatConfirmsThenConfirms)
{
    SampleKeyboard confirming(KeyboardWindow::Leaving::Confirms);
    confirming.form->Show();
    confirming.form->inputDeactivate();
    EXPECT_EQ(confirming.confirmed, 1);
}

TEST_F(KeyboardWindowTest, LeavingItAfterAnAbortConfirmsNothing)
{
    SampleKeyboard confirming(KeyboardWindow::Leaving::Confirms);
    confirming.form->Show();
    confirming.window.abort();
    confirming.form->inputDeactivate();
    EXPECT_EQ(confirming.confirmed, 0);
}

TEST_F(KeyboardWindowTest, HasItsTimersAndButtonsAsTheyAreKnown)
{
    const auto dragging = keyboard.form->control<Timer>(u"tmr_Dragging");
    const auto unload = keyboard.form->control<Timer>(u"tmr_Unload");
    EXPECT_EQ(dragging->Interval(), 10);
    EXPECT_EQ(unload->Interval(), 100);
    EXPECT_FALSE(dragging->Enabled());
    EXPECT_FALSE(unload->Enabled());
    const auto quit = keyboard.get<ctl_Button>(u"but_Quit");
    EXPECT_DOUBLE_EQ(quit->Left() * TwipsPerPixel, keyboard.form->Width() + 100);
    EXPECT_EQ(keyboard.form->CancelControl(), quit);
    EXPECT_EQ(keyboard.form->DefaultControl(), keyboard.get<ctl_Button>(u"but_Enter"));
    EXPECT_FALSE(keyboard.get<ctl_Button>(u"but_Enter")->Visible());
}

TEST_F(KeyboardWindowTest, OnlyTheInputIsAStopOfTheTabKey)
{
    open();
    EXPECT_THAT(keyboard.form->tabOrder(), ::testing::ElementsAre(keyboard.get<TextBox>(u"txt_Input")));
    headless::click(*keyboard.get<ctl_Label>(u"lab_Description"));
    EXPECT_EQ(keyboard.form->ActiveControl(), keyboard.get<TextBox>(u"txt_Input"));
}

// How it looks.

TEST_F(KeyboardWindowTest, HasTheHolesOfItsGround)
{
    open();
    ASSERT_NE(keyboard.form->Picture(), nullptr);
    EXPECT_EQ(keyboard.form->translucency().mask, keyboard.form->Picture());
    EXPECT_EQ(keyboard.form->BorderStyle(), BorderStyle::None);
}

TEST_F(KeyboardWindowTest, TheNextKeyboardHasTheSameGround)
{
    open();
    SampleKeyboard next;
    next.form->Show();
    EXPECT_EQ(next.form->Picture(), keyboard.form->Picture());
}

TEST_F(KeyboardWindowTest, ItsGroundFollowsTheColours)
{
    open();
    const PicturePtr before = keyboard.form->Picture();
    coreTheme().SetColours(ColourSet::Dark);
    EXPECT_NE(keyboard.form->Picture(), before);
    EXPECT_EQ(keyboard.form->translucency().mask, keyboard.form->Picture());
}

} // namespace phial::test
