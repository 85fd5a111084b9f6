#include "app/cls_Language.h"
#include "app/sys_Global.h"
#include "dialogs/FreeTermKeys.h"
#include "dialogs/ScanChoice.h"
#include "dialogs/TermKeyLayout.h"
#include "dialogs/TermKeyboardRun.h"
#include "dialogs/frm_DialogKeyboardTerm.h"
#include "visual/Label.h"
#include "visual/RichTextBox.h"
#include "visual/ctl_Label.h"

#include <algorithm>
#include <gmock/gmock-more-matchers.h>
#include <map>
#include <set>

namespace phial::test
{

namespace
{

namespace term_keys_of = term_test_keys;

class DialogKeyboardTerm : public TermKeyboardRun<frm_DialogKeyboardTerm>
{
};

// Its keys.

TEST_F(DialogKeyboardTerm, HasItsKeysInSixRows)
{
    using Row = std::vector<std::pair<double, std::int32_t>>;
    std::map<double, Row> rows;
    for (const KeyDesign& key : term_key_layout::Keys) {
        rows[key.top].emplace_back(key.left, key.index);
        EXPECT_EQ(key.width, key.index == 48 ? 4320 : 720);
        EXPECT_EQ(key.height, key.index == term_keys_of::Ok ? 1440 : 720);
    }
    const auto run = [](double left, std::initializer_list<std::int32_t> keys) {
        Row row;
        for (const std::int32_t key : keys) {
            row.emplace_back(left, key);
            left += 720;
        }
        return row;
    };
    const auto joined = [](std::initializer_list<Row> parts) {
        Row all;
        for (const Row& part : parts) {
            all.insert(all.end(), part.begin(), part.end());
        }
        return all;
    };
    const std::map<double, Row> expected{
        {660, run(720, {35, 36})},
        {1020, run(7440, {0, 25, 13, 24})},
        {1860, joined({run(360, {14, 15, 16, 17, 18, 19, 20, 21, 22, 23}), run(7800, {7, 8, 9}),
                       run(10260, {12})})},
        {2580,
         joined({run(600, {26, 27, 28, 29, 30, 31, 32, 33, 34}), run(7800, {4, 5, 6}), run(10260, {59})})},
        {3300, joined({run(360, {37, 38, 39, 40, 41, 42, 43, 44, 45, 46}), run(7800, {1, 2, 3}),
                       run(10260, {11})})},
        {4020, joined({run(1800, {48}), run(7800, {49, 10, 47})})},
    };
    EXPECT_EQ(rows, expected);
}

TEST_F(DialogKeyboardTerm, KeysStandOnTheFormAsDesigned)
{
    const PixelRectangle keys = keyPad()->frame().pixelRectangle();
    const PixelRectangle first = keyPad()->areaOf(term_key_layout::FirstFreeKey);
    EXPECT_EQ((PixelPoint{keys.left + first.left, keys.top + first.top}),
              (PixelPoint{720 / TwipsPerPixel, 660 / TwipsPerPixel}));
    EXPECT_EQ(first.width, 48);
    EXPECT_LE(keys.right(), keyboard.form().innerSize().width);
    EXPECT_LE(keys.bottom(), keyboard.form().innerSize().height);
}

TEST_F(DialogKeyboardTerm, NoKeyLiesUnderTheFieldOrTheCross)
{
    const PixelPoint corner{keyPad()->frame().pixelRectangle().left, keyPad()->frame().pixelRectangle().top};
    const PixelRectangle words = get<ctl_Label>(u"lab_Title")->frame().pixelRectangle();
    for (const KeyDesign& key : term_key_layout::Keys) {
        PixelRectangle area = keyPad()->areaOf(key.index);
        area.left += corner.x;
        area.top += corner.y;
        EXPECT_FALSE(area.meets(field()->frame().pixelRectangle())) << key.index;
        EXPECT_FALSE(area.meets(get<ctl_Button>(u"but_Close")->frame().pixelRectangle())) << key.index;
        EXPECT_FALSE(area.meets(words)) << key.index;
    }
    EXPECT_FALSE(words.meets(field()->frame().pixelRectangle()));
}

TEST_F(DialogKeyboardTerm, APlainTapGivesACapital)
{
    openWith(u"");
    tapAll({term_keys_of::LetterN, term_keys_of::Shift, term_keys_of::LetterA});
    EXPECT_EQ(field()->Term(), u"Na");
    EXPECT_EQ(keyPad()->board().state(Modifier::Shift), KeyState::Off);
}

TEST_F(DialogKeyboardTerm, ShiftIsStickyInThreeStates)
{
    openWith(u"");
    tapAll({term_keys_of::Shift, term_keys_of::Shift, term_keys_of::LetterA, term_keys_of::LetterN});
    EXPECT_EQ(field()->Term(), u"an");
    EXPECT_EQ(keyPad()->board().face(term_keys_of::LetterA).text, u"a");
    tapAll({term_keys_of::Shift, term_keys_of::LetterA});
    EXPECT_EQ(field()->Term(), u"anA");
}

TEST_F(DialogKeyboardTerm, ShiftWithASignTypesItsFaceAndFallsBack)
{
    openWith(u"");
    tapAll({term_keys_of::Shift, term_keys_of::Two, term_keys_of::Shift, 45, term_keys_of::Shift,
            term_keys_of::Plus, term_keys_of::LetterN});
    EXPECT_EQ(field()->Term(), u"2;+N");
}

TEST_F(DialogKeyboardTerm, TypesTheSignsOfFormulas)
{
    openWith(u"");
    tapAll({term_keys_of::Open, term_keys_of::LetterA, term_keys_of::Close, term_keys_of::Raise,
            term_keys_of::Three, term_keys_of::Star, 48, term_keys_of::Two});
    EXPECT_EQ(field()->Term(), u"(A)^3* 2");
}

TEST_F(DialogKeyboardTerm, FreeKeysTypeTheirCaptions)
{
    openWith(u"");
    tapAll({term_key_layout::FirstFreeKey, term_key_layout::SecondFreeKey});
    EXPECT_EQ(field()->Term(), u"xxxx");
}

TEST_F(DialogKeyboardTerm, AProgramGivesFreeKeysAMeaning)
{
    FreeTermKeys::current()->showArrowAndFraction();
    frm_DialogKeyboardTerm own;
    own.TargetControl(termTarget(u""));
    own.form().Show();
    const auto pad = own.form().control<ctl_Keys>(u"ctl_Keys");
    const auto term = own.form().control<clt_TermInput>(u"txt_Input");
    EXPECT_EQ(pad->board().face(term_key_layout::FirstFreeKey).text, u"→");
    pad->CLICK.raise(term_key_layout::FirstFreeKey);
    pad->CLICK.raise(term_key_layout::SecondFreeKey);
    outside.runPending();
    EXPECT_EQ(term->Term(), u"->()/()");
    EXPECT_EQ(term->CARET(), 3) << "in the numerator";
    EXPECT_EQ(keyPad()->board().face(term_key_layout::FirstFreeKey).text, u"xx") << "made before";
}

TEST_F(DialogKeyboardTerm, BackspaceAndClearTakeAway)
{
    openWith(u"H2O");
    tap(term_keys_of::Backspace);
    EXPECT_EQ(field()->Term(), u"H2");
    tap(term_keys_of::Clear);
    EXPECT_EQ(field()->Term(), u"");
    tap(term_keys_of::LetterA);
    EXPECT_EQ(field()->Term(), u"A");
}

TEST_F(DialogKeyboardTerm, AHeldLetterOffersElementsOneOfWhichIsTyped)
{
    openWith(u"2");
    hold(term_keys_of::LetterN);
    ASSERT_TRUE(keyPad()->showsVariants());
    EXPECT_EQ(keyPad()->frame().announcement(), u"Stickstoff");
    touch.release(1);
    outside.runPending();
    EXPECT_EQ(field()->Term(), u"2") << "holding types nothing";
    const PixelRectangle sodium = keyPad()->parts()[term_key_layout::Keys.size() + 1].area;
    touch.press(1, *keyPad(), {sodium.left + 5, sodium.top + 5});
    touch.release(1);
    EXPECT_EQ(field()->Term(), u"2Na");
    EXPECT_EQ(field()->CARET(), 3);
    EXPECT_FALSE(keyPad()->showsVariants());
}

TEST_F(DialogKeyboardTerm, ArrowsAndReturnChooseAVariant)
{
    openWith(u"10");
    hold(term_keys_of::Three);
    touch.release(1);
    type(u"{right}{left}{enter}");
    outside.runPending();
    EXPECT_EQ(field()->Term(), u"10^3");
    hold(term_keys_of::Two);
    touch.release(1);
    type(u"{enter}");
    EXPECT_EQ(field()->Term(), u"10^3#^2");
    EXPECT_TRUE(isOpen()) << "Return was the strip's";
}

TEST_F(DialogKeyboardTerm, AFractionHasTheCaretInItsNumerator)
{
    openWith(u"a+b");
    field()->CARET(2);
    hold(term_keys_of::Open);
    touch.release(1);
    type(u"{enter}1");
    outside.runPending();
    EXPECT_EQ(field()->Term(), u"a+(1)/()b");
}

TEST_F(DialogKeyboardTerm, ASingleSwitchReachesVariants)
{
    chooseScan(800);
    openWith(u"");
    outside.advance(1.6); // the row of q
    type(u" ");
    outside.advance(1.6); // e
    touch.press(1, *keyPad(), {2, 2});
    outside.advance(0.6);
    ASSERT_TRUE(keyPad()->showsVariants());
    EXPECT_EQ(keyPad()->frame().announcement(), u"Erbium");
    touch.release(1);
    outside.advance(0.8);
    type(u" ");
    EXPECT_EQ(field()->Term(), u"Es");
}

TEST_F(DialogKeyboardTerm, VariantsDoNothingToALockedTerm)
{
    const auto target = termTarget(u"H");
    target->LOCKED(true);
    open(target);
    field()->CARET(0);
    keyPad()->VARIANT.raise(u"Na");
    EXPECT_EQ(field()->Term(), u"H");
    EXPECT_EQ(field()->CARET(), 0);
}

TEST_F(DialogKeyboardTerm, AVariantTakesShiftBack)
{
    openWith(u"");
    tap(term_keys_of::Shift);
    keyPad()->VARIANT.raise(u"Na");
    EXPECT_EQ(keyPad()->board().state(Modifier::Shift), KeyState::Off);
    EXPECT_EQ(field()->Term(), u"Na");
}

TEST_F(DialogKeyboardTerm, VariantsAndClearingAreUndoneAtOnce)
{
    openWith(u"H");
    keyPad()->VARIANT.raise(u"Na");
    type(u"^z");
    EXPECT_EQ(field()->Term(), u"H");
    type(u"^y");
    EXPECT_EQ(field()->Term(), u"HNa");
    tap(term_keys_of::Clear);
    EXPECT_EQ(field()->Term(), u"");
    type(u"^z");
    EXPECT_EQ(field()->Term(), u"HNa");
    EXPECT_EQ(field()->CARET(), 3);
}

// Formulas that are offered.

TEST_F(DialogKeyboardTerm, OffersNothingWithoutLeaveOrWish)
{
    openWith(u"H2S");
    EXPECT_FALSE(offers()->frame().Visible());
    EXPECT_EQ(offers()->count(), 0U);
    OfferLeave::current()->isGiven = true;
    wantOffers(false);
    frm_DialogKeyboardTerm unwanted;
    unwanted.TargetControl(termTarget(u"H2S", u"second"));
    unwanted.form().Show();
    EXPECT_FALSE(unwanted.form().control<ctl_Offers>(u"ctl_Offers")->frame().Visible());
    unwanted.form().Unload();
}

TEST_F(DialogKeyboardTerm, OffersNothingForHiddenSignsOrALockedTerm)
{
    OfferLeave::current()->isGiven = true;
    const auto box = target<TextBox>();
    box->PasswordChar(u"*");
    open(box);
    EXPECT_FALSE(offers()->frame().Visible());
    frm_DialogKeyboardTerm locked;
    const auto term = termTarget(u"H2S", u"second");
    term->LOCKED(true);
    locked.TargetControl(term);
    locked.form().Show();
    EXPECT_FALSE(locked.form().control<ctl_Offers>(u"ctl_Offers")->frame().Visible());
    locked.form().Unload();
}

TEST_F(DialogKeyboardTerm, ATapTakesAnOfferForWhatHasBeenBegun)
{
    openWithOffers(u"Zn + HCl -> ");
    EXPECT_EQ(offers()->count(), 0U);
    type(u"2+h2+s");
    ASSERT_EQ(offers()->count(), 3U);
    EXPECT_EQ(field()->Term(), u"Zn + HCl -> 2H2S") << "nothing is typed by itself";
    EXPECT_EQ(offers()->parts()[1].name, u"Schwefelsäure: H zwei S O vier");
    tapOffer(1);
    EXPECT_EQ(field()->Term(), u"Zn + HCl -> 2H2SO4");
    EXPECT_EQ(field()->CARET(), 18);
    EXPECT_EQ(keyboard.form().ActiveControl(), field());
    type(u"^z");
    EXPECT_EQ(field()->Term(), u"Zn + HCl -> 2H2S") << "undone at once";
}

TEST_F(DialogKeyboardTerm, ArrowsAndReturnTakeAnOffer)
{
    openWithOffers(u"H2S");
    type(u"{down}");
    EXPECT_EQ(offers()->chosen(), 0U);
    EXPECT_EQ(offers()->frame().announcement(), u"Schweflige Säure: H zwei S O drei");
    type(u"{right}");
    EXPECT_EQ(offers()->chosen(), 1U);
    EXPECT_TRUE(offers()->parts()[1].state.pressed);
    type(u"{left}{left}");
    EXPECT_EQ(offers()->chosen(), 2U);
    type(u"{right}{right}{down}{enter}");
    EXPECT_EQ(field()->Term(), u"H2SO4");
    EXPECT_EQ(offers()->chosen(), std::nullopt);
    EXPECT_TRUE(isOpen()) << "Return was the offer's";
    type(u"{enter}");
    expectConfirmed();
}

TEST_F(DialogKeyboardTerm, UpEscapeAndTypingLeaveTheOffers)
{
    openWithOffers(u"H2S");
    type(u"{down}{up}");
    EXPECT_EQ(offers()->chosen(), std::nullopt);
    type(u"{down}{esc}");
    EXPECT_EQ(offers()->chosen(), std::nullopt);
    EXPECT_FALSE(keyboard.Accepted());
    type(u"{down}+o");
    EXPECT_EQ(offers()->chosen(), std::nullopt);
    EXPECT_EQ(field()->Term(), u"H2SO");
    EXPECT_EQ(offers()->count(), 2U);
    type(u"{left}{left}");
    EXPECT_EQ(offers()->count(), 5U) << "for what stands before the caret";
    type(u"{home}{down}");
    EXPECT_EQ(offers()->chosen(), std::nullopt) << "there is none";
}

TEST_F(DialogKeyboardTerm, OffersStandAboveItsKeysAndHideNothing)
{
    const double height = keyboard.form().innerSize().height;
    outside.visual().millimetresPerPixel(9.0 / 48);
    openWithOffers(u"H2S");
    const double scale = offers()->frame().pixelRectangle().height / 48;
    EXPECT_NEAR(keyboard.form().innerSize().height, (height + 54) * scale, 1);
    EXPECT_GE(scale, 1) << "9 mm";
    const PixelRectangle area = offers()->frame().pixelRectangle();
    EXPECT_FALSE(area.meets(field()->frame().pixelRectangle()));
    EXPECT_FALSE(area.meets(keyPad()->frame().pixelRectangle()));
    EXPECT_FALSE(area.meets(get<ctl_Button>(u"but_Close")->frame().pixelRectangle()));
    EXPECT_LE(area.bottom(), keyPad()->frame().pixelRectangle().top + 1);
}

TEST_F(DialogKeyboardTerm, WithOffersItFitsASmallScreen)
{
    outside.display().resize(1024, 600);
    openWithOffers(u"H2S");
    EXPECT_LE(keyboard.form().innerSize().width, 1024);
    EXPECT_LE(keyboard.form().innerSize().height, 600);
}

TEST_F(DialogKeyboardTerm, APressOnAnOfferThatGoesElsewhereTakesNothing)
{
    openWithOffers(u"H2S");
    const PixelRectangle first = offers()->parts()[0].area;
    touch.press(1, *offers(), {first.left + 5, first.top + 5});
    touch.move(1, {first.right() + 5, first.top + 5});
    touch.release(1);
    EXPECT_EQ(field()->Term(), u"H2S");
    offers()->cancelPress();
    offers()->activatePart(7);
    EXPECT_EQ(field()->Term(), u"H2S");
    offers()->activatePart(1);
    EXPECT_EQ(field()->Term(), u"H2SO4") << "as screen readers do";
}

TEST_F(DialogKeyboardTerm, OffersBehindOkDoNothing)
{
    openWithOffers(u"H2S");
    tap(term_keys_of::Ok);
    offers()->activatePart(1);
    EXPECT_EQ(field()->Term(), u"H2S");
    expectConfirmed();
}

TEST_F(DialogKeyboardTerm, TheTermStandsOffTheEdgeOfItsField)
{
    openWith(u"H2O");
    EXPECT_EQ(field()->inset(), 6);
    field()->CARET(0);
    EXPECT_EQ(field()->frame().textEntry()->caretArea.left, 6);
    field()->CARET(3);
    field()->Term(String(100, u'H'));
    field()->CARET(100);
    const double width = field()->frame().pixelRectangle().width;
    EXPECT_EQ(field()->frame().textEntry()->caretArea.left, width - 7) << "a long one too";
    field()->CARET(0);
    EXPECT_EQ(field()->frame().textEntry()->caretArea.left, 6);
}

TEST_F(DialogKeyboardTerm, TypesAtTheCaret)
{
    openWith(u"H2O");
    field()->CARET(0);
    tap(term_keys_of::Two);
    EXPECT_EQ(field()->Term(), u"2H2O");
}

TEST_F(DialogKeyboardTerm, EachKeyHasANameInWords)
{
    FreeTermKeys::current()->showArrowAndFraction();
    frm_DialogKeyboardTerm own;
    const auto pad = own.form().control<ctl_Keys>(u"ctl_Keys");
    for (const enm_LanguageC language : {ID_Language_German, ID_Language_English}) {
        LNG()->CURRENT(language);
        std::set<String> names;
        for (const NamedPart& part : pad->parts()) {
            EXPECT_TRUE(part.name.size() > 1 || isDigit(part.name.front()) ||
                        upperCase(part.name) != lowerCase(part.name))
                << toUtf8(part.name);
            EXPECT_TRUE(names.insert(part.name).second) << toUtf8(part.name);
        }
        EXPECT_TRUE(names.contains(LNG()->TRANSLATE(u"Klammer auf", u"Left parenthesis")));
        EXPECT_TRUE(names.contains(LNG()->TRANSLATE(u"Mal", u"Times")));
        EXPECT_TRUE(names.contains(LNG()->TRANSLATE(u"Hochgestellt", u"Raised")));
        EXPECT_TRUE(names.contains(LNG()->TRANSLATE(u"Reaktionspfeil", u"Reaction arrow")));
        EXPECT_TRUE(names.contains(LNG()->TRANSLATE(u"Bruch", u"Fraction")));
    }
}

TEST_F(DialogKeyboardTerm, ASingleSwitchTypesToo)
{
    chooseScan(800);
    openWith(u"");
    outside.advance(0.8); // the row of signs
    type(u" ");
    type(u" ");
    outside.runPending();
    EXPECT_EQ(field()->Term(), u"(");
}

TEST_F(DialogKeyboardTerm, KeysOfTheDeskTypeIntoItsField)
{
    openWith(u"H2");
    type(u"O");
    EXPECT_EQ(field()->Term(), u"H2O");
    type(u"{enter}");
    expectConfirmed();
}

TEST_F(DialogKeyboardTerm, OnlyItsFieldIsReachedByTab)
{
    open(nullptr);
    EXPECT_THAT(keyboard.form().tabOrder(), ::testing::ElementsAre(field()));
    EXPECT_EQ(keyboard.form().ActiveControl(), field());
    EXPECT_TRUE(field()->frame().ownKeyboard());
}

TEST_F(DialogKeyboardTerm, AsksInBothLanguages)
{
    open(nullptr);
    EXPECT_EQ(keyboard.form().Caption(), u"Tastatur für Formeln");
    EXPECT_EQ(field()->frame().AccessibleName(), u"Bitte geben Sie den Wert ein:");
    LNG()->CURRENT(ID_Language_English);
    EXPECT_EQ(keyboard.form().Caption(), u"Formula keyboard");
    EXPECT_EQ(field()->frame().AccessibleName(), u"Please enter the value:");
}

// What it edits.

TEST_F(DialogKeyboardTerm, MarkupPassesThroughUnchanged)
{
    const String markup = u"2 §Fe#^3+ + SOµ4^2- |CO* ~~ (a+b)/(c) =^ <- ->";
    const auto target = termTarget(markup);
    open(target);
    EXPECT_EQ(field()->Term(), markup);
    EXPECT_EQ(field()->CARET(), static_cast<std::int32_t>(markup.size()));
    tap(term_keys_of::Ok);
    EXPECT_EQ(target->Term(), markup);
    expectConfirmed();
}

TEST_F(DialogKeyboardTerm, EditsTheTextOfAnythingElse)
{
    const auto box = target<TextBox>();
    box->Text(u"CO");
    open(box);
    EXPECT_EQ(field()->Term(), u"CO");
    tapAll({term_keys_of::Two, term_keys_of::Ok});
    EXPECT_EQ(box->Text(), u"CO2");
    expectConfirmed();
}

TEST_F(DialogKeyboardTerm, ALabelHasNoTermAndIsWrittenToNowhere)
{
    const auto label = target<Label>();
    label->Caption(u"CO");
    open(label);
    EXPECT_EQ(field()->Term(), u"");
    tapAll({term_keys_of::Two, term_keys_of::Ok});
    EXPECT_EQ(label->Caption(), u"CO");
    expectConfirmed();
}

TEST_F(DialogKeyboardTerm, ALockedTermIsOnlyShown)
{
    const auto target = termTarget(u"H2O");
    target->LOCKED(true);
    open(target);
    tapAll({term_keys_of::Clear, term_keys_of::Two, term_keys_of::Backspace, term_keys_of::Ok});
    EXPECT_EQ(field()->Term(), u"H2O");
    expectConfirmed();
}

// Ends.

TEST_F(DialogKeyboardTerm, LeavingItConfirms)
{
    const auto target = termTarget(u"");
    open(target);
    tap(term_keys_of::LetterA);
    keyboard.form().inputDeactivate();
    EXPECT_EQ(target->Term(), u"A");
    expectConfirmed();
}

TEST_F(DialogKeyboardTerm, CrossAndEscapeGiveUp)
{
    for (const StringView end : {u"{esc}", u"+{esc}", u"cross"}) {
        const auto target = makeControl<clt_TermInput>();
        target->Term(u"H2O");
        frm_DialogKeyboardTerm own;
        own.TargetControl(target);
        own.form().Show();
        own.form().control<ctl_Keys>(u"ctl_Keys")->CLICK.raise(term_keys_of::Two);
        outside.runPending();
        if (end == u"cross") {
            headless::click(*own.form().control<ctl_Button>(u"but_Close"));
        } else {
            headless::type(own.form(), end);
        }
        own.form().inputDeactivate(); // too late
        outside.advance(0.11);
        EXPECT_FALSE(own.form().isLoaded());
        EXPECT_FALSE(own.Accepted());
        EXPECT_EQ(target->Term(), u"H2O");
    }
}

TEST_F(DialogKeyboardTerm, WhatIsTypedWhileItClosesCountsAndNothingIsTakenAway)
{
    const auto target = termTarget(u"H");
    open(target);
    tapAll({term_keys_of::Ok, term_keys_of::Two, term_keys_of::Clear, term_keys_of::Backspace});
    EXPECT_EQ(field()->Term(), u"H2");
    expectConfirmed();
    EXPECT_EQ(target->Term(), u"H2");
}

TEST_F(DialogKeyboardTerm, ATargetThatHasGoneIsWrittenToNowhere)
{
    auto target = makeControl<clt_TermInput>();
    open(target);
    target.reset();
    tapAll({term_keys_of::Two, term_keys_of::Ok});
    expectConfirmed();
}

TEST_F(DialogKeyboardTerm, ADragTypesNothing)
{
    outside.display().moveCursor(960, 540);
    openWith(u"H");
    const double left = keyboard.form().Left();
    touch.press(1, *keyPad(), middle(term_keys_of::Two));
    touch.move(1, {11, 0});
    outside.advance(0.02);
    touch.move(1, {40, 0});
    outside.advance(0.02);
    touch.release(1);
    outside.runPending();
    EXPECT_DOUBLE_EQ(keyboard.form().Left(), left + 40 * TwipsPerPixel);
    EXPECT_EQ(field()->Term(), u"H");
}

TEST_F(DialogKeyboardTerm, GrowsWithAllThatStandsOnIt)
{
    EXPECT_DOUBLE_EQ(field()->TEXTFONT()->Size(), 16);
    outside.visual().millimetresPerPixel(0.125);
    openWith(u"H");
    EXPECT_EQ(keyboard.form().innerSize(), (PixelSize{1125, 510}));
    EXPECT_DOUBLE_EQ(field()->TEXTFONT()->Size(), 24);
    EXPECT_EQ(field()->frame().pixelRectangle(), (PixelRectangle{234, 69, 492, 102}));
}

} // namespace

} // namespace phial::test
