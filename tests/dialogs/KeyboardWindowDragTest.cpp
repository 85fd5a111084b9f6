#include "dialogs/KeyboardWindowTest.h"
#include "visual/ctl_Label.h"

namespace phial::test
{

TEST_F(KeyboardWindowTest, TenPixelsAreNoDrag)
{
    open();
    keyboard.press();
    pointAndWait({970, 530});
    EXPECT_EQ(keyboard.dragged, 0);
    EXPECT_EQ(keyboard.corner(), (PixelPoint{585, 370}));
}

TEST_F(KeyboardWindowTest, ElevenPixelsAreADrag)
{
    open();
    keyboard.press();
    pointAndWait({971, 540});
    EXPECT_EQ(keyboard.dragged, 1);
    EXPECT_EQ(keyboard.corner(), (PixelPoint{585, 370})) << "it counts from where the drag begins";
    pointAndWait({981, 545});
    EXPECT_EQ(keyboard.corner(), (PixelPoint{595, 375}));
    EXPECT_EQ(keyboard.dragged, 1);
}

TEST_F(KeyboardWindowTest, SnapsToTheEdgesOfTheScreen)
{
    open();
    keyboard.press();
    pointAndWait({900, 540});
    pointAndWait({900 - 556, 540 - 341});
    EXPECT_EQ(keyboard.corner(), (PixelPoint{0, 0}));
    pointAndWait({900 - 555, 540 - 340});
    EXPECT_EQ(keyboard.corner(), (PixelPoint{30, 30}));
    pointAndWait({900 + 556, 540 + 341});
    EXPECT_EQ(keyboard.corner(), (PixelPoint{1170, 740}));
}

TEST_F(KeyboardWindowTest, IsDraggedToAnotherScreen)
{
    outside.visual().addScreen({1920, 0, 1024, 600});
    open();
    keyboard.press();
    pointAndWait({900, 540});
    pointAndWait({2440, 300});
    EXPECT_EQ(keyboard.corner(), (PixelPoint{585 + 1540, 370 - 240}));
}

TEST_F(KeyboardWindowTest, ShrinksWhenItIsLeftOnASmallerScreen)
{
    outside.visual().addScreen({1920, 0, 600, 480});
    keyboard.window.title(u"Wie heißt die Verbindung, die in der Probe enthalten ist?");
    open();
    const String whole = keyboard.get<ctl_Label>(u"lab_Title")->Caption();
    keyboard.press();
    pointAndWait({900, 540});
    pointAndWait({2300, 300});
    EXPECT_DOUBLE_EQ(keyboard.window.scale(), 1) << "not before it is let go";
    keyboard.window.release();
    EXPECT_DOUBLE_EQ(keyboard.window.scale(), 0.8);
    EXPECT_EQ(keyboard.form->innerSize(), (PixelSize{600, 272}));
    EXPECT_EQ(keyboard.scaled, 1);
    EXPECT_EQ(keyboard.corner(), (PixelPoint{1920, 172})) << "wholly on that screen";
    EXPECT_EQ(kept(u"Config\\KeyboardPlace\\Left"), 1920);
    EXPECT_EQ(keyboard.form->Picture()->size(), (PixelSize{600, 272}));
    EXPECT_DOUBLE_EQ(keyboard.get<TextBox>(u"txt_Input")->Font()->Size(), 16);
    keyboard.press();
    pointAndWait({2200, 300});
    pointAndWait({960, 540});
    keyboard.window.release();
    EXPECT_DOUBLE_EQ(keyboard.window.scale(), 1);
    EXPECT_EQ(keyboard.form->innerSize(), (PixelSize{750, 340}));
    EXPECT_EQ(keyboard.get<TextBox>(u"txt_Input")->frame().pixelRectangle(),
              (PixelRectangle{228, 12, 444, 48}));
    EXPECT_DOUBLE_EQ(keyboard.get<TextBox>(u"txt_Input")->Font()->Size(), 20);
    EXPECT_EQ(keyboard.get<ctl_Label>(u"lab_Title")->Caption(), whole);
}

TEST_F(KeyboardWindowTest, KeepsUnderThePointerWhatWasTakenHoldOf)
{
    outside.visual().addScreen({1920, 0, 1920, 2000});
    outside.visual().millimetresPerPixel(0.15);
    host->Zoom(1.6);
    host->Show();
    open();
    EXPECT_DOUBLE_EQ(keyboard.window.scale(), 540.0 / 340);
    const PixelPoint before = keyboard.corner();
    keyboard.press();
    pointAndWait({1000, 540});
    pointAndWait({2620, 1000});
    EXPECT_EQ(keyboard.corner(), (PixelPoint{before.x + 1620, before.y + 460}));
    keyboard.window.release();
    EXPECT_DOUBLE_EQ(keyboard.window.scale(), 1.6);
    const double growth = 1.6 * 340 / 540;
    EXPECT_NEAR(keyboard.corner().x, 2620 - (1000 - before.x) * growth, 0.1);
    EXPECT_NEAR(keyboard.corner().y, 1000 - (540 - before.y) * growth, 0.1);
}

TEST_F(KeyboardWindowTest, KeepsItsSizeWhereTheScreenGivesNoReason)
{
    outside.visual().addScreen({1920, 0, 1024, 600});
    open();
    keyboard.press();
    pointAndWait({900, 540});
    pointAndWait({2440, 300});
    keyboard.window.release();
    EXPECT_EQ(keyboard.scaled, 0);
    EXPECT_EQ(keyboard.corner(), (PixelPoint{585 + 1540, 370 - 240}));
}

TEST_F(KeyboardWindowTest, OpensInTheSameSizeAgain)
{
    outside.display().resize(600, 480);
    open();
    keyboard.form->Unload();
    open();
    EXPECT_EQ(keyboard.form->innerSize(), (PixelSize{600, 272}));
    EXPECT_DOUBLE_EQ(keyboard.get<TextBox>(u"txt_Input")->Font()->Size(), 16);
}

TEST_F(KeyboardWindowTest, AFurtherPressDuringADragDoesNothing)
{
    open();
    keyboard.press();
    pointAndWait({900, 540});
    keyboard.press({PointerButton::Left, 0, 10, 10, 2});
    EXPECT_EQ(keyboard.dragged, 2) << "whoever hears of it cancels it";
    keyboard.move({PointerButton::Left, 0, 300, 10, 2});
    pointAndWait({880, 540});
    keyboard.window.release(2);
    EXPECT_TRUE(keyboard.window.isDragged());
    pointAndWait({860, 520});
    EXPECT_EQ(keyboard.corner(), (PixelPoint{545, 350}));
    EXPECT_EQ(keyboard.dragged, 2);
    keyboard.window.release();
    EXPECT_FALSE(keyboard.window.isDragged());
}

TEST_F(KeyboardWindowTest, AFingerThatDragsIsFollowedWhereverThePointerIs)
{
    open();
    const auto at = [](double x, double y) { return PointerEvent{PointerButton::Left, 0, x, y, 3}; };
    keyboard.press(at(100, 20));
    keyboard.move(at(100, 31));
    pointAndWait({100, 100});
    EXPECT_EQ(keyboard.dragged, 1);
    keyboard.move(at(150, 31));
    keyboard.move({PointerButton::Left, 0, 1, 1, 2});
    pointAndWait({200, 200});
    EXPECT_EQ(keyboard.corner(), (PixelPoint{635, 370}));
    keyboard.window.release(3);
    keyboard.press();
    pointAndWait({189, 200});
    EXPECT_EQ(keyboard.dragged, 2) << "the pointer counts again";
}

TEST_F(KeyboardWindowTest, LettingGoEndsTheDrag)
{
    open();
    const auto dragging = keyboard.form->control<Timer>(u"tmr_Dragging");
    keyboard.press();
    EXPECT_TRUE(dragging->Enabled());
    pointAndWait({900, 540});
    keyboard.window.release();
    EXPECT_FALSE(dragging->Enabled());
    pointAndWait({300, 300});
    EXPECT_EQ(keyboard.corner(), (PixelPoint{585, 370}));
    keyboard.press();
    pointAndWait({305, 305});
    EXPECT_EQ(keyboard.dragged, 1) << "a further press begins anew";
}

TEST_F(KeyboardWindowTest, PlateAndWordsDragIt)
{
    keyboard.window.title(u"Titel");
    open();
    const auto dragging = keyboard.form->control<Timer>(u"tmr_Dragging");
    keyboard.form->inputPointerDown({});
    EXPECT_TRUE(dragging->Enabled());
    keyboard.form->inputPointerUp({});
    EXPECT_FALSE(dragging->Enabled());
    for (const StringView words : {u"lab_Title", u"lab_Description"}) {
        keyboard.get<ctl_Label>(words)->pointerDown({});
        EXPECT_TRUE(dragging->Enabled());
        keyboard.get<ctl_Label>(words)->pointerUp({});
        EXPECT_FALSE(dragging->Enabled());
    }
}

TEST_F(KeyboardWindowTest, LeavingItEndsTheDrag)
{
    open();
    keyboard.press();
    keyboard.form->inputDeactivate();
    EXPECT_FALSE(keyboard.form->control<Timer>(u"tmr_Dragging")->Enabled());
}

TEST_F(KeyboardWindowTest, IsNotDraggedWhereThePointerIsNotTold)
{
    outside.display().tellsCursor(false);
    open();
    const PixelPoint corner = keyboard.corner();
    keyboard.press();
    pointAndWait({100, 100});
    keyboard.window.release();
    EXPECT_EQ(keyboard.corner(), corner);
    EXPECT_EQ(keyboard.dragged, 0);
}

} // namespace phial::test
