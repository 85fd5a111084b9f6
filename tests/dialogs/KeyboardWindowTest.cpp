#include "dialogs/KeyboardWindow.h"

#include "app/FormTexts.h"
#include "app/Settings.h"
#include "app/cls_Language.h"
#include "app/sys_Global.h"
#include "core/SessionState.h"
#include "headless/Hand.h"
#include "support/AppSession.h"
#include "visual/Label.h"
#include "visual/TextBox.h"
#include "visual/VisualHost.h"
#include "visual/ctl_Label.h"

#include <gmock/gmock-more-matchers.h>

namespace phial::test
{

namespace
{

constexpr ControlDesign SampleControls[] = {
    design<TextBox>(u"txt_Input", {228, 12, 444, 48}).font(20).keyboarded(),
};
constexpr FormDesign SampleDesign{.name = u"frm_Sample",
                                  .caption = u"Tastatur|Keyboard",
                                  .size = {750, 340},
                                  .border = BorderStyle::None,
                                  .isCentred = false,
                                  .controls = SampleControls};

/// A keyboard without keys.
struct SampleKeyboard {
    explicit SampleKeyboard(KeyboardWindow::Leaving leaving = KeyboardWindow::Leaving::Stays)
        : window(form, leaving)
    {
        form.on(form->TRANSLATE, [this] { translate(); });
        form.on(form->Load, [this] {
            window.open();
            translate();
        });
        form.on(window.CONFIRMED, [this] { ++confirmed; });
        form.on(window.DRAGGED, [this] { ++dragged; });
        form.on(window.SCALED, [this] { ++scaled; });
        translateForm(form);
    }
    void translate()
    {
        translateForm(form);
        window.translate();
    }
    template <typename Class>
    std::shared_ptr<Class> get(StringView name)
    {
        return form->control<Class>(name);
    }
    void press(const PointerEvent& event = {}) { window.press(*get<TextBox>(u"txt_Input"), event); }
    void move(const PointerEvent& event) { window.move(*get<TextBox>(u"txt_Input"), event); }
    PixelPoint corner() { return {form->Left() / TwipsPerPixel, form->Top() / TwipsPerPixel}; }

    DesignedForm form{SampleDesign};
    KeyboardWindow window;
    int confirmed = 0;
    int dragged = 0;
    int scaled = 0;
};

class KeyboardWindowTest : public AppSession
{
protected:
    KeyboardWindowTest()
    {
        outside.display().resize(1920, 1080);
        point({960, 540});
        LNG()->CURRENT(ID_Language_German);
    }
    ~KeyboardWindowTest() override { host->discard(); }

    void point(PixelPoint at)
    {
        outside.display().moveCursor(static_cast<int>(at.x), static_cast<int>(at.y));
    }
    /// The pointer goes there and time passes in which the drag is noticed.
    void pointAndWait(PixelPoint at)
    {
        point(at);
        outside.advance(0.02);
    }
    /// A control on a shown form, at that place of the desktop.
    template <typename Class>
    std::shared_ptr<Class> target(const headless::WindowEdges& edges)
    {
        host->Show();
        const auto control = host->add<Class>(u"target");
        outside.windows().place(control->hWnd(), edges);
        return control;
    }
    SampleKeyboard& open()
    {
        keyboard.form->Show();
        return keyboard;
    }
    std::int32_t kept(StringView name)
    {
        const auto value = outside.settings().read(SettingsHive::CurrentUser, settings::path(name));
        return value ? value->toWhole() : -1;
    }

    std::shared_ptr<Form> host = std::make_shared<Form>(u"frm_Host");
    SampleKeyboard keyboard;
};

// What it asks for.

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

// Where it opens.

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

// How it is dragged.

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

// How it looks.

TEST_F(KeyboardWindowTest, HasTheHolesOfItsGround)
{
    open();
    ASSERT_NE(keyboard.form->Picture(), nullptr);
    EXPECT_EQ(keyboard.form->translucency().mask, keyboard.form->Picture());
    EXPECT_EQ(keyboard.form->BorderStyle(), BorderStyle::None);
}

TEST_F(KeyboardWindowTest, ItsGroundFollowsTheColours)
{
    open();
    const PicturePtr before = keyboard.form->Picture();
    coreTheme().SetColours(ColourSet::Dark);
    EXPECT_NE(keyboard.form->Picture(), before);
    EXPECT_EQ(keyboard.form->translucency().mask, keyboard.form->Picture());
}

} // namespace

} // namespace phial::test
