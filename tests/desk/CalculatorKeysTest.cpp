#include "desk/CalculatorRun.h"
#include "visual/VisualHost.h"

#include <gtest/gtest.h>
#include <set>
#include <string>

namespace phial::test
{

namespace
{

using namespace calc_keys;

class CalculatorKeys : public CalculatorRun
{
protected:
    CalculatorKeys() { open(); }
};

TEST_F(CalculatorKeys, EachKeyDoesWhatItsTextSays)
{
    const std::pair<std::int32_t, StringView> lines[] = {
        {0, u"20"},     {1, u"21"},     {2, u"22"},     {3, u"23"},  {4, u"24"},     {5, u"25"},
        {6, u"26"},     {7, u"27"},     {8, u"28"},     {9, u"29"},  {Open, u"2("},  {Close, u"2)"},
        {Times, u"2*"}, {Over, u"2/"},  {Plus, u"2+"},  {15, u"2-"}, {Comma, u"2,"}, {17, u"-2"},
        {18, u"2^"},    {Equals, u"2"}, {22, u"2log("}, {Back, u""}, {Clear, u"0"},
    };
    for (const auto& [index, expected] : lines) {
        calculator.hShow(u"2");
        tap({index});
        EXPECT_EQ(line(), expected) << index;
    }
}

TEST_F(CalculatorKeys, ALineOfNoughtGivesWayToADigit)
{
    tap({0, 0, 7});
    EXPECT_EQ(line(), u"7");
}

TEST_F(CalculatorKeys, ADigitBehindAResultBelongsToIt)
{
    tap({2, Times, 3, Equals, 1});
    EXPECT_EQ(line(), u"61");
}

TEST_F(CalculatorKeys, TypedSignsAreKeys)
{
    type(u"12*(3");
    EXPECT_EQ(line(), u"12*(3");
    type(u")/2-4");
    strike(Key::Backspace);
    type(u"1");
    EXPECT_EQ(line(), u"12*(3)/2-1");
    type(u"=");
    EXPECT_EQ(line(), u"17");
    strike(Key::Delete);
    type(u"l");
    EXPECT_EQ(line(), u"log(");
    strike(Key::Delete);
    type(u"2°3");
    EXPECT_EQ(line(), u"2^3");
    strike(Key::Delete);
    type(u"2^3.5");
    EXPECT_EQ(line(), u"2^3,5");
    visualHost().clipboardText(u"7");
    type(u"xyzcv %");
    EXPECT_EQ(line(), u"2^3,5");
}

TEST_F(CalculatorKeys, ReturnWorksItOutWhicheverKeyHasTheFocus)
{
    key(7)->SetFocus();
    type(u"2+3");
    strike(Key::Return);
    EXPECT_EQ(line(), u"5");
    EXPECT_TRUE(form().isLoaded());
}

TEST_F(CalculatorKeys, ReturnWithControlTakesTheResult)
{
    type(u"2+3");
    strikeWithControl(form(), {.key = Key::Return});
    EXPECT_FALSE(form().isLoaded());
    EXPECT_EQ(calculator.result(), 5);
}

TEST_F(CalculatorKeys, EscapeLeavesNoResult)
{
    tap({5, Equals});
    strike(Key::Escape);
    EXPECT_FALSE(form().isLoaded());
    EXPECT_EQ(calculator.result(), std::nullopt);
}

TEST_F(CalculatorKeys, AnInvalidTermLeavesTheWindowOpen)
{
    type(u"2**(");
    tap({Ok});
    EXPECT_TRUE(form().isLoaded());
    EXPECT_EQ(line(), u"ERROR");
    EXPECT_NE(calculator.SolveError(), u"");
    EXPECT_EQ(calculator.result(), std::nullopt);
    tap({Back});
    EXPECT_EQ(line(), u"2**(") << "to be mended";
}

TEST_F(CalculatorKeys, AnEmptyLineCountsAsNought)
{
    tap({7, Back});
    EXPECT_EQ(line(), u"");
    tap({Ok});
    EXPECT_EQ(calculator.result(), 0);
}

TEST_F(CalculatorKeys, WhatHasNoRoomIsRefusedAndSaid)
{
    calculator.hShow(u"12345678901234567890");
    tap({1});
    EXPECT_EQ(line(), u"12345678901234567890");
    EXPECT_EQ(reading(), u"Kein Platz mehr: 20 Zeichen sind das Höchste.");
    EXPECT_EQ(get<ctl_Label>(u"Label1")->frame().announcement(), reading());
    tap({Back});
    EXPECT_NE(reading(), u"Kein Platz mehr: 20 Zeichen sind das Höchste.") << "until the next key";
}

TEST_F(CalculatorKeys, TheClipboardTakesAndGivesTheLine)
{
    type(u"2+3");
    strikeWithControl(form(), {.character = u'C'});
    EXPECT_EQ(visualHost().clipboardText(), u"2+3");
    tap({Clear});
    visualHost().clipboardText(u" 1,5*4\n");
    strikeWithControl(form(), {.character = u'V'});
    EXPECT_EQ(line(), u"1,5*4");
}

TEST_F(CalculatorKeys, MemoriesShowKeepAndForget)
{
    EXPECT_FALSE(recall(0)->Enabled());
    tap({2, Times, 3, Store1});
    EXPECT_EQ(line(), u"6");
    EXPECT_TRUE(recall(0)->Enabled());
    EXPECT_EQ(recall(0)->Caption(), u"6");
    EXPECT_EQ(recall(0)->Tag(), u"6");
    EXPECT_EQ(recall(0)->frame().AccessibleName(), u"Speicher 1: 6");
    tap({Plus});
    headless::click(*recall(0));
    EXPECT_EQ(line(), u"6+6");
    recall(0)->pointerUp({PointerButton::Left, 0, 1, 1});
    EXPECT_EQ(recall(0)->Caption(), u"6");
    recall(0)->pointerUp({PointerButton::Right, 0, 1, 1});
    EXPECT_EQ(recall(0)->Caption(), u"M1");
    EXPECT_EQ(recall(0)->Tag(), u"");
    EXPECT_FALSE(recall(0)->Enabled());
    EXPECT_EQ(recall(0)->frame().AccessibleName(), u"Speicher 1");
}

TEST_F(CalculatorKeys, ATagIsAPlainNumberWhateverTheLocaleWrites)
{
    type(u"2,5");
    tap({Store1 + 3});
    EXPECT_EQ(recall(3)->Caption(), u"2,5");
    EXPECT_EQ(recall(3)->Tag(), u"2.5");
}

TEST_F(CalculatorKeys, DeleteEmptiesTheMemoryWithTheFocusAndElseTheLine)
{
    tap({7, Store1, Store1 + 1});
    recall(1)->SetFocus();
    strike(Key::Delete);
    EXPECT_EQ(recall(1)->Caption(), u"M2");
    EXPECT_EQ(recall(0)->Caption(), u"7");
    recall(0)->SetFocus();
    strike(Key::Delete);
    EXPECT_EQ(recall(0)->Caption(), u"M1");
    EXPECT_EQ(line(), u"7");
    key(Equals)->SetFocus();
    strike(Key::Delete);
    EXPECT_EQ(line(), u"0");
}

TEST_F(CalculatorKeys, ATermThatFailsIsNotStored)
{
    type(u"2**(");
    tap({Store1});
    EXPECT_EQ(line(), u"ERROR");
    EXPECT_FALSE(recall(0)->Enabled());
}

TEST_F(CalculatorKeys, SignificantDigitsAreAModeThatTheKeyShows)
{
    EXPECT_EQ(key(Digits)->Caption(), u"Alle Stellen");
    tap({Digits});
    EXPECT_EQ(key(Digits)->Caption(), u"Gültige Stellen");
    type(u"2,0*3,14159=");
    EXPECT_EQ(line(), u"6,3");
    tap({Digits, Clear});
    type(u"2,0*3,14159=");
    EXPECT_EQ(line(), u"6,28318");
}

TEST_F(CalculatorKeys, EachKeyHasAFaceAndASpokenName)
{
    std::set<String> spoken;
    for (std::int32_t index = 0; index <= Ok; ++index) {
        EXPECT_NE(key(index)->Caption(), u"") << index;
        EXPECT_TRUE(spoken.insert(key(index)->frame().AccessibleName()).second) << index;
    }
}

TEST_F(CalculatorKeys, TheAngleModeIsInView)
{
    EXPECT_EQ(get<ctl_Label>(u"Label2")->Caption(), u"RAD");
    EXPECT_EQ(get<ctl_Label>(u"Label2")->frame().AccessibleName(), u"Winkel im Bogenmaß");
}

} // namespace

} // namespace phial::test
