#include "dialogs/DialogKeyboardTest.h"

#include "dialogs/ScanChoice.h"
#include "headless/Hand.h"
#include "visual/Label.h"
#include "visual/RichText.h"
#include "visual/RichTextBox.h"

#include <gmock/gmock-more-matchers.h>

namespace phial::test
{

// Load.

TEST_F(DialogKeyboardTest, BeginsWithTheTextOfItsTargetAndTheCaretBehindIt)
{
    const auto box = target<TextBox>();
    box->Text(u"Größe");
    open(box);
    EXPECT_EQ(input()->Text(), u"Größe");
    EXPECT_EQ(input()->SelStart(), 5);
    EXPECT_EQ(input()->SelLength(), 0);
    EXPECT_DOUBLE_EQ(input()->Font()->Size(), 20);
    EXPECT_EQ(keyboard.form().ActiveControl(), input());
}

TEST_F(DialogKeyboardTest, BringsAllLineEndsIntoOneForm)
{
    const auto box = target<TextBox>();
    box->MultiLine(true);
    box->Text(u"a\nb\rc\r\nd\n\re");
    open(box);
    EXPECT_EQ(input()->Text(), u"a\r\nb\r\nc\r\nd\r\n\r\ne");
    EXPECT_EQ(input()->SelStart(), 15);
    EXPECT_DOUBLE_EQ(input()->Font()->Size(), 12);
}

TEST_F(DialogKeyboardTest, TakesOverWhatItsTargetSays)
{
    const auto box = target<TextBox>();
    box->MaxLength(7);
    box->PasswordChar(u"*");
    box->Locked(true);
    open(box);
    EXPECT_EQ(input()->MaxLength(), 7);
    EXPECT_EQ(input()->PasswordChar(), u"*");
    EXPECT_TRUE(input()->Locked());
    EXPECT_FALSE(input()->MultiLine());
}

TEST_F(DialogKeyboardTest, ShowsTheLinesOfATargetThatHasOne)
{
    const auto box = target<TextBox>();
    box->Text(u"a\r\nb");
    open(box);
    EXPECT_TRUE(input()->MultiLine());
    tapAll({keys::Sym, keys::Enter});
    EXPECT_EQ(input()->Text(), u"a\r\nb") << "but makes no more";
}

TEST_F(DialogKeyboardTest, ShowsThePlainTextOfRichText)
{
    const auto rich = target<RichTextBox>();
    rich->TextRTF(toRichText(u"CO2 & {H2O}", {.bold = true}));
    open(rich);
    EXPECT_EQ(input()->Text(), u"CO2 & {H2O}");
}

TEST_F(DialogKeyboardTest, HasNoInputMethodSinceItIsItsOwnKeyboard)
{
    EXPECT_TRUE(input()->frame().ownKeyboard());
    EXPECT_TRUE(keyPad()->frame().takesTouch());
    EXPECT_FALSE(keyPad()->frame().canFocus());
    open(nullptr);
    EXPECT_THAT(keyboard.form().tabOrder(), ::testing::ElementsAre(input()));
}

TEST_F(DialogKeyboardTest, ScansAsTheUserHasChosen)
{
    chooseScan(900);
    open(nullptr);
    EXPECT_EQ(keyPad()->scanInterval(), 900);
}

TEST_F(DialogKeyboardTest, SaysWhatItAsksFor)
{
    keyboard.TitleText(u"Dein Name");
    open(nullptr);
    EXPECT_EQ(input()->frame().AccessibleName(), u"Dein Name");
}

TEST_F(DialogKeyboardTest, TranslatesItselfWhileItIsOpen)
{
    open(nullptr);
    input()->Text(u"a|b");
    LNG()->CURRENT(ID_Language_English);
    EXPECT_EQ(input()->Text(), u"a|b");
    EXPECT_EQ(input()->frame().AccessibleName(), u"Please enter the value:");
    EXPECT_EQ(keyboard.form().Caption(), u"Keyboard");
}

TEST_F(DialogKeyboardTest, GrowsWithAllThatStandsOnIt)
{
    outside.visual().millimetresPerPixel(0.125);
    const auto box = target<TextBox>();
    box->MultiLine(true);
    box->Text(u"a\r\nb");
    open(box);
    EXPECT_EQ(keyPad()->frame().pixelRectangle(), (PixelRectangle{22.5, 102, 1080, 360}));
    EXPECT_DOUBLE_EQ(input()->Font()->Size(), 18);
}

// Ends.

TEST_F(DialogKeyboardTest, EnterWritesTheTextBack)
{
    const auto box = target<TextBox>();
    open(box);
    tapAll({keys::LetterA, keys::Enter});
    EXPECT_EQ(box->Text(), u"a");
    EXPECT_TRUE(keyboard.Accepted());
    EXPECT_TRUE(isOpen()) << "never from within a key's handler";
    outside.advance(0.11);
    EXPECT_FALSE(isOpen());
}

TEST_F(DialogKeyboardTest, ReturnOfTheKeyboardOnTheDeskWritesTheTextBackToo)
{
    const auto box = target<TextBox>();
    box->MultiLine(true);
    open(box);
    headless::type(keyboard.form(), u"Hallo{enter}");
    EXPECT_EQ(box->Text(), u"Hallo");
    EXPECT_TRUE(keyboard.Accepted());
}

TEST_F(DialogKeyboardTest, WritesToALabelsCaption)
{
    const auto label = target<Label>();
    label->Caption(u"alt");
    open(label);
    EXPECT_EQ(input()->Text(), u"alt");
    tapAll({keys::LetterA, keys::Enter});
    EXPECT_EQ(label->Caption(), u"alta");
}

TEST_F(DialogKeyboardTest, WritesToARichTextBox)
{
    const auto rich = target<RichTextBox>();
    open(rich);
    tapAll({keys::LetterA, keys::Sym, keys::Enter, keys::LetterQ, keys::Enter});
    EXPECT_EQ(rich->Text(), u"a\r\nq");
}

TEST_F(DialogKeyboardTest, ATargetThatHasGoneIsWrittenToNowhere)
{
    auto box = makeControl<TextBox>();
    open(box);
    box.reset();
    tapAll({keys::LetterA, keys::Enter});
    outside.advance(0.11);
    EXPECT_TRUE(keyboard.Accepted());
    EXPECT_FALSE(isOpen());
}

TEST_F(DialogKeyboardTest, WhatIsTypedWhileItClosesCounts)
{
    const auto box = target<TextBox>();
    open(box);
    tapAll({keys::LetterA, keys::Enter, keys::LetterQ});
    outside.advance(0.11);
    EXPECT_EQ(box->Text(), u"aq");
}

TEST_F(DialogKeyboardTest, AHandlerOfTheTargetMayFail)
{
    const auto box = target<TextBox>();
    const Connection failing = box->Change.connect([] { throw RuntimeError(ErrorNumber::InvalidArgument); });
    open(box);
    tapAll({keys::LetterA, keys::Enter});
    outside.advance(0.11);
    EXPECT_TRUE(keyboard.Accepted());
    EXPECT_FALSE(isOpen());
}

TEST_F(DialogKeyboardTest, TheKeyEscAborts)
{
    const auto box = target<TextBox>();
    box->Text(u"alt");
    open(box);
    tapAll({keys::LetterA, keys::Escape});
    EXPECT_TRUE(isOpen());
    outside.advance(0.11);
    EXPECT_FALSE(isOpen());
    EXPECT_FALSE(keyboard.Accepted());
    EXPECT_EQ(box->Text(), u"alt");
}

TEST_F(DialogKeyboardTest, TheKeyEscWithSymAbortsAtOnce)
{
    const auto box = target<TextBox>();
    open(box);
    tapAll({keys::LetterA, keys::Sym, keys::Escape});
    EXPECT_FALSE(isOpen());
    EXPECT_FALSE(keyboard.Accepted());
    EXPECT_EQ(box->Text(), u"");
}

TEST_F(DialogKeyboardTest, TheCrossAborts)
{
    const auto box = target<TextBox>();
    open(box);
    tap(keys::LetterA);
    headless::click(*get<ctl_Button>(u"but_Close"));
    tap(keys::Enter);
    outside.advance(0.11);
    EXPECT_FALSE(isOpen());
    EXPECT_FALSE(keyboard.Accepted());
    EXPECT_EQ(box->Text(), u"");
}

TEST_F(DialogKeyboardTest, LeavingItDoesNothing)
{
    const auto box = target<TextBox>();
    open(box);
    tap(keys::LetterA);
    keyboard.form().inputDeactivate();
    outside.advance(0.2);
    EXPECT_TRUE(isOpen());
    EXPECT_EQ(box->Text(), u"");
}

TEST_F(DialogKeyboardTest, DeskKeysGoThroughVariantsAndDoNotConfirm)
{
    const auto box = target<TextBox>();
    open(box);
    touch.press(1, *keyPad(), middle(keys::LetterA));
    outside.advance(0.5);
    touch.release(1);
    headless::type(keyboard.form(), u"{right}{enter}");
    outside.runPending();
    EXPECT_EQ(input()->Text(), u"à");
    EXPECT_TRUE(isOpen());
    touch.press(1, *keyPad(), middle(keys::LetterA));
    outside.advance(0.5);
    touch.release(1);
    headless::type(keyboard.form(), u"{esc}");
    outside.advance(1);
    EXPECT_TRUE(isOpen()) << "it has closed the variants alone";
    headless::type(keyboard.form(), u"{esc}");
    outside.advance(1);
    EXPECT_FALSE(isOpen());
    EXPECT_EQ(box->Text(), u"");
}

TEST_F(DialogKeyboardTest, EscapeGivesUpWithAnyModifier)
{
    const auto box = target<TextBox>();
    open(box);
    tap(keys::Shift);
    tap(keys::Shift);
    tap(keys::Escape);
    outside.advance(1);
    EXPECT_FALSE(isOpen());
    EXPECT_FALSE(keyboard.Accepted());
}

TEST_F(DialogKeyboardTest, AKeyBehindEnterTakesNothingAway)
{
    constexpr std::int32_t Clear = 59;
    const auto box = target<TextBox>();
    box->Text(u"Wasser");
    open(box);
    tap(keys::Enter);
    tap(Clear);
    tap(keys::Backspace);
    outside.advance(1);
    EXPECT_EQ(box->Text(), u"Wasser");
}

// Drags.

TEST_F(DialogKeyboardTest, APressThatMovesTenPixelsIsAClick)
{
    open(target<TextBox>());
    const double left = keyboard.form().Left();
    touch.press(1, *keyPad(), middle(keys::LetterA));
    touch.move(1, {10, 0});
    outside.advance(0.02);
    touch.release(1);
    outside.runPending();
    EXPECT_EQ(input()->Text(), u"a");
    EXPECT_EQ(keyboard.form().Left(), left);
}

TEST_F(DialogKeyboardTest, APressThatMovesElevenPixelsDragsAndTypesNothing)
{
    outside.display().moveCursor(960, 540);
    open(target<TextBox>());
    touch.press(1, *keyPad(), middle(keys::LetterA));
    touch.move(1, {11, 0});
    outside.advance(0.02);
    touch.move(1, {50, 20});
    outside.advance(0.02);
    EXPECT_DOUBLE_EQ(keyboard.form().Left(), (585 + 50) * TwipsPerPixel);
    EXPECT_DOUBLE_EQ(keyboard.form().Top(), (370 + 20) * TwipsPerPixel);
    touch.release(1);
    outside.runPending();
    EXPECT_EQ(input()->Text(), u"");
    EXPECT_FALSE(keyboard.form().control<Timer>(u"tmr_Dragging")->Enabled());
}

TEST_F(DialogKeyboardTest, ADragThatBeginsOnAModifierLeavesItAsItWas)
{
    open(target<TextBox>());
    touch.press(1, *keyPad(), middle(keys::Shift));
    EXPECT_EQ(state(Modifier::Shift), KeyState::Once);
    touch.move(1, {0, 30});
    outside.advance(0.02);
    touch.release(1);
    EXPECT_EQ(state(Modifier::Shift), KeyState::Off);
}

TEST_F(DialogKeyboardTest, AHeldKeyIsNoDragAnyMore)
{
    const auto box = target<TextBox>();
    box->Text(u"abcdef");
    open(box);
    const double left = keyboard.form().Left();
    touch.press(1, *keyPad(), middle(keys::Backspace));
    outside.advance(0.8);
    touch.move(1, {40, 0});
    outside.advance(0.02);
    touch.release(1);
    EXPECT_EQ(keyboard.form().Left(), left);
    EXPECT_LT(input()->Text().size(), 5U);
}

TEST_F(DialogKeyboardTest, ASecondFingerNeitherEndsADragNorTypes)
{
    outside.display().moveCursor(960, 540);
    open(target<TextBox>());
    const double left = keyboard.form().Left() / TwipsPerPixel;
    touch.press(1, *keyPad(), middle(keys::LetterA));
    touch.move(1, {20, 0});
    outside.advance(0.02);
    touch.press(2, *keyPad(), middle(keys::LetterQ));
    outside.advance(0.02);
    touch.release(2);
    outside.runPending();
    touch.move(1, {30, 0});
    outside.advance(0.02);
    EXPECT_DOUBLE_EQ(keyboard.form().Left() / TwipsPerPixel, left + 30);
    touch.release(1);
    outside.runPending();
    EXPECT_EQ(input()->Text(), u"");
    tap(keys::LetterQ);
    EXPECT_EQ(input()->Text(), u"q");
}

TEST_F(DialogKeyboardTest, AFingerThatComesWhileItIsDraggedPressesNothing)
{
    open(target<TextBox>());
    touch.press(1, *keyPad(), middle(keys::LetterA));
    touch.move(1, {20, 0});
    outside.advance(0.02);
    for (const std::int32_t modifier : {keys::Shift, keys::Ctrl, keys::Alt, keys::Sym}) {
        touch.press(2, *keyPad(), middle(modifier));
        EXPECT_FALSE(keyPad()->parts()[14].state.pressed);
        EXPECT_EQ(face(keys::LetterE), u"e") << modifier;
        touch.release(2);
    }
    touch.press(2, *keyPad(), middle(keys::LetterE));
    outside.advance(1);
    EXPECT_FALSE(keyPad()->showsVariants());
    touch.press(3, *keyPad(), middle(keys::Shift));
    touch.release(1);
    touch.release(2);
    touch.release(3);
    outside.runPending();
    for (const Modifier modifier : {Modifier::Shift, Modifier::Ctrl, Modifier::Alt, Modifier::Sym}) {
        EXPECT_EQ(state(modifier), KeyState::Off);
    }
    EXPECT_EQ(input()->Text(), u"");
    tap(keys::Shift);
    EXPECT_EQ(state(Modifier::Shift), KeyState::Once) << "the drag is over";
}

TEST_F(DialogKeyboardTest, LinesKeepTheirSizeOnASmallerScreen)
{
    outside.visual().addScreen({1920, 0, 600, 480});
    outside.display().moveCursor(960, 540);
    const auto box = target<TextBox>();
    box->MultiLine(true);
    box->Text(u"a\r\nb");
    open(box);
    touch.press(1, *keyPad(), middle(keys::LetterA));
    touch.move(1, {20, 0});
    outside.advance(0.02);
    touch.move(1, {1500, 0});
    outside.advance(0.02);
    touch.release(1);
    EXPECT_DOUBLE_EQ(input()->Font()->Size(), 12 * 0.8);
    EXPECT_DOUBLE_EQ(input()->frame().pixelRectangle().height, 54 * 0.8);
    EXPECT_EQ(keyPad()->frame().pixelRectangle().width, 720 * 0.8);
}

} // namespace phial::test
