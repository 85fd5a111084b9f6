#include "app/cls_Language.h"
#include "app/sys_Global.h"
#include "core/Locale.h"
#include "dialogs/KeyParts.h"
#include "dialogs/KeyboardRun.h"
#include "dialogs/NumberLayout.h"
#include "dialogs/ScanChoice.h"
#include "dialogs/frm_DialogNumericTouch.h"
#include "headless/Hand.h"
#include "term/clt_TermInput.h"
#include "visual/Label.h"
#include "visual/RichTextBox.h"
#include "visual/ctl_Label.h"

#include <algorithm>
#include <gmock/gmock-more-matchers.h>
#include <set>

namespace phial::test
{

namespace
{

namespace pad_keys
{
constexpr std::int32_t Swap = 0;
constexpr std::int32_t Five = 5;
constexpr std::int32_t Seven = 7;
constexpr std::int32_t Zero = 10;
constexpr std::int32_t Ok = 11;
constexpr std::int32_t Backspace = 12;
constexpr std::int32_t Clear = 13;
constexpr std::int32_t Sign = 45;
} // namespace pad_keys

/// The pad for numbers.
class DialogNumericTouch : public KeyboardRun<frm_DialogNumericTouch>
{
protected:
    std::shared_ptr<TextBox> box(StringView text)
    {
        const auto made = target<TextBox>();
        made->Text(String(text));
        return made;
    }
    void type(StringView notation) { headless::type(pad.form(), notation); }
    void expectConfirmed()
    {
        EXPECT_TRUE(isOpen()) << "never from within a handler";
        outside.advance(0.11);
        EXPECT_FALSE(isOpen());
        EXPECT_TRUE(pad.Accepted());
    }

    frm_DialogNumericTouch& pad = keyboard;
};

// Load.

TEST_F(DialogNumericTouch, BeginsWithTheNumberOfItsTargetAndTheCaretBehindIt)
{
    open(box(u"12,34567 g"));
    EXPECT_EQ(input()->Text(), u"12,3457");
    EXPECT_EQ(input()->SelStart(), 7);
    EXPECT_EQ(input()->SelLength(), 0);
    EXPECT_EQ(pad.form().ActiveControl(), input());
}

TEST_F(DialogNumericTouch, ReadsTermsCaptionsAndRichText)
{
    const auto term = host->add<clt_TermInput>(u"term");
    term->Term(u"1,5");
    open(term);
    EXPECT_EQ(input()->Text(), u"1,5");
    pad.form().Unload();
    const auto label = host->add<Label>(u"label");
    label->Caption(u"2,5");
    open(label);
    EXPECT_EQ(input()->Text(), u"2,5");
    pad.form().Unload();
    const auto rich = host->add<RichTextBox>(u"rich");
    rich->Text(u"3,5");
    open(rich);
    EXPECT_EQ(input()->Text(), u"3,5");
}

TEST_F(DialogNumericTouch, TakesOverWhatItsTargetSays)
{
    const auto target = box(u"");
    target->MaxLength(7);
    target->PasswordChar(u"*");
    target->Locked(true);
    open(target);
    EXPECT_EQ(input()->MaxLength(), 7);
    EXPECT_EQ(input()->PasswordChar(), u"*");
    EXPECT_TRUE(input()->Locked());
}

TEST_F(DialogNumericTouch, OnlyItsFieldIsReachedByTab)
{
    open(nullptr);
    EXPECT_THAT(pad.form().tabOrder(), ::testing::ElementsAre(input()));
    EXPECT_TRUE(input()->frame().ownKeyboard());
    EXPECT_TRUE(keyPad()->frame().takesTouch());
}

TEST_F(DialogNumericTouch, AsksInBothLanguages)
{
    open(nullptr);
    EXPECT_EQ(pad.form().Caption(), u"Zahlenblock");
    EXPECT_EQ(input()->frame().AccessibleName(), u"Bitte geben Sie den Wert ein:");
    LNG()->CURRENT(ID_Language_English);
    EXPECT_EQ(pad.form().Caption(), u"Number pad");
    EXPECT_EQ(input()->frame().AccessibleName(), u"Please enter the value:");
}

TEST_F(DialogNumericTouch, ShowsItsTitleBesideTheCross)
{
    pad.TitleText(u"Masse");
    open(nullptr);
    const auto title = get<ctl_Label>(u"lab_Title");
    EXPECT_EQ(title->Caption(), u"Masse");
    const PixelRectangle words = title->frame().pixelRectangle();
    const PixelRectangle cross = get<ctl_Button>(u"but_Close")->frame().pixelRectangle();
    EXPECT_LE(words.right(), cross.left);
    EXPECT_LE(cross.right(), pad.form().innerSize().width);
    EXPECT_LE(words.bottom(), input()->frame().pixelRectangle().top);
    EXPECT_EQ(input()->frame().AccessibleName(), u"Masse");
}

// Its keys.

TEST_F(DialogNumericTouch, HasItsKeysInRowsWithOkInTwo)
{
    using ::testing::ElementsAre;
    std::vector<std::int32_t> order;
    for (const KeyDesign& key : number_layout::Keys) {
        order.push_back(key.index);
        EXPECT_EQ(key.width, 720);
        EXPECT_EQ(key.height, key.index == pad_keys::Ok ? 1440 : 720);
    }
    EXPECT_THAT(order, ElementsAre(7, 8, 9, 12, 4, 5, 6, 13, 1, 2, 3, 11, 10, 45, 0));
    EXPECT_EQ(keyPad()->designArea(), (PixelRectangle{225, 1740, 4 * 720, 4 * 720}));
    EXPECT_EQ(keyPad()->frame().pixelRectangle(), (PixelRectangle{15, 116, 192, 192}));
    EXPECT_EQ(keyPad()->areaOf(pad_keys::Ok), (PixelRectangle{144, 96, 48, 96}));
}

TEST_F(DialogNumericTouch, EachKeyHasANameOfItsOwnInWords)
{
    open(nullptr);
    for (const enm_LanguageC language : {ID_Language_German, ID_Language_English}) {
        LNG()->CURRENT(language);
        std::set<String> names;
        for (const NamedPart& part : keyPad()->parts()) {
            EXPECT_TRUE(part.name.size() > 1 || isDigit(part.name.front())) << toUtf8(part.name);
            EXPECT_TRUE(names.insert(part.name).second) << toUtf8(part.name);
        }
        EXPECT_EQ(names.size(), 15U);
        EXPECT_TRUE(names.contains(LNG()->TRANSLATE(u"Vorzeichen wechseln", u"Change sign")));
    }
}

TEST_F(DialogNumericTouch, TypesOverTheNumberWithWhichItBegan)
{
    open(box(u"25"));
    tapAll({pad_keys::Seven, pad_keys::Sign, pad_keys::Zero, pad_keys::Five});
    EXPECT_EQ(input()->Text(), u"7,05");
    EXPECT_EQ(input()->SelStart(), 4);
    tap(pad_keys::Backspace);
    EXPECT_EQ(input()->Text(), u"7,0");
    tap(pad_keys::Swap);
    EXPECT_EQ(input()->Text(), u"-7");
    tap(pad_keys::Clear);
    EXPECT_EQ(input()->Text(), u"");
    EXPECT_EQ(input()->SelStart(), 0);
}

TEST_F(DialogNumericTouch, TypesBehindTheTextWhereverTheCaretIs)
{
    open(box(u""));
    tapAll({pad_keys::Seven, pad_keys::Zero});
    input()->SelStart(0);
    tap(pad_keys::Five);
    EXPECT_EQ(input()->Text(), u"705");
    input()->SelStart(1);
    input()->SelLength(1);
    tap(pad_keys::Five);
    EXPECT_EQ(input()->Text(), u"755");
    EXPECT_EQ(input()->SelStart(), 3);
    EXPECT_EQ(input()->SelLength(), 0);
}

TEST_F(DialogNumericTouch, SignAndNumbersFollowTheLocale)
{
    EXPECT_EQ(keyPad()->board().face(pad_keys::Sign).text, u",");
    Locale american;
    american.decimalSign = u'.';
    const LocaleBinding binding(american);
    const auto target = box(u"2,75");
    frm_DialogNumericTouch own;
    const auto board = own.form().control<ctl_Keys>(u"ctl_Keys");
    const auto field = own.form().control<TextBox>(u"txt_Input");
    own.TargetControl(target);
    own.form().Show();
    EXPECT_EQ(field->Text(), u"2.75");
    EXPECT_EQ(board->board().face(pad_keys::Sign).text, u".");
    for (const std::int32_t key : {pad_keys::Five, pad_keys::Sign, pad_keys::Zero}) {
        board->CLICK.raise(key);
    }
    EXPECT_EQ(field->Text(), u"5.0");
    board->CLICK.raise(pad_keys::Backspace);
    EXPECT_EQ(field->Text(), u"5");
    field->Text(u"1,5");
    board->CLICK.raise(pad_keys::Ok);
    EXPECT_EQ(target->Text(), u"1.5");
    outside.advance(0.11);
}

TEST_F(DialogNumericTouch, WhatIsTypedOnTheDeskIsNoFirstKeyOfThePad)
{
    const auto target = box(u"25");
    open(target);
    type(u".5");
    EXPECT_EQ(input()->Text(), u"25.5");
    tap(pad_keys::Seven);
    EXPECT_EQ(input()->Text(), u"25.57");
    type(u"{enter}");
    EXPECT_EQ(target->Text(), u"25,57");
    expectConfirmed();
}

TEST_F(DialogNumericTouch, TypesIntoItsFieldWhateverHasTheFocus)
{
    open(box(u""));
    pad.form().focus(nullptr);
    tap(pad_keys::Five);
    EXPECT_EQ(input()->Text(), u"5");
    EXPECT_EQ(pad.form().ActiveControl(), input());
}

TEST_F(DialogNumericTouch, AFullFieldTakesNoFurtherDigit)
{
    const auto target = box(u"12");
    target->MaxLength(2);
    open(target);
    tapAll({pad_keys::Seven, pad_keys::Five, pad_keys::Zero});
    EXPECT_EQ(input()->Text(), u"75");
    tap(pad_keys::Swap);
    EXPECT_EQ(input()->Text(), u"75");
    tap(pad_keys::Backspace);
    EXPECT_EQ(input()->Text(), u"7");
}

TEST_F(DialogNumericTouch, ANumberLongerThanItsTargetTakesCanBeShortened)
{
    const auto target = box(u"1234");
    target->MaxLength(2);
    open(target);
    tap(pad_keys::Backspace);
    EXPECT_EQ(input()->Text(), u"123");
}

TEST_F(DialogNumericTouch, ALockedNumberIsOnlyShown)
{
    const auto target = box(u"25");
    target->Locked(true);
    open(target);
    tapAll({pad_keys::Clear, pad_keys::Seven, pad_keys::Swap, pad_keys::Backspace, pad_keys::Ok});
    EXPECT_EQ(input()->Text(), u"25");
    EXPECT_EQ(target->Text(), u"25");
    expectConfirmed();
}

TEST_F(DialogNumericTouch, AHeldDigitOffersNoVariants)
{
    open(box(u""));
    touch.press(1, *keyPad(), middle(pad_keys::Five));
    outside.advance(0.6);
    EXPECT_FALSE(keyPad()->showsVariants());
    touch.release(1);
    outside.runPending();
    EXPECT_EQ(input()->Text(), u"5");
}

TEST_F(DialogNumericTouch, AHeldBackspaceGoesOn)
{
    open(box(u"123456"));
    touch.press(1, *keyPad(), middle(pad_keys::Backspace));
    outside.advance(0.7);
    touch.release(1);
    outside.runPending();
    EXPECT_EQ(input()->Text(), u"1");
}

TEST_F(DialogNumericTouch, ASingleSwitchTypesToo)
{
    chooseScan(800);
    const auto target = box(u"");
    open(target);
    outside.advance(0.8); // the second row
    type(u" ");
    outside.advance(0.8); // its second key
    type(u" ");
    outside.runPending();
    EXPECT_EQ(input()->Text(), u"5");
    outside.advance(2 * 0.8); // the third row
    type(u" ");
    outside.advance(3 * 0.8);
    type(u" ");
    outside.runPending();
    EXPECT_EQ(target->Text(), u"5");
    expectConfirmed();
}

// Ends.

TEST_F(DialogNumericTouch, OkWritesThePlainNumber)
{
    const auto target = box(u"");
    open(target);
    tapAll({pad_keys::Zero, pad_keys::Seven, pad_keys::Sign, pad_keys::Five, pad_keys::Zero, pad_keys::Ok});
    EXPECT_EQ(target->Text(), u"7,5");
    expectConfirmed();
}

TEST_F(DialogNumericTouch, ReadsWhatIsNoNumberYet)
{
    const auto read = [this](std::initializer_list<std::int32_t> keys) {
        const auto target = makeControl<TextBox>();
        frm_DialogNumericTouch own;
        own.TargetControl(target);
        own.form().Show();
        const auto board = own.form().control<ctl_Keys>(u"ctl_Keys");
        for (const std::int32_t key : keys) {
            board->CLICK.raise(key);
        }
        board->CLICK.raise(pad_keys::Ok);
        outside.advance(0.11);
        EXPECT_TRUE(own.Accepted());
        return target->Text();
    };
    EXPECT_EQ(read({pad_keys::Swap}), u"0");
    EXPECT_EQ(read({pad_keys::Clear}), u"0");
    EXPECT_EQ(read({pad_keys::Sign, pad_keys::Five}), u"0,5");
    EXPECT_EQ(read({1, pad_keys::Sign, pad_keys::Sign, 2}), u"1");
}

TEST_F(DialogNumericTouch, ReturnAndLeavingItConfirmToo)
{
    const auto target = box(u"");
    open(target);
    tap(pad_keys::Five);
    type(u"{enter}");
    EXPECT_EQ(target->Text(), u"5");
    expectConfirmed();
    frm_DialogNumericTouch left;
    left.TargetControl(target);
    left.form().Show();
    left.form().control<ctl_Keys>(u"ctl_Keys")->CLICK.raise(pad_keys::Seven);
    left.form().inputDeactivate();
    EXPECT_EQ(target->Text(), u"7");
    EXPECT_TRUE(left.Accepted());
    outside.advance(0.11);
    EXPECT_FALSE(left.form().isLoaded());
}

TEST_F(DialogNumericTouch, CrossAndEscapeGiveUp)
{
    for (const StringView end : {u"{esc}", u"+{esc}", u"cross"}) {
        const auto target = makeControl<TextBox>();
        target->Text(u"25");
        frm_DialogNumericTouch own;
        own.TargetControl(target);
        own.form().Show();
        own.form().control<ctl_Keys>(u"ctl_Keys")->CLICK.raise(pad_keys::Seven);
        if (end == u"cross") {
            headless::click(*own.form().control<ctl_Button>(u"but_Close"));
        } else {
            headless::type(own.form(), end);
        }
        own.form().inputDeactivate(); // too late
        EXPECT_TRUE(own.form().isLoaded());
        outside.advance(0.11);
        EXPECT_FALSE(own.form().isLoaded());
        EXPECT_FALSE(own.Accepted());
        EXPECT_EQ(target->Text(), u"25");
    }
}

TEST_F(DialogNumericTouch, ClosedByTheDesktopItGivesUp)
{
    const auto target = box(u"25");
    open(target);
    tap(pad_keys::Seven);
    pad.form().inputClose();
    EXPECT_FALSE(isOpen());
    EXPECT_FALSE(pad.Accepted());
    EXPECT_EQ(target->Text(), u"25");
}

TEST_F(DialogNumericTouch, ConfirmedUntouchedItLeavesItsTargetAlone)
{
    const auto target = box(u"0,000018");
    open(target);
    EXPECT_EQ(input()->Text(), u"0");
    input()->SelLength(0);
    tap(pad_keys::Ok);
    EXPECT_EQ(target->Text(), u"0,000018");
    expectConfirmed();
    const auto empty = makeControl<TextBox>();
    frm_DialogNumericTouch left;
    left.TargetControl(empty);
    left.form().Show();
    left.form().inputDeactivate();
    EXPECT_TRUE(left.Accepted());
    EXPECT_EQ(empty->Text(), u"");
    outside.advance(0.11);
}

TEST_F(DialogNumericTouch, WritesToTermsCaptionsAndRichText)
{
    const auto confirmed = [this](const ObjectPtr& target) {
        frm_DialogNumericTouch own;
        own.TargetControl(target);
        own.form().Show();
        own.form().control<ctl_Keys>(u"ctl_Keys")->CLICK.raise(pad_keys::Five);
        own.form().control<ctl_Keys>(u"ctl_Keys")->CLICK.raise(pad_keys::Ok);
        outside.advance(0.11);
    };
    const auto term = host->add<clt_TermInput>(u"term");
    confirmed(term);
    EXPECT_EQ(term->Term(), u"5");
    const auto label = host->add<Label>(u"label");
    confirmed(label);
    EXPECT_EQ(label->Caption(), u"5");
    const auto rich = host->add<RichTextBox>(u"rich");
    confirmed(rich);
    EXPECT_EQ(rich->Text(), u"5");
}

TEST_F(DialogNumericTouch, ATargetThatHasGoneIsWrittenToNowhere)
{
    auto target = makeControl<TextBox>();
    open(target);
    target.reset();
    tapAll({pad_keys::Five, pad_keys::Ok});
    expectConfirmed();
}

TEST_F(DialogNumericTouch, NothingBehindOkChangesTheNumber)
{
    const auto target = box(u"");
    open(target);
    tapAll({pad_keys::Five, pad_keys::Ok, pad_keys::Seven, pad_keys::Clear});
    type(u"7");
    EXPECT_EQ(input()->Text(), u"5");
    pad.form().inputDeactivate();
    expectConfirmed();
    EXPECT_EQ(target->Text(), u"5");
}

TEST_F(DialogNumericTouch, OkPressedBeforeADigitIsUpReadsThatToo)
{
    const auto target = box(u"");
    open(target);
    touch.press(1, *keyPad(), middle(pad_keys::Five));
    touch.press(2, *keyPad(), middle(pad_keys::Ok));
    touch.release(2);
    touch.release(1);
    outside.runPending();
    EXPECT_EQ(target->Text(), u"5");
    expectConfirmed();
}

// Drags.

TEST_F(DialogNumericTouch, ADragTypesNothing)
{
    outside.display().moveCursor(960, 540);
    const auto target = box(u"25");
    open(target);
    const double left = pad.form().Left();
    touch.press(1, *keyPad(), middle(pad_keys::Five));
    touch.move(1, {11, 0});
    outside.advance(0.02);
    touch.move(1, {40, 0});
    outside.advance(0.02);
    touch.release(1);
    outside.runPending();
    EXPECT_DOUBLE_EQ(pad.form().Left(), left + 40 * TwipsPerPixel);
    EXPECT_EQ(input()->Text(), u"25");
    pad.form().inputDeactivate();
    EXPECT_EQ(target->Text(), u"25");
}

TEST_F(DialogNumericTouch, ThePointerGoesOnWithoutItBehindATap)
{
    outside.display().moveCursor(960, 540);
    open(box(u"25"));
    const double left = pad.form().Left();
    const PixelPoint at = middle(pad_keys::Five);
    keyPad()->pointerDown({PointerButton::Left, 0, at.x, at.y});
    keyPad()->pointerUp({PointerButton::Left, 0, at.x, at.y});
    outside.display().moveCursor(1200, 540);
    outside.advance(0.1);
    EXPECT_EQ(pad.form().Left(), left);
    EXPECT_EQ(input()->Text(), u"5");
}

TEST_F(DialogNumericTouch, APressThatMovesTenPixelsIsAClick)
{
    open(box(u"25"));
    touch.press(1, *keyPad(), middle(pad_keys::Five));
    touch.move(1, {10, 0});
    outside.advance(0.02);
    touch.release(1);
    outside.runPending();
    EXPECT_EQ(input()->Text(), u"5");
}

TEST_F(DialogNumericTouch, GrowsWithAllThatStandsOnIt)
{
    outside.visual().millimetresPerPixel(0.125);
    open(box(u"25"));
    EXPECT_EQ(pad.form().innerSize(), (PixelSize{333, 510}));
    EXPECT_EQ(keyPad()->frame().pixelRectangle(), (PixelRectangle{22.5, 174, 288, 288}));
    EXPECT_DOUBLE_EQ(input()->Font()->Size(), 30);
}

} // namespace

} // namespace phial::test
