#include "core/CoreTokenList.h"
#include "desk/CalculatorRun.h"
#include "headless/ScriptedDialogs.h"
#include "term/clt_TermInput.h"
#include "visual/ListBox.h"

#include <gmock/gmock-more-matchers.h>

namespace phial::test
{

namespace
{

using namespace calc_keys;
using ::testing::ElementsAre;

class CalculatorLines : public CalculatorRun
{
protected:
    std::vector<String> tape()
    {
        std::vector<String> lines;
        for (std::int32_t at = 0; at < list()->ListCount(); ++at) {
            lines.push_back(list()->List(at));
        }
        return lines;
    }
    std::shared_ptr<ListBox> list() { return get<ListBox>(u"lst_Tape"); }
    /// What the user writes on the periodic keyboard that comes next.
    void writesFormula(StringView formula)
    {
        outside.visual().onModal(u"frm_DialogKeyboardPSE", [formula = String(formula)](Form& keyboard) {
            keyboard.control<clt_TermInput>(u"txt_Input")->Term(formula);
            headless::strike(keyboard, {.key = Key::Return});
        });
    }
};

// The tape.

TEST_F(CalculatorLines, EachWorkedOutLineIsKeptTheLatestOnTop)
{
    open();
    type(u"2+3=");
    type(u"*4=");
    EXPECT_THAT(tape(), ElementsAre(u"5*4 = 20", u"2+3 = 5"));
}

TEST_F(CalculatorLines, ANumberAloneAndALineOnceMoreAreNotKept)
{
    open();
    type(u"7==");
    type(u"+1=");
    calculator.hShow(u"7+1");
    type(u"=");
    EXPECT_THAT(tape(), ElementsAre(u"7+1 = 8"));
}

TEST_F(CalculatorLines, WhatAMemoryKeepsIsKeptHereToo)
{
    open();
    type(u"2+3");
    tap({Store1});
    EXPECT_THAT(tape(), ElementsAre(u"2+3 = 5"));
}

TEST_F(CalculatorLines, ATappedLineComesBack)
{
    open();
    type(u"2+3=");
    type(u"*4=");
    list()->ListIndex(1);
    EXPECT_EQ(line(), u"2+3");
    type(u"+1=");
    EXPECT_EQ(line(), u"6");
}

TEST_F(CalculatorLines, ALongTermLosesItsBeginningAndNeverItsValue)
{
    open();
    calculator.hShow(u"111111111*1111111111");
    type(u"=");
    const String kept = tape().front();
    EXPECT_TRUE(kept.starts_with(u"…")) << toUtf8(kept);
    EXPECT_TRUE(kept.ends_with(u" = " + line())) << toUtf8(kept);
    list()->ListIndex(0);
    EXPECT_EQ(line(), u"111111111*1111111111");
}

// What stands below the line.

TEST_F(CalculatorLines, TheReadingTellsTheTermAndGoesWithAPlainNumber)
{
    open();
    EXPECT_EQ(reading(), u"");
    type(u"3*18,015");
    EXPECT_EQ(reading(), u"3 · 18,015");
    type(u"=");
    EXPECT_EQ(reading(), u"");
}

TEST_F(CalculatorLines, AnErrorIsToldInWordsInTheLanguageInForce)
{
    open();
    type(u"(2+3)*=");
    EXPECT_EQ(line(), u"0");
    EXPECT_EQ(reading(), u"Hinter * fehlt eine Zahl.");
    EXPECT_EQ(get<ctl_Label>(u"Label1")->ForeColor(), Palette::TryAgain);
    LNG()->CURRENT(ID_Language_English);
    tap({Clear});
    type(u"(2+3)*=");
    EXPECT_EQ(reading(), u"A number is missing after *.");
}

TEST_F(CalculatorLines, AResultIsSpoken)
{
    open();
    type(u"2+3=");
    EXPECT_EQ(get<ctl_Label>(u"lab_Term")->frame().announcement(), u"5");
}

// Molar masses.

TEST_F(CalculatorLines, TappedElementsAddTheirMolarMasses)
{
    calculator.ShowPSE(true);
    open();
    tapElement(u"C");
    EXPECT_EQ(line(), u"12");
    tapElement(u"O");
    tapElement(u"O");
    EXPECT_EQ(line(), u"12+16+16");
    type(u"=");
    EXPECT_EQ(line(), u"44");
}

TEST_F(CalculatorLines, AMassThatHasNoRoomIsRefusedWhole)
{
    calculator.ShowPSE(true);
    open();
    calculator.hShow(u"12+16+16+16+16+16+1");
    tapElement(u"Cl");
    EXPECT_EQ(line(), u"12+16+16+16+16+16+1");
}

TEST_F(CalculatorLines, AFormulasMolarMassIsPutIn)
{
    open();
    type(u"3*");
    writesFormula(u"H2O");
    tap({Mass});
    EXPECT_EQ(line(), u"3*18");
    EXPECT_EQ(reading(), u"3 · 18 g/mol");
}

TEST_F(CalculatorLines, AFormulaIsReadWithItsBracketsAndWater)
{
    open();
    writesFormula(u"CuSO4*5H2O");
    tap({Mass});
    EXPECT_EQ(line(), u"249,6");
    tap({Clear});
    writesFormula(u"Ca(OH)2");
    tap({Mass});
    EXPECT_EQ(line(), u"74,1");
}

TEST_F(CalculatorLines, AFormulaThatCannotBeReadIsExplainedAndChangesNothing)
{
    open();
    writesFormula(u"Qq2");
    tap({Mass});
    EXPECT_EQ(line(), u"0");
    EXPECT_NE(reading().find(u"Qq"), String::npos) << toUtf8(reading());
    writesFormula(u"n");
    tap({Mass});
    EXPECT_EQ(line(), u"0");
    EXPECT_EQ(reading(), u"Von dieser Formel kenne ich keine molare Masse.");
}

TEST_F(CalculatorLines, GivingUpTheFormulaChangesNothing)
{
    open();
    outside.visual().onModal(u"frm_DialogKeyboardPSE", [](Form& keyboard) {
        keyboard.control<clt_TermInput>(u"txt_Input")->Term(u"H2O");
        headless::strike(keyboard, {.key = Key::Escape});
    });
    tap({Mass});
    EXPECT_EQ(line(), u"0");
    EXPECT_EQ(reading(), u"");
}

TEST_F(CalculatorLines, WithoutTheElementFileItSaysSoAndGoesOn)
{
    QVAPP()->URL()->ROOT(path(u"nowhere\\"));
    outside.dialogs().expect(headless::Box::Error, u"Die Elemente-Datei des PSE wurde nicht gefunden: " +
                                                       path(u"nowhere\\resources\\data\\elements2.dat"));
    calculator.ShowPSE(true);
    open();
    EXPECT_FALSE(get<ctl_PSE>(u"ctl_PSE")->Visible());
    EXPECT_TRUE(list()->Visible());
    tap({Table});
    EXPECT_FALSE(get<ctl_PSE>(u"ctl_PSE")->Visible());
    type(u"2+3=");
    EXPECT_EQ(line(), u"5");
}

// Variables.

TEST_F(CalculatorLines, VariablesAreKeysWithTheirValues)
{
    CoreTokenList variables;
    variables.Add(u"n", {0.25, u"mol"});
    variables.Add(u"MM", 58.5);
    calculator.Variables(variables);
    open();
    const auto keyOf = [&](std::int32_t at) { return form().control<ctl_Button>(u"but_Var", at); };
    EXPECT_EQ(keyOf(0)->Caption(), u"n = 0,25 mol");
    EXPECT_EQ(keyOf(1)->Caption(), u"MM = 58,5");
    headless::click(*keyOf(0));
    EXPECT_EQ(line(), u"n");
    headless::click(*keyOf(1));
    EXPECT_EQ(line(), u"n*MM");
    EXPECT_EQ(reading(), u"0,25 mol · 58,5");
    type(u"=");
    EXPECT_EQ(line(), u"14,625");
}

TEST_F(CalculatorLines, AVariableWithoutAValueMakesTheTermFail)
{
    CoreTokenList variables;
    variables.Add(u"q", std::span<const Variant>());
    calculator.Variables(variables);
    open();
    EXPECT_EQ(form().control<ctl_Button>(u"but_Var", 0)->Caption(), u"q = ");
    headless::click(*form().control<ctl_Button>(u"but_Var", 0));
    type(u"=");
    EXPECT_NE(line(), u"q");
}

TEST_F(CalculatorLines, AVariableWhoseValueIsNoNumberMakesTheTermFail)
{
    CoreTokenList variables;
    variables.Add(u"q", u"viel");
    calculator.Variables(variables);
    open();
    headless::click(*form().control<ctl_Button>(u"but_Var", 0));
    type(u"=");
    EXPECT_EQ(line(), u"ERROR");
    EXPECT_NE(reading(), u"");
}

} // namespace

} // namespace phial::test
