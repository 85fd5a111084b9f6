#include "core/RuntimeError.h"
#include "dialogs/QVInputTest.h"
#include "dialogs/TargetPlace.h"
#include "dialogs/TargetText.h"
#include "visual/ctl_Button.h"
#include "visual/ctl_Label.h"

#include <gmock/gmock-more-matchers.h>

namespace phial::test
{

namespace
{

using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST_F(QVInput, FocusSelectsEverything)
{
    control->VALUE(123);
    control->SetFocus();
    EXPECT_TRUE(field().frame().hasFocus());
    EXPECT_EQ(form->ActiveControl(), control);
    EXPECT_EQ(field().SelText(), u"123");
    headless::type(*form, u"7");
    EXPECT_EQ(shown(), u"7");
}

TEST_F(QVInput, TellsAChangeWhenItIsLeft)
{
    enter(u"12,6");
    EXPECT_THAT(changes, IsEmpty());
    leave();
    EXPECT_THAT(changes, ElementsAre(Variant(13.0)));
    control->SetFocus();
    leave();
    EXPECT_EQ(changes.size(), 1U);
}

TEST_F(QVInput, HidingItsFormIsNoLeaving)
{
    enter(u"12,6");
    form->Hide();
    EXPECT_FALSE(field().frame().hasFocus());
    form->Show();
    EXPECT_TRUE(field().frame().hasFocus());
    EXPECT_EQ(shown(), u"12,6");
    EXPECT_THAT(changes, IsEmpty());
    leave();
    EXPECT_THAT(changes, ElementsAre(Variant(13.0)));
}

TEST_F(QVInput, TellsTextsAsTexts)
{
    control->MODE(ID_InputMode_Text);
    enter(u" 7 ");
    leave();
    EXPECT_THAT(changes, ElementsAre(Variant(u"7")));
}

TEST_F(QVInput, WhatTheRulesTakeBackIsNoChange)
{
    control->MIN(1);
    control->MAX(6);
    control->VALUE(6);
    enter(u"99");
    leave();
    EXPECT_EQ(shown(), u"6");
    EXPECT_THAT(changes, IsEmpty());
}

TEST_F(QVInput, AChangeIsToldOnceByPressThenByLeaving)
{
    enter(u"5");
    headless::click(field());
    EXPECT_THAT(changes, ElementsAre(Variant(5.0)));
    leave();
    EXPECT_EQ(changes.size(), 1U);
}

TEST_F(QVInput, ReturnSettlesWhatWasTypedBeforeTheDefaultControlIsPressed)
{
    const auto button = form->add<ctl_Button>(u"but_Check");
    form->DefaultControl(button);
    std::vector<String> seen;
    const Connection hears = button->CLICK.connect([&] { seen.push_back(shown()); });
    enter(u"2,6");
    headless::type(*form, u"~");
    EXPECT_THAT(seen, ElementsAre(u"3"));
    EXPECT_THAT(changes, ElementsAre(Variant(3.0)));
    EXPECT_TRUE(field().frame().hasFocus());
    leave();
    EXPECT_EQ(changes.size(), 1U);
}

TEST_F(QVInput, ReturnWithAModifierSettlesNothing)
{
    enter(u"2,6");
    headless::type(*form, u"^~");
    EXPECT_EQ(shown(), u"2,6");
}

TEST_F(QVInput, OutsideOfTouchModeAPressMakesTheFieldReadyForTyping)
{
    control->VALUE(42);
    headless::click(field());
    EXPECT_THAT(outside.textBoxes().prepared(), ElementsAre(&field()));
    EXPECT_EQ(field().SelText(), u"42");
    headless::type(*form, u"{down}");
    headless::type(*form, u"%{down}");
    EXPECT_EQ(outside.textBoxes().prepared().size(), 1U) << "the key is the field's own";
    EXPECT_THAT(changes, IsEmpty());
}

TEST_F(QVInput, InTouchModeAPressOpensThePadForNumbers)
{
    touchMode(true);
    control->TEXT(u"Masse");
    control->MODE(ID_InputMode_Double);
    control->DIGITS(2);
    playPad([](Form& pad) {
        EXPECT_EQ(pad.control<ctl_Label>(u"lab_Title")->Caption(), u"Masse");
        EXPECT_EQ(pad.control<TextBox>(u"txt_Input")->Text(), u"0");
        typeAndConfirm(pad, u"18,015");
    });
    control->AsTyped(true);
    headless::click(field());
    EXPECT_EQ(shown(), u"18,015");
    EXPECT_EQ(field().SelText(), u"18,015") << "what is typed next replaces it";
    control->AsTyped(false);
    EXPECT_EQ(shown(), u"18,02");
    EXPECT_THAT(changes, ElementsAre(Variant(18.015)));
    leave();
    EXPECT_EQ(changes.back(), Variant(18.02));
}

TEST_F(QVInput, InTouchModeAPressOpensTheKeyboardForTexts)
{
    touchMode(true);
    control->TEXT(u"Name");
    control->MODE(ID_InputMode_Text);
    playKeyboard([](Form& keyboard) {
        EXPECT_EQ(keyboard.control<ctl_Label>(u"lab_Title")->Caption(), u"Name");
        typeAndConfirm(keyboard, u" Wasser ");
    });
    headless::click(field());
    EXPECT_EQ(shown(), u"Wasser");
    EXPECT_THAT(changes, ElementsAre(Variant(u"Wasser")));
}

TEST_F(QVInput, APadThatIsGivenUpChangesNothing)
{
    touchMode(true);
    control->VALUE(7);
    playPad([](Form& pad) {
        pad.control<TextBox>(u"txt_Input")->inputText(u"9", 1, 0);
        headless::strike(pad, {.key = Key::Escape});
    });
    headless::click(field());
    EXPECT_EQ(shown(), u"7");
    EXPECT_THAT(changes, IsEmpty());
}

TEST_F(QVInput, InTouchModeTheKeyDownOpensThePadToo)
{
    touchMode(true);
    control->SetFocus();
    headless::type(*form, u"~"); // opens nothing
    playPad([](Form& pad) { typeAndConfirm(pad, u"3"); });
    headless::type(*form, u"{down}");
    playPad([](Form& pad) { typeAndConfirm(pad, u"4"); });
    headless::type(*form, u"%{down}");
    headless::type(*form, u"^{down}"); // these open nothing
    headless::type(*form, u"+{down}");
    EXPECT_THAT(changes, ElementsAre(Variant(3.0), Variant(4.0)));
}

TEST_F(QVInput, AProgramCanOpenItsKeyboardWhateverTheMode)
{
    control->TEXT(u"Masse");
    playPad([](Form& pad) {
        EXPECT_EQ(pad.control<ctl_Label>(u"lab_Title")->Caption(), u"Masse");
        typeAndConfirm(pad, u"18");
    });
    control->OpenKeyboard();
    control->MODE(ID_InputMode_Text);
    playKeyboard([](Form& keyboard) { typeAndConfirm(keyboard, u"Wasser"); });
    callMember(*control, u"OpenKeyboard", {});
    EXPECT_THAT(changes, ElementsAre(Variant(18.0), Variant(u"Wasser")));
    control->MODE(static_cast<enm_InputMode>(0));
    control->OpenKeyboard();
    control->MODE(ID_InputMode_Text);
    field().Locked(true);
    control->OpenKeyboard();
    EXPECT_EQ(shown(), u"Wasser");
}

TEST_F(QVInput, ItsPadStandsBesideWhatIsToBeRead)
{
    outside.display().resize(1920, 1080);
    const auto question = form->add<TextBox>(u"txt_Question");
    question->Move(10, 60, 300, 100);
    EXPECT_EQ(control->KeyboardBeside(), nullptr);
    EXPECT_FALSE(placeToKeep(control));
    control->KeyboardBeside(question);
    EXPECT_EQ(control->KeyboardBeside(), question);
    const auto inner = control->container()->controls().front();
    outside.windows().place(inner->hWnd(), {110, 110, 310, 150});
    outside.windows().place(question->hWnd(), {120, 160, 420, 260});
    EXPECT_EQ(placeToKeep(inner), (PixelRectangle{110, 110, 310, 150}));
    outside.windows().place(control->hWnd(), {90, 110, 310, 150});
    EXPECT_EQ(placeToKeep(control), (PixelRectangle{90, 110, 330, 150}));
    playPad([&](Form& pad) {
        EXPECT_EQ(pad.Left() / TwipsPerPixel, 432);
        EXPECT_EQ(pad.Top() / TwipsPerPixel, 110);
        typeAndConfirm(pad, u"18");
    });
    control->OpenKeyboard();
    question->Visible(false);
    EXPECT_FALSE(placeToKeep(control));
}

TEST_F(QVInput, AModeWithoutANameOpensNothing)
{
    touchMode(true);
    control->MODE(static_cast<enm_InputMode>(9));
    headless::click(field());
    enter(u" x");
    leave();
    EXPECT_THAT(changes, ElementsAre(Variant(u" x")));
}

TEST_F(QVInput, ALockedFieldOpensNothing)
{
    touchMode(true);
    setMember(*control, u"Locked", true);
    headless::click(field());
    headless::type(*form, u"{down}");
    headless::type(*form, u"7");
    EXPECT_EQ(shown(), u"0");
}

TEST_F(QVInput, ADisabledControlTakesNeitherPressNorFocus)
{
    touchMode(true);
    control->Enabled(false);
    headless::click(field());
    EXPECT_THROW(control->SetFocus(), RuntimeError);
    EXPECT_EQ(shown(), u"0");
}

TEST_F(QVInput, WhatHappensToTheFocusUnderThePadIsNoChange)
{
    touchMode(true);
    playPad([this](Form& pad) {
        leave();
        control->SetFocus(); // the field has the old text yet
        typeAndConfirm(pad, u"8");
        leave();
        control->SetFocus(); // and the new one now
    });
    headless::click(field());
    EXPECT_THAT(changes, ElementsAre(Variant(8.0)));
}

TEST_F(QVInput, APressUnderThePadOpensNoSecondOne)
{
    touchMode(true);
    playPad([this](Form& pad) {
        field().click();
        typeAndConfirm(pad, u"8");
    });
    headless::click(field());
    playPad([](Form& pad) { typeAndConfirm(pad, u"9"); });
    headless::click(field());
    EXPECT_THAT(changes, ElementsAre(Variant(8.0), Variant(9.0)));
}

TEST_F(QVInput, AHandlerMayTakeItAway)
{
    const Connection takes = control->CHANGED.connect([this](const Variant&) {
        form->remove(*control);
        control.reset();
    });
    enter(u"5");
    leave();
    EXPECT_FALSE(control);
}

TEST_F(QVInput, WhatIsTypedStaysWhereSomebodyElseJudgesIt)
{
    control->MODE(ID_InputMode_Double);
    control->DIGITS(2);
    control->MIN(1);
    control->MAX(6);
    control->AsTyped(true);
    for (const StringView text : {u"", u"viel", u"98,079", u"98.08", u" 7 "}) {
        enter(text);
        headless::type(*form, u"~");
        leave();
        EXPECT_EQ(toUtf8(shown()), toUtf8(text));
    }
    EXPECT_EQ(control->VALUE(), Variant(7.0));
    EXPECT_EQ(field().Alignment(), Alignment::Left);
    told.clear();
    control->AsTyped(false);
    EXPECT_EQ(shown(), u"6,00");
    EXPECT_THAT(told, ElementsAre(u"AsTyped"));
}

TEST_F(QVInput, ItsFieldIsWhatADialogEdits)
{
    control->TEXT(u"Titel");
    control->MAX(10);
    field().MaxLength(5);
    field().Locked(true);
    const TargetText target(control);
    EXPECT_EQ(target.read(), u"0");
    EXPECT_EQ(target.maxLength(), 5);
    EXPECT_TRUE(target.locked());
    EXPECT_FALSE(target.takesLines());
    target.write(u"12");
    EXPECT_EQ(shown(), u"10") << "its rules count";
    EXPECT_EQ(control->TEXT(), u"Titel");
}

TEST_F(QVInput, SaysItsTitleWhereItHasNoNameForScreenReaders)
{
    control->TEXT(u"Masse in g");
    EXPECT_EQ(control->accessibleText(), u"Masse in g");
}

} // namespace

} // namespace phial::test
