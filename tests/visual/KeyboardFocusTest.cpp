#include "visual/KeyboardFocus.h"

#include "support/Composite.h"
#include "support/PaintedField.h"
#include "visual/FormTest.h"
#include "visual/PictureBox.h"
#include "visual/ctl_CmdBar.h"

namespace phial::test
{

namespace
{

/// A form with a field, a composite and another field.
class CompositeFocus : public FormTest
{
protected:
    void SetUp() override
    {
        logs(before->GotFocus, "before got");
        logs(before->LostFocus, "before lost");
        logs(after->GotFocus, "after got");
        logs(composite->GotFocus, "composite got");
        logs(composite->LostFocus, "composite lost");
        logs(composite->first->GotFocus, "first got");
        logs(composite->first->LostFocus, "first lost");
        logs(composite->second->GotFocus, "second got");
        logs(composite->second->LostFocus, "second lost");
        form->Show();
        log.clear();
    }

    ControlPtr field() const { return form->keyboardFocus()->field(); }

    std::shared_ptr<TextBox> before = form->add<TextBox>(u"txt_Before");
    std::shared_ptr<Composite> composite = form->add<Composite>(u"ctl_Inside");
    std::shared_ptr<TextBox> after = form->add<TextBox>(u"txt_After");
};

TEST_F(CompositeFocus, WhatItHoldsBelongsToItsFormAndStaysUnknownThere)
{
    EXPECT_EQ(composite->first->frame().form(), form);
    EXPECT_EQ(composite->first->frame().Parent(), form);
    EXPECT_EQ(composite->first->frame().ContainerObject(), composite);
    EXPECT_EQ(form->find(u"txt_First"), nullptr);
    EXPECT_EQ(form->controlCount(), 3U);
    composite->Enabled(false);
    EXPECT_FALSE(composite->first->frame().isReachable());
    form->remove(*composite);
    EXPECT_EQ(composite->first->frame().form(), nullptr);
}

TEST_F(CompositeFocus, SetFocusGoesToItsFirstField)
{
    composite->SetFocus();
    EXPECT_EQ(field(), composite->first);
    EXPECT_EQ(form->ActiveControl(), composite);
    EXPECT_TRUE(composite->frame().hasFocus());
    EXPECT_THAT(log, ElementsAre("before lost", "composite got", "first got"));
}

TEST_F(CompositeFocus, BetweenItsFieldsItHearsNothing)
{
    composite->SetFocus();
    log.clear();
    composite->second->SetFocus();
    composite->SetFocus();
    EXPECT_EQ(field(), composite->second) << "the focus is there already";
    EXPECT_THAT(log, ElementsAre("first lost", "second got"));
    log.clear();
    after->SetFocus();
    EXPECT_THAT(log, ElementsAre("second lost", "composite lost", "after got"));
    EXPECT_FALSE(composite->frame().hasFocus());
}

TEST_F(CompositeFocus, TabGoesThroughItsFieldsAtItsPlace)
{
    EXPECT_EQ(form->tabOrder(), (std::vector<ControlPtr>{before, composite->first, composite->second,
                                                         composite->press, after}));
    for (const ControlPtr& expected : form->tabOrder()) {
        EXPECT_EQ(field(), expected);
        headless::tab(*form);
    }
    EXPECT_EQ(field(), before);
    headless::tab(*form, true);
    headless::tab(*form, true);
    EXPECT_EQ(field(), composite->press);
}

TEST_F(CompositeFocus, TabPassesItWhenTheHostSaysSo)
{
    composite->frame().canFocus(true);
    EXPECT_EQ(form->tabOrder().size(), 5U) << "its fields stand for it";
    composite->frame().TabStop(false);
    EXPECT_EQ(form->tabOrder(), (std::vector<ControlPtr>{before, after}));
    composite->SetFocus();
    EXPECT_EQ(field(), composite->first);
}

TEST_F(CompositeFocus, GoesToAFieldThatTabDoesNotReachWhenThereIsNoOther)
{
    composite->first->frame().TabStop(false);
    composite->press->frame().TabStop(false);
    composite->second->Visible(false);
    composite->SetFocus();
    EXPECT_EQ(field(), composite->first);
    composite->first->Enabled(false);
    EXPECT_EQ(field(), nullptr) << "the focus leaves what cannot be reached";
    composite->press->Enabled(false);
    EXPECT_RAISES(composite->SetFocus(), InvalidArgument);
    composite->frame().canFocus(true);
    composite->SetFocus();
    EXPECT_EQ(field(), composite) << "nothing within can take it";
}

TEST_F(CompositeFocus, AHandlerOfTheHolderMayMoveItOn)
{
    connections += composite->GotFocus.connect([&] { composite->second->SetFocus(); });
    composite->SetFocus();
    EXPECT_EQ(field(), composite->second);
    EXPECT_THAT(log, ElementsAre("before lost", "composite got", "second got"));
}

TEST_F(CompositeFocus, KeysReachTheFieldBehindThePreview)
{
    form->KeyPreview(true);
    connections += form->KeyPress.connect(
        [](KeyPressEvent& typed) { typed.KeyAscii = typed.KeyAscii == u'.' ? u',' : typed.KeyAscii; });
    composite->SetFocus();
    headless::type(*form, u"1.5");
    EXPECT_EQ(composite->first->Text(), u"1,5");
}

TEST_F(CompositeFocus, ReturnAndEscapePressTheFormsControlsAndItsOwnButton)
{
    const auto enter = form->add<ctl_Button>(u"but_Enter");
    const auto quit = form->add<ctl_Button>(u"but_Quit");
    form->DefaultControl(enter);
    form->CancelControl(quit);
    logs(enter->CLICK, "enter");
    logs(quit->CLICK, "quit");
    logs(composite->press->CLICK, "press");
    composite->SetFocus();
    log.clear();
    headless::type(*form, u"~{esc}");
    composite->press->SetFocus();
    log.erase(log.begin() + 2, log.end());
    headless::type(*form, u"~");
    EXPECT_THAT(log, ElementsAre("enter", "quit", "press"));
}

TEST_F(CompositeFocus, GoesWithItWhenItIsTakenAway)
{
    composite->second->SetFocus();
    log.clear();
    logs(composite->ENDED, "ended");
    form->remove(*composite);
    EXPECT_EQ(field(), nullptr);
    EXPECT_THAT(log, ElementsAre("second lost", "composite lost", "ended"));
}

TEST_F(CompositeFocus, LeavesAFieldThatTheHolderTakesAway)
{
    composite->second->SetFocus();
    log.clear();
    composite->container()->remove(*composite->second);
    EXPECT_EQ(field(), nullptr);
    EXPECT_THAT(log, ElementsAre("second lost", "composite lost"));
    EXPECT_EQ(composite->second->frame().Parent(), nullptr);
}

TEST_F(CompositeFocus, ComesBackToTheFieldWhenTheFormIsShownAgain)
{
    composite->second->SetFocus();
    form->Hide();
    EXPECT_FALSE(composite->frame().hasFocus());
    log.clear();
    form->Show();
    EXPECT_EQ(field(), composite->second);
    EXPECT_THAT(log, ElementsAre("composite got", "second got"));
}

TEST_F(CompositeFocus, AContainerOfTheFormHearsNothingOfControlsInIt)
{
    const auto holder = form->add<PictureBox>(u"pic_Holder");
    const auto box = form->add<TextBox>(u"txt_Inner", holder->container());
    logs(holder->GotFocus, "holder got");
    box->SetFocus();
    EXPECT_EQ(form->ActiveControl(), box);
    EXPECT_FALSE(holder->frame().hasFocus());
    EXPECT_THAT(log, ElementsAre("before lost"));
}

TEST_F(CompositeFocus, CompositesWithinCompositesHearInOrder)
{
    const auto outer = form->add<Composite>(u"ctl_Outer");
    const auto inner = makeNamed<Composite>(u"ctl_Inner");
    outer->container()->add(inner);
    logs(outer->GotFocus, "outer got");
    logs(outer->LostFocus, "outer lost");
    logs(inner->GotFocus, "inner got");
    logs(inner->LostFocus, "inner lost");
    logs(inner->ENDED, "inner ended");
    logs(outer->ENDED, "outer ended");
    inner->SetFocus();
    EXPECT_EQ(form->ActiveControl(), outer);
    EXPECT_EQ(form->tabOrder()[5], inner->first) << "its index comes before those of the holder's own";
    before->SetFocus();
    form->remove(*outer);
    EXPECT_THAT(log, ElementsAre("before lost", "outer got", "inner got", "inner lost", "outer lost",
                                 "before got", "inner ended", "outer ended"));
}

class FieldsWithABar : public FormTest
{
protected:
    void SetUp() override
    {
        box->Text(u"Wasser");
        form->Show();
        box->SelStart(2);
        box->SelLength(3);
        bar->BUTTONS()->Add(u"B", u"B");
    }

    std::shared_ptr<TextBox> box = form->add<TextBox>(u"txt_Input");
    std::shared_ptr<TextBox> other = form->add<TextBox>(u"txt_Other");
    std::shared_ptr<ctl_CmdBar> bar = form->add<ctl_CmdBar>(u"bar_Format");
};

TEST_F(FieldsWithABar, AFieldKeepsItsSelectionWhileTheFocusIsElsewhere)
{
    other->SetFocus();
    headless::clickButton(*bar, u"b");
    EXPECT_EQ(form->ActiveControl(), bar);
    EXPECT_EQ(box->SelText(), u"sse");
    box->SelText(u"<b>sse</b>");
    box->SetFocus();
    EXPECT_EQ(box->Text(), u"Wa<b>sse</b>r");
}

TEST_F(FieldsWithABar, ABarThatTakesNoFocusLeavesItInTheField)
{
    bar->frame().canFocus(false);
    int presses = 0;
    connections += bar->BUTTON.connect([&](std::int32_t, const String&) { ++presses; });
    headless::clickButton(*bar, u"B");
    EXPECT_EQ(form->ActiveControl(), box);
    EXPECT_EQ(presses, 1);
    EXPECT_EQ(form->tabOrder(), (std::vector<ControlPtr>{box, other}));
}

TEST_F(FieldsWithABar, PreparingSelectsAllOncePerFocus)
{
    outside.textBoxes().Prepare(*box);
    EXPECT_EQ(box->SelText(), u"Wasser");
    box->inputText(u"Wasser", 4, 0); // a press
    outside.textBoxes().Prepare(*box);
    EXPECT_EQ(box->SelStart(), 4);
    EXPECT_EQ(box->SelLength(), 0);
    outside.textBoxes().Prepare(*other);
    EXPECT_EQ(form->ActiveControl(), other);
    outside.textBoxes().Prepare(*box);
    EXPECT_EQ(form->ActiveControl(), box);
    EXPECT_EQ(box->SelText(), u"Wasser");
}

TEST_F(FieldsWithABar, KeysForAFormGoThereAndNowhereElse)
{
    const auto front = std::make_shared<Form>(u"frm_Front");
    const auto inFront = front->add<TextBox>(u"txt_Front");
    front->Show();
    EXPECT_EQ(visualHost().forms().ActiveForm(), front);
    SendKeys(u"H2", form);
    SendKeys(u"x");
    outside.runPending();
    EXPECT_EQ(box->Text(), u"WaH2r");
    EXPECT_EQ(inFront->Text(), u"x");
    connections += inFront->KeyPress.connect([&](KeyPressEvent&) { front->Hide(); });
    SendKeys(u"yz", front);
    outside.runPending();
    EXPECT_EQ(inFront->Text(), u"x") << "the form has gone";
    EXPECT_EQ(box->Text(), u"WaH2r");
    SendKeys(u"x", front);
    front->discard();
    outside.runPending();
    EXPECT_EQ(box->Text(), u"WaH2r");
}

TEST_F(FieldsWithABar, WhatIsBeingComposedGoesInBeforeTheKeys)
{
    PaintedField painted(form->add<PictureBox>(u"pic_Field"));
    painted.box().SetFocus();
    headless::compose(*form, u"^");
    SendKeys(u"2", form);
    outside.runPending();
    EXPECT_EQ(painted.text(), u"^2");
}

} // namespace

} // namespace phial::test
