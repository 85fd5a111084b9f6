#include "app/cls_Language.h"
#include "app/sys_Global.h"
#include "dialogs/KeyNumbers.h"
#include "dialogs/ScanChoice.h"
#include "dialogs/frm_DialogKeyboard.h"
#include "headless/Hand.h"
#include "headless/TouchScreen.h"
#include "support/AppSession.h"
#include "visual/Label.h"
#include "visual/RichText.h"
#include "visual/RichTextBox.h"

#include <algorithm>
#include <array>
#include <gmock/gmock-more-matchers.h>
#include <random>

namespace phial::test
{

namespace
{

class DialogKeyboardTest : public AppSession
{
protected:
    DialogKeyboardTest()
    {
        outside.display().resize(1920, 1080);
        LNG()->CURRENT(ID_Language_German);
    }
    ~DialogKeyboardTest() override { host->discard(); }

    /// A control of the program's, whose text is edited.
    template <typename Class>
    std::shared_ptr<Class> target(StringView name = u"target")
    {
        return host->add<Class>(name);
    }
    void open(const ObjectPtr& target)
    {
        keyboard.TargetControl(target);
        keyboard.form().Show();
    }
    template <typename Class>
    std::shared_ptr<Class> get(StringView name)
    {
        return keyboard.form().control<Class>(name);
    }
    std::shared_ptr<TextBox> input() { return get<TextBox>(u"txt_Input"); }
    std::shared_ptr<ctl_Keys> keyPad() { return get<ctl_Keys>(u"ctl_Keys"); }

    PixelPoint middle(std::int32_t index)
    {
        const PixelRectangle area = keyPad()->areaOf(index);
        return {area.left + area.width / 2, area.top + area.height / 2};
    }
    void tap(std::int32_t index)
    {
        touch.press(1, *keyPad(), middle(index));
        touch.release(1);
        outside.runPending();
    }
    void tapAll(std::initializer_list<std::int32_t> indices)
    {
        for (const std::int32_t index : indices) {
            tap(index);
        }
    }
    KeyState state(Modifier modifier) { return keyPad()->board().state(modifier); }
    String face(std::int32_t index) { return keyPad()->board().face(index).text; }
    bool isOpen() { return keyboard.form().isLoaded(); }

    std::shared_ptr<Form> host = std::make_shared<Form>(u"frm_Host");
    frm_DialogKeyboard keyboard;
    headless::TouchScreen touch{outside.display()};
};

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

// Keys.

TEST_F(DialogKeyboardTest, TypesWhatItsKeysShow)
{
    open(target<TextBox>());
    tapAll({keys::LetterA, keys::Shift, keys::LetterQ, keys::LetterW});
    EXPECT_EQ(input()->Text(), u"aQw");
}

TEST_F(DialogKeyboardTest, ShiftPressedOnceIsForOneKey)
{
    open(target<TextBox>());
    tap(keys::Shift);
    EXPECT_EQ(face(keys::LetterA), u"A");
    tap(keys::LetterA);
    EXPECT_EQ(input()->Text(), u"A");
    EXPECT_EQ(state(Modifier::Shift), KeyState::Off);
    EXPECT_EQ(face(keys::LetterA), u"a");
}

TEST_F(DialogKeyboardTest, ShiftPressedTwiceStaysUntilTheThirdPress)
{
    open(target<TextBox>());
    tapAll({keys::Shift, keys::Shift, keys::LetterA, keys::LetterQ});
    EXPECT_EQ(state(Modifier::Shift), KeyState::Locked);
    tapAll({keys::Shift, keys::LetterA});
    EXPECT_EQ(input()->Text(), u"AQa");
}

TEST_F(DialogKeyboardTest, TypesSymbols)
{
    open(target<TextBox>());
    tapAll({keys::Sym, keys::LetterE, keys::Sym, keys::LetterQ, keys::Sym, keys::Eight});
    EXPECT_EQ(input()->Text(), u"€@[");
}

TEST_F(DialogKeyboardTest, TypesAtTheCaretOverWhatIsSelected)
{
    const auto box = target<TextBox>();
    box->Text(u"abc");
    open(box);
    input()->SelStart(1);
    input()->SelLength(1);
    tap(keys::LetterQ);
    EXPECT_EQ(input()->Text(), u"aqc");
    tap(keys::Backspace);
    EXPECT_EQ(input()->Text(), u"ac");
    tap(keys::Left);
    EXPECT_EQ(input()->SelStart(), 0);
}

TEST_F(DialogKeyboardTest, TypesIntoItsInputWhateverHasTheFocus)
{
    open(target<TextBox>());
    keyboard.form().focus(nullptr);
    tap(keys::LetterA);
    EXPECT_EQ(input()->Text(), u"a");
    EXPECT_EQ(keyboard.form().ActiveControl(), input());
}

TEST_F(DialogKeyboardTest, AKeyThatCannotBeSentLeavesItOpen)
{
    open(target<TextBox>());
    input()->Enabled(false); // it cannot take the focus
    tapAll({keys::Shift, keys::LetterA});
    EXPECT_TRUE(isOpen());
    EXPECT_EQ(input()->Text(), u"");
}

TEST_F(DialogKeyboardTest, ClearsTheText)
{
    const auto box = target<TextBox>();
    box->Text(u"abc");
    open(box);
    tapAll({keys::Shift, keys::Clear});
    EXPECT_EQ(input()->Text(), u"");
    EXPECT_EQ(state(Modifier::Shift), KeyState::Off);
    EXPECT_EQ(box->Text(), u"abc");
}

TEST_F(DialogKeyboardTest, ALockedTextIsOnlyShown)
{
    const auto box = target<TextBox>();
    box->MultiLine(true);
    box->Text(u"abc");
    box->Locked(true);
    open(box);
    tapAll({keys::Clear, keys::LetterA, keys::Sym, keys::Enter});
    EXPECT_EQ(input()->Text(), u"abc");
}

TEST_F(DialogKeyboardTest, EnterWithSymAddsALine)
{
    const auto box = target<TextBox>();
    box->MultiLine(true);
    box->Text(u"ab");
    open(box);
    input()->SelStart(1);
    tapAll({keys::Sym, keys::Enter});
    EXPECT_EQ(input()->Text(), u"a\r\nb");
    EXPECT_EQ(input()->SelStart(), 3);
    EXPECT_DOUBLE_EQ(input()->Font()->Size(), 12);
    EXPECT_EQ(state(Modifier::Sym), KeyState::Off);
    EXPECT_FALSE(keyboard.Accepted());
    outside.advance(0.2);
    EXPECT_TRUE(isOpen());
}

TEST_F(DialogKeyboardTest, EnterWithSymDoesNothingWhereThereIsOneLine)
{
    open(target<TextBox>());
    tapAll({keys::LetterA, keys::Sym, keys::Enter});
    EXPECT_EQ(input()->Text(), u"a");
    EXPECT_DOUBLE_EQ(input()->Font()->Size(), 20);
    EXPECT_FALSE(keyboard.Accepted());
}

TEST_F(DialogKeyboardTest, ALineHasToFitIntoTheGreatestLength)
{
    const auto box = target<TextBox>();
    box->MultiLine(true);
    box->MaxLength(4);
    box->Text(u"abc");
    open(box);
    tapAll({keys::Sym, keys::Enter});
    EXPECT_EQ(input()->Text(), u"abc");
    input()->SelStart(2);
    input()->SelLength(1);
    tapAll({keys::Sym, keys::Enter});
    EXPECT_EQ(input()->Text(), u"ab\r\n");
}

TEST_F(DialogKeyboardTest, AVariantIsTypedAsItIs)
{
    open(target<TextBox>());
    keyPad()->VARIANT.emit(u"à");
    outside.runPending();
    EXPECT_EQ(input()->Text(), u"à");
}

TEST_F(DialogKeyboardTest, NoKeyOfTwoHandsIsLost)
{
    open(target<TextBox>());
    touch.press(1, *keyPad(), middle(keys::LetterA));
    touch.press(2, *keyPad(), middle(keys::LetterQ));
    touch.release(1);
    touch.release(2);
    outside.runPending();
    EXPECT_EQ(input()->Text(), u"aq");
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

} // namespace

// What keys and the desk do together.

TEST_F(DialogKeyboardTest, AScanTypesABlank)
{
    chooseScan(800);
    const auto box = target<TextBox>();
    open(box);
    outside.advance(4 * 0.8); // the last row
    headless::type(keyboard.form(), u" ");
    outside.advance(2 * 0.8); // behind Ctrl and Alt
    headless::type(keyboard.form(), u" ");
    outside.runPending();
    EXPECT_EQ(input()->Text(), u" ");
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

TEST_F(DialogKeyboardTest, CtrlAndAltTypeSymbols)
{
    constexpr std::int32_t Ctrl = 50;
    constexpr std::int32_t Alt = 51;
    open(target<TextBox>());
    tapAll({Ctrl, Alt, keys::LetterE});
    EXPECT_EQ(input()->Text(), u"€");
    tapAll({Ctrl, Alt, Alt, keys::LetterE});
    EXPECT_EQ(input()->Text(), u"€e") << "once and locked have no bit in common";
}

TEST_F(DialogKeyboardTest, TenFingersAndADeskLoseNoKey)
{
    std::mt19937 random(60);
    const auto box = target<TextBox>();
    open(box);
    keyPad()->offersVariants(false);
    String expected;
    std::array<bool, 10> isDown{};
    constexpr int Moves = 3000; // 60 seconds, a move every 20 milliseconds
    for (int move = 0; move < Moves; ++move) {
        const auto finger = random() % 11;
        if (finger == 10) {
            headless::type(keyboard.form(), u"0");
            expected += u'0';
        } else if (isDown[finger]) {
            touch.release(static_cast<std::int32_t>(finger));
            isDown[finger] = false;
        } else {
            const std::int32_t key = 26 + static_cast<std::int32_t>(random() % 9); // a to l
            touch.press(static_cast<std::int32_t>(finger), *keyPad(), middle(key));
            expected += face(key);
            isDown[finger] = true;
        }
        outside.advance(0.02);
        outside.runPending();
    }
    for (std::int32_t finger = 0; finger < 10; ++finger) {
        if (isDown[static_cast<std::size_t>(finger)]) {
            touch.release(finger);
        }
    }
    outside.runPending();
    String got = input()->Text();
    std::ranges::sort(got); // the desk's keys may pass a key that is still down
    std::ranges::sort(expected);
    EXPECT_EQ(toUtf8(got), toUtf8(expected));
}

} // namespace phial::test
