#include "app/AppTest.h"
#include "app/cls_AppTools.h"
#include "app/cls_Language.h"
#include "core/CoreParameters.h"
#include "core/CoreTokenList.h"
#include "core/RuntimeError.h"
#include "desk/CalculatorRun.h"
#include "server/ServerTest.h"
#include "support/Places.h"
#include "support/Raises.h"
#include "visual/Form.h"
#include "visual/ctl_Label.h"

#include <gtest/gtest.h>

namespace phial
{

namespace
{

class CalculatorCall : public AppTest
{
protected:
    CalculatorCall()
    {
        outside.display().resize(1920, 1080);
        LNG()->CURRENT(ID_Language_German);
        QVAPP()->URL()->ROOT(systemPath(test::treeFolder()) + u"\\");
    }

    cls_AppTools& tools = *QVAPP()->TOOLS();

    void play(const std::function<void(Form&)>& user) { outside.visual().onModal(u"frm_ToolCalc", user); }
    void typesAndTakes(StringView keys)
    {
        play([keys = String(keys)](Form& form) {
            test::typeSigns(form, keys);
            test::strikeWithControl(form, {.key = Key::Return});
        });
    }
    void closes()
    {
        play([](Form& form) { form.Unload(); });
    }
    static String lineOf(Form& form) { return form.control<ctl_Label>(u"lab_Term")->Caption(); }
};

TEST_F(CalculatorCall, GivesTheResultThatOkHasTaken)
{
    typesAndTakes(u"6*7");
    EXPECT_EQ(tools.CALC(), 42);
}

TEST_F(CalculatorCall, ThePresetStandsOnTheLine)
{
    play([](Form& form) {
        EXPECT_EQ(lineOf(form), u"2,5");
        test::typeSigns(form, u"*2");
        test::strikeWithControl(form, {.key = Key::Return});
    });
    EXPECT_EQ(tools.CALC(2.5), 5);
}

TEST_F(CalculatorCall, APresetIsNeverCut)
{
    play([](Form& form) {
        EXPECT_EQ(lineOf(form), u"-3,3333333333333E-21");
        form.Unload();
    });
    EXPECT_EQ(tools.CALC(-1E-20 / 3), -1E-20 / 3);
}

TEST_F(CalculatorCall, APresetMayBeText)
{
    closes();
    EXPECT_EQ(tools.CALC(u"12"), 12);
    EXPECT_RAISES(tools.CALC(u"zwölf"), TypeMismatch);
}

TEST_F(CalculatorCall, ClosedOtherwiseItGivesThePreset)
{
    play([](Form& form) {
        test::typeSigns(form, u"6*7=");
        headless::strike(form, {.key = Key::Escape});
    });
    EXPECT_EQ(tools.CALC(3), 3);
}

TEST_F(CalculatorCall, ClosedOtherwiseItGivesWhatWasAskedForThat)
{
    closes();
    EXPECT_EQ(tools.CALC(3, -1, -1, nullptr, false, -1), -1);
    closes();
    EXPECT_EQ(tools.CALC(3, -1, -1, nullptr, false, u"0,5"), 0.5);
    closes();
    EXPECT_EQ(tools.CALC(3, -1, -1, nullptr, false, u"DEFAULT"), 3);
    closes();
    EXPECT_RAISES(tools.CALC(3, -1, -1, nullptr, false, u"default"), TypeMismatch) << "the word is exact";
}

TEST_F(CalculatorCall, ItOpensAtThePointerOrAtTheGivenCorner)
{
    outside.display().moveCursor(200, 120);
    play([](Form& form) {
        EXPECT_EQ(form.Left(), 200 * 15);
        EXPECT_EQ(form.Top(), 120 * 15);
        form.Unload();
    });
    tools.CALC();
    play([](Form& form) {
        EXPECT_EQ(form.Left(), 3000);
        EXPECT_EQ(form.Top(), 120 * 15) << "each for itself";
        form.Unload();
    });
    tools.CALC(0, 3000);
}

TEST_F(CalculatorCall, VariablesTableTitleAndTaskAreHandedOn)
{
    CoreTokenList variables;
    variables.Add(u"n", 2);
    CoreParameters flags;
    flags.Set(u"TASK", u"Wie viel?");
    play([](Form& form) {
        EXPECT_EQ(form.Caption(), u"Dreisatz");
        EXPECT_TRUE(form.control<Control>(u"ctl_PSE")->Visible());
        EXPECT_EQ(form.control<ctl_Label>(u"lab_Task")->Caption(), u"Wie viel?");
        headless::click(*form.control<Control>(u"but_Var", 0));
        test::typeSigns(form, u"*4");
        test::strikeWithControl(form, {.key = Key::Return});
    });
    EXPECT_EQ(tools.CALC(0, -1, -1, &variables, true, u"DEFAULT", u"Dreisatz", &flags), 8);
    flags.Set(u"TASK", u"Etwas anderes");
    EXPECT_EQ(variables.Count(), 1);
}

/// In a lesson.
class CalculatorInLesson : public ServerTest
{
protected:
    CalculatorInLesson()
    {
        LNG()->CURRENT(ID_Language_German);
        QVAPP()->URL()->ROOT(systemPath(test::treeFolder()) + u"\\");
        logOn();
    }
};

TEST_F(CalculatorInLesson, MayBeUsedUnlessTheTeacherHasSwitchedItOff)
{
    outside.visual().onModal(u"frm_ToolCalc", [](Form& form) {
        test::typeSigns(form, u"6*7");
        test::strikeWithControl(form, {.key = Key::Return});
    });
    EXPECT_EQ(QVAPP()->TOOLS()->CALC(), 42);
    master.knows(u"PROPERTIES:GET", false);
    outside.dialogs().expect(headless::Box::Info, u"Der Taschenrechner ist in dieser Stunde ausgeschaltet.");
    EXPECT_EQ(QVAPP()->TOOLS()->CALC(3), 3);
}

} // namespace

} // namespace phial
