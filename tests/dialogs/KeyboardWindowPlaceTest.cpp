#include "dialogs/KeyboardWindowTest.h"
#include "visual/Label.h"
#include "visual/ctl_Label.h"

namespace phial::test
{

TEST_F(KeyboardWindowTest, OpensAroundThePointer)
{
    EXPECT_EQ(open().corner(), (PixelPoint{585, 370}));
}

TEST_F(KeyboardWindowTest, OpensUnderItsTarget)
{
    keyboard.window.target(target<TextBox>({800, 100, 1000, 140}));
    EXPECT_EQ(open().corner(), (PixelPoint{525, 140}));
}

TEST_F(KeyboardWindowTest, OpensUnderALabelWithoutAWindow)
{
    host->ScaleMode(ScaleUnit::Pixels);
    const auto label = target<Label>({});
    label->Move(100, 60, 200, 30);
    outside.windows().place(host->hWnd(), {700, 50, 1500, 650});
    keyboard.window.target(label);
    EXPECT_EQ(open().corner(), (PixelPoint{525, 140}));
}

TEST_F(KeyboardWindowTest, OpensUnderALabelWithoutAWindowOnAZoomedForm)
{
    host->ScaleMode(ScaleUnit::Pixels);
    host->Zoom(1.5);
    const auto label = target<Label>({});
    label->Move(100, 60, 200, 30);
    outside.windows().place(host->hWnd(), {700, 50, 1500, 650});
    keyboard.window.target(label);
    EXPECT_EQ(open().corner(), (PixelPoint{1000 - 1.5 * 375, 185}));
}

TEST_F(KeyboardWindowTest, ATargetThatIsNotToBeSeenCountsAsThePointer)
{
    const auto box = target<TextBox>({800, 100, 1000, 140});
    box->Visible(false);
    keyboard.window.target(box);
    EXPECT_EQ(open().corner(), (PixelPoint{585, 370}));
}

TEST_F(KeyboardWindowTest, ATargetOnAHiddenFormCountsAsThePointer)
{
    keyboard.window.target(target<TextBox>({800, 100, 1000, 140}));
    host->Hide();
    EXPECT_EQ(open().corner(), (PixelPoint{585, 370}));
}

TEST_F(KeyboardWindowTest, OpensInTheMiddleOfTheScreenBelowWhereThePointerIsNotTold)
{
    outside.visual().addScreen({1920, 0, 1024, 768});
    host->Move(2000 * TwipsPerPixel, 100 * TwipsPerPixel, 4500, 3000);
    host->Show();
    outside.display().tellsCursor(false);
    EXPECT_EQ(open().corner(), (PixelPoint{1920 + 137, 214}));
}

TEST_F(KeyboardWindowTest, OpensOnTheScreenOfItsTarget)
{
    outside.visual().addScreen({1920, 0, 1024, 600});
    keyboard.window.target(target<TextBox>({2800, 100, 2940, 140}));
    EXPECT_EQ(open().corner(), (PixelPoint{2164, 140}));
}

TEST_F(KeyboardWindowTest, OpensWhereTheLastOneWasLeft)
{
    open();
    keyboard.press();
    pointAndWait({900, 540});
    pointAndWait({800, 440});
    keyboard.window.release();
    keyboard.window.abortAtOnce();
    point({10, 10});
    SampleKeyboard next;
    next.form->Show();
    EXPECT_EQ(next.corner(), (PixelPoint{485, 270}));
    EXPECT_EQ(kept(u"Config\\KeyboardPlace\\Left"), 485);
    EXPECT_EQ(kept(u"Config\\KeyboardPlace\\Top"), 270);
}

TEST_F(KeyboardWindowTest, KeepsNoPlaceWithoutADrag)
{
    open();
    keyboard.press();
    pointAndWait({970, 550});
    keyboard.window.release();
    EXPECT_EQ(kept(u"Config\\KeyboardPlace\\Left"), -1);
}

// How large it is.

TEST_F(KeyboardWindowTest, GrowsToKeysOfNineMillimetres)
{
    outside.visual().millimetresPerPixel(0.125);
    open();
    EXPECT_DOUBLE_EQ(keyboard.window.scale(), 1.5);
    EXPECT_EQ(keyboard.form->innerSize(), (PixelSize{1125, 510}));
    const auto input = keyboard.get<TextBox>(u"txt_Input");
    EXPECT_EQ(input->frame().pixelRectangle(), (PixelRectangle{342, 18, 666, 72}));
    EXPECT_DOUBLE_EQ(input->Font()->Size(), 30);
    EXPECT_DOUBLE_EQ(keyboard.get<ctl_Label>(u"lab_Title")->Font()->Size(), 18);
    EXPECT_EQ(keyboard.form->Picture()->size(), (PixelSize{1125, 510}));
}

TEST_F(KeyboardWindowTest, GrowsWithTheFormBelow)
{
    host->Zoom(1.25);
    host->Show();
    open();
    EXPECT_DOUBLE_EQ(keyboard.window.scale(), 1.25);
    EXPECT_DOUBLE_EQ(keyboard.form->Zoom(), 1);
}

TEST_F(KeyboardWindowTest, ShrinksToASmallScreen)
{
    outside.display().resize(600, 480);
    open();
    EXPECT_DOUBLE_EQ(keyboard.window.scale(), 0.8);
    EXPECT_EQ(keyboard.form->innerSize(), (PixelSize{600, 272}));
    EXPECT_DOUBLE_EQ(keyboard.form->Left(), 0);
}

} // namespace phial::test
