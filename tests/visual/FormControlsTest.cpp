#include "core/Variant.h"
#include "visual/Controls.h"
#include "visual/FormDesign.h"
#include "visual/FormTest.h"
#include "visual/ImageList.h"
#include "visual/PictureBox.h"
#include "visual/Typing.h"
#include "visual/ctl_Frame.h"

namespace phial::test
{

namespace
{

using FormControls = FormTest;
using FormFocus = FormTest;
using FormKeys = FormTest;
using FormGeometry = FormTest;

constexpr ControlDesign ControlRows[] = {
    design<ctl_Frame>(u"ctl_Frame1", {120, 240, 3000, 1500}, u"Rahmen|Frame"),
    design<TextBox>(u"txt_Input", {60, 90, 1500, 300}, u"leer|empty").inside(u"ctl_Frame1"),
    design<Label>(u"lab_Key", {0, 0, 720, 720}).at(0),
    design<Label>(u"lab_Key", {720, 0, 720, 720}).at(1).hidden(),
};

TEST_F(FormControls, AreCountedFromZeroAndFoundByNameAndIndex)
{
    addControls(*form, ControlRows);
    EXPECT_EQ(form->controlCount(), 4U);
    EXPECT_EQ(form->controlAt(1), form->find(u"TXT_INPUT"));
    EXPECT_EQ(form->control<Label>(u"lab_Key", 1)->Left(), 720);
    EXPECT_EQ(form->find(u"lab_Key"), nullptr) << "elements of an array need their index";
    EXPECT_RAISES(form->control<TextBox>(u"lab_Key", 0), NoSuchMember);
    EXPECT_EQ(describedBy([&] { form->control<TextBox>(u"txt_None"); }),
              u"No such member: txt_None of frm_Test");
    EXPECT_RAISES(form->controlAt(4), IndexOutOfBounds);
}

TEST_F(FormControls, OfOneNameAreRefusedWithoutAnIndex)
{
    form->add<Label>(u"lab_Title");
    EXPECT_RAISES(form->add<TextBox>(u"LAB_TITLE"), InvalidArgument);
    EXPECT_EQ(form->controlCount(), 1U);
    EXPECT_NE(describedBy([&] { form->add<Label>(u"lab_Title"); }).find(u"lab_Title"), String::npos);
}

TEST_F(FormControls, AFormThatNoPointerHoldsSaysHowItIsMade)
{
    Form onTheStack(u"frm_Stack");
    EXPECT_RAISES(onTheStack.Show(), ObjectNotSet);
    EXPECT_RAISES(onTheStack.add<Label>(u"lab_Title"), ObjectNotSet);
    EXPECT_NE(describedBy([&] { onTheStack.Show(); }).find(u"make_shared"), String::npos);
}

TEST_F(FormControls, EntriesOfTheMenuBarFollowTheControls)
{
    addControls(*form, ControlRows);
    const auto file = form->menu().add(u"mnu_File", u"Datei|File");
    const auto recent = file->add(u"mnu_FileRecent", u"", 0);
    const auto help = form->menu().add(u"mnu_Help", u"Hilfe|Help");
    EXPECT_EQ(form->controlCount(), 7U);
    EXPECT_EQ(form->controlAt(4), file);
    EXPECT_EQ(form->controlAt(5), recent) << "what a menu holds stands before the next menu";
    EXPECT_EQ(form->controlAt(6), help);
    EXPECT_RAISES(form->controlAt(7), IndexOutOfBounds);
    EXPECT_EQ(form->control<Menu>(u"mnu_FileRecent", 0), recent);
}

TEST_F(FormControls, DesignSetsTextsPlacesContainersAndVisibility)
{
    addControls(*form, ControlRows);
    const auto box = form->control<TextBox>(u"txt_Input");
    EXPECT_EQ(box->Text(), u"leer|empty");
    EXPECT_EQ(box->Left(), 60);
    EXPECT_EQ(box->frame().ContainerObject(), form->find(u"ctl_Frame1"));
    EXPECT_EQ(box->frame().form(), form);
    EXPECT_EQ(form->control<ctl_Frame>(u"ctl_Frame1")->Caption(), u"Rahmen|Frame");
    EXPECT_FALSE(form->control<Label>(u"lab_Key", 1)->Visible());
}

TEST_F(FormControls, DesignRefusesAContainerThatIsNotThere)
{
    const ControlDesign lost = design<Label>(u"lab_Lost", {0, 0, 1, 1}).inside(u"ctl_None");
    EXPECT_RAISES(addControls(*form, std::span(&lost, 1)), NoSuchMember);
}

TEST_F(FormControls, AreReachedByMemberNamesOfTheForm)
{
    addControls(*form, ControlRows);
    const auto controls = getMember(*form, u"CONTROLS").object();
    EXPECT_EQ(getMember(*controls, u"count").toWhole(), 4);
    const Variant second[] = {Variant(1)};
    EXPECT_EQ(callMember(*controls, u"Item", second).object(), form->find(u"txt_Input"));
    const auto box = form->control<TextBox>(u"txt_Input");
    EXPECT_EQ(getMember(*box, u"Parent").object(), form);
}

TEST_F(FormControls, ControlsObjectOutlivesTheForm)
{
    ObjectPtr controls;
    {
        const auto gone = std::make_shared<Form>(u"frm_Gone");
        gone->add<Label>(u"lab_One");
        controls = gone->Controls();
    }
    EXPECT_EQ(getMember(*controls, u"Count").toWhole(), 0);
    const Variant first[] = {Variant(0)};
    EXPECT_RAISES(callMember(*controls, u"Item", first), ObjectNotSet);
}

TEST_F(FormControls, ComponentsWithoutAPlaceAreListedToo)
{
    const auto images = std::make_shared<ImageList>(u"img_Avatars");
    form->addComponent(images);
    EXPECT_EQ(form->control<ImageList>(u"img_avatars"), images);
}

TEST_F(FormControls, RemovedControlBelongsToNothing)
{
    const auto label = form->add<Label>(u"lab_One");
    form->remove(*label);
    EXPECT_EQ(form->controlCount(), 0U);
    EXPECT_EQ(label->frame().Parent(), nullptr);
    EXPECT_EQ(label->frame().container(), nullptr);
}

TEST_F(FormControls, OrderFromBackToFrontFollowsZOrder)
{
    const auto first = form->add<Label>(u"lab_1");
    const auto second = form->add<Label>(u"lab_2");
    const auto third = form->add<Label>(u"lab_3");
    first->frame().ZOrder();
    third->frame().ZOrder(1);
    EXPECT_THAT(form->container().controls(), ElementsAre(third, second, first));
    EXPECT_EQ(form->controlAt(0), first) << "the order of adding stays";
}

TEST_F(FormGeometry, PlacesAreKeptInTheUnitInWhichTheyAreSet)
{
    const auto label = form->add<Label>(u"lab_One");
    label->Move(120, 100, 3000, 305);
    EXPECT_EQ(label->frame().pixelRectangle(), (PixelRectangle{8, 100 / 15.0, 200, 305 / 15.0}));
    EXPECT_EQ(label->Top(), 100);
    form->ScaleMode(ScaleUnit::Pixels);
    EXPECT_EQ(label->Width(), 200);
    EXPECT_EQ(label->Left(), 8);
    EXPECT_RAISES(label->Width(-1), InvalidArgument);
}

TEST_F(FormGeometry, ContainersHaveUnitsOfTheirOwn)
{
    const auto holder = form->add<PictureBox>(u"pic_Holder");
    holder->Move(1500, 1500, 3000, 3000);
    holder->ScaleMode(ScaleUnit::Pixels);
    const auto inner = form->add<Label>(u"lab_Inner", holder->container());
    inner->Move(10, 20, 30, 40);
    EXPECT_EQ(inner->frame().originOnForm(), (PixelPoint{110, 120}));
    EXPECT_EQ(getMember(*inner, u"Container").object(), holder);
}

TEST_F(FormGeometry, InsideIsTheWindowWithoutItsDecoration)
{
    form->Move(0, 0, 4500, 3000);
    EXPECT_EQ(form->ScaleWidth(), 4500);
    form->decoration({2, 30});
    EXPECT_EQ(form->ScaleHeight(), 3000);
    EXPECT_EQ(form->Height(), 3450);
    form->ScaleMode(ScaleUnit::Pixels);
    form->innerSize({100, 50});
    EXPECT_EQ(form->ScaleWidth(), 100);
    EXPECT_EQ(form->Width(), 1530);
}

TEST_F(FormGeometry, ResizeIsRaisedWhenTheSizeChangesOnly)
{
    logs(form->Resize, "resize");
    form->Move(10, 10);
    form->Width(9000);
    form->inputGeometry(20, 20, 9000, 3600);
    form->inputGeometry(20, 20, 9000, 4000);
    EXPECT_THAT(log, ElementsAre("resize", "resize"));
}

TEST_F(FormFocus, GoesToTheFirstInTabOrderWhenTheFormIsShown)
{
    const auto late = form->add<TextBox>(u"txt_Late");
    const auto early = form->add<TextBox>(u"txt_Early");
    late->frame().TabIndex(5);
    logs(early->GotFocus, "early");
    form->Show();
    EXPECT_EQ(form->ActiveControl(), early);
    EXPECT_THAT(log, ElementsAre("early"));
}

TEST_F(FormFocus, SetFocusTellsBothBeforeItReturns)
{
    const auto first = form->add<TextBox>(u"txt_1");
    const auto second = form->add<TextBox>(u"txt_2");
    form->Show();
    logs(first->LostFocus, "first lost");
    logs(second->GotFocus, "second got");
    second->SetFocus();
    second->SetFocus();
    form->inputFocus(second);
    EXPECT_THAT(log, ElementsAre("first lost", "second got"));
    EXPECT_TRUE(second->frame().hasFocus());
}

TEST_F(FormFocus, AHandlerMayMoveItOn)
{
    const auto first = form->add<TextBox>(u"txt_1");
    const auto second = form->add<TextBox>(u"txt_2");
    const auto third = form->add<TextBox>(u"txt_3");
    form->Show();
    connections += first->LostFocus.connect([&] { third->SetFocus(); });
    logs(second->GotFocus, "second got");
    logs(third->GotFocus, "third got");
    second->SetFocus();
    EXPECT_EQ(form->ActiveControl(), third);
    EXPECT_THAT(log, ElementsAre("third got"));
}

TEST_F(FormFocus, CannotGoWhereItCannotBeReached)
{
    const auto holder = form->add<PictureBox>(u"pic_Holder");
    const auto box = form->add<TextBox>(u"txt_Inner", holder->container());
    const auto label = form->add<Label>(u"lab_One");
    holder->Visible(false);
    EXPECT_RAISES(box->SetFocus(), InvalidArgument);
    EXPECT_RAISES(label->SetFocus(), InvalidArgument);
    EXPECT_RAISES(std::make_shared<TextBox>()->SetFocus(), InvalidArgument);
}

TEST_F(FormFocus, LeavesAControlThatIsHiddenOrDisabled)
{
    const auto holder = form->add<PictureBox>(u"pic_Holder");
    const auto box = form->add<TextBox>(u"txt_Inner", holder->container());
    form->Show();
    box->SetFocus();
    logs(box->LostFocus, "lost");
    holder->Enabled(false);
    EXPECT_THAT(log, ElementsAre("lost"));
    EXPECT_EQ(form->ActiveControl(), nullptr);
}

TEST_F(FormFocus, TabGoesRoundTheReachableControls)
{
    const auto first = form->add<TextBox>(u"txt_1");
    const auto hidden = form->add<TextBox>(u"txt_2");
    const auto last = form->add<ctl_Button>(u"but_3");
    hidden->Visible(false);
    form->Show();
    headless::tab(*form);
    EXPECT_EQ(form->ActiveControl(), last);
    headless::tab(*form);
    EXPECT_EQ(form->ActiveControl(), first);
    headless::tab(*form, true);
    EXPECT_EQ(form->ActiveControl(), last);
}

TEST_F(FormKeys, ReturnAndEscapePressTheDefaultAndTheCancelControl)
{
    const auto box = form->add<TextBox>(u"txt_Input");
    const auto enter = form->add<ctl_Button>(u"but_Enter");
    const auto quit = form->add<ctl_Button>(u"but_Quit");
    form->DefaultControl(enter);
    form->CancelControl(quit);
    logs(enter->CLICK, "enter");
    logs(quit->CLICK, "quit");
    form->Show();
    box->SetFocus();
    headless::type(*form, u"~{esc}");
    quit->SetFocus();
    headless::type(*form, u"~");
    EXPECT_THAT(log, ElementsAre("enter", "quit", "quit")) << "a button with the focus takes Return itself";
}

TEST_F(FormKeys, HeldReturnAndEscapePressOnceAndTheirRepeatsAreNotHeard)
{
    form->add<TextBox>(u"txt_Input");
    const auto enter = form->add<ctl_Button>(u"but_Enter");
    form->DefaultControl(enter);
    logs(enter->CLICK, "enter");
    form->KeyPreview(true);
    connections += form->KeyDown.connect([this](KeyEvent& key) {
        log.push_back(std::string(key.isRepeat ? "again " : "") + std::to_string(key.KeyCode));
    });
    form->Show();
    headless::hold(*form, {0, Key::Return, 0});
    EXPECT_THAT(log, ElementsAre("13", "enter"));
    log.clear();
    headless::press(*form, {0, Key::Escape, 0}, headless::KeyDown::Repeat); // went down in another window
    EXPECT_THAT(log, IsEmpty());
    headless::hold(*form, {0, Key::Left, 0});
    EXPECT_THAT(log, ElementsAre("37", "again 37", "again 37", "again 37", "again 37"));
}

TEST_F(FormKeys, AFieldOfSeveralLinesHearsTheRepeatsOfReturn)
{
    const auto box = form->add<TextBox>(u"txt_Input");
    box->MultiLine(true);
    form->Show();
    headless::hold(*form, {0, Key::Return, 0});
    EXPECT_EQ(box->Text(), u"\r\n\r\n\r\n\r\n\r\n");
}

TEST_F(FormKeys, AFieldOfSeveralLinesKeepsReturn)
{
    const auto box = form->add<TextBox>(u"txt_Input");
    const auto enter = form->add<ctl_Button>(u"but_Enter");
    box->MultiLine(true);
    form->DefaultControl(enter);
    logs(enter->CLICK, "enter");
    form->Show();
    headless::type(*form, u"a~b");
    EXPECT_EQ(box->Text(), u"a\r\nb");
    EXPECT_THAT(log, IsEmpty());
}

TEST_F(FormKeys, AFieldOfSeveralLinesGivesReturnToTheDefaultControlWhereItSaysSo)
{
    const auto box = form->add<TextBox>(u"txt_Input");
    const auto enter = form->add<ctl_Button>(u"but_Enter");
    box->MultiLine(true);
    EXPECT_TRUE(box->AcceptsReturn());
    EXPECT_TRUE(trySet(*box, u"AcceptsReturn", Variant(false)));
    logs(enter->CLICK, "enter");
    form->Show();
    headless::type(*form, u"a~b");
    EXPECT_EQ(box->Text(), u"a\r\nb") << "there is no default control";
    form->DefaultControl(enter);
    headless::type(*form, u"~c^~d");
    EXPECT_EQ(box->Text(), u"a\r\nbc\r\nd");
    EXPECT_THAT(log, ElementsAre("enter"));
}

TEST_F(FormKeys, PreviewHearsKeysFirstAndCanSwallowThem)
{
    const auto box = form->add<TextBox>(u"txt_Input");
    form->KeyPreview(true);
    connections += form->KeyPress.connect([](KeyPressEvent& typed) {
        typed.KeyAscii = typed.KeyAscii == u'.' ? u',' : typed.KeyAscii == u'x' ? u'\0' : typed.KeyAscii;
    });
    connections += form->KeyDown.connect([this](KeyEvent& key) {
        log.push_back("form " + std::to_string(key.KeyCode));
        key.KeyCode = key.KeyCode == u'Q' ? 0 : key.KeyCode;
    });
    connections +=
        box->KeyDown.connect([this](KeyEvent& key) { log.push_back("box " + std::to_string(key.KeyCode)); });
    form->Show();
    headless::type(*form, u"1.xq");
    EXPECT_EQ(box->Text(), u"1,");
    const std::string point = std::to_string(keyCodeOf(u'.'));
    EXPECT_THAT(log, ElementsAre("form 49", "box 49", "form " + point, "box " + point, "form 88", "box 88",
                                 "form 81"));
}

TEST_F(FormKeys, SentKeysArriveBehindTheHandler)
{
    const auto box = form->add<TextBox>(u"txt_Input");
    form->Show();
    SendKeys(u"+h2{+}{left}{bs}O");
    EXPECT_EQ(box->Text(), u"");
    outside.runPending();
    EXPECT_EQ(box->Text(), u"HO+");
    EXPECT_RAISES(SendKeys(u"a{"), InvalidArgument);
}

} // namespace

} // namespace phial::test
