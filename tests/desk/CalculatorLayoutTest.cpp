#include "core/CoreTokenList.h"
#include "desk/CalculatorRun.h"
#include "visual/ListBox.h"
#include "visual/VisualHost.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <vector>

namespace phial::test
{

namespace
{

using namespace calc_keys;

class CalculatorLayout : public CalculatorRun
{
protected:
    double width() { return form().ScaleWidth(); }
    PixelRectangle placeOf(StringView name) { return get<Control>(name)->frame().pixelRectangle(); }
    bool isShown(StringView name) { return get<Control>(name)->Visible(); }
    double size() { return get<ctl_Label>(u"lab_Term")->Font()->Size(); }
    double roomFor(StringView text)
    {
        return visualHost().metrics().face(get<ctl_Label>(u"lab_Term")->Font()->traits())->width(text);
    }
    void cornerIs(double left, double top)
    {
        EXPECT_DOUBLE_EQ(form().Left() / 15, left);
        EXPECT_DOUBLE_EQ(form().Top() / 15, top);
    }
};

// The font of the line.

TEST_F(CalculatorLayout, AShortLineStandsInTheLargestFont)
{
    open();
    EXPECT_EQ(get<ctl_Label>(u"lab_Term")->Font()->Name(), u"Courier New");
    EXPECT_EQ(size(), 26);
}

TEST_F(CalculatorLayout, ALongLineStandsInTheLargestFontThatHasRoom)
{
    open();
    get<ctl_Label>(u"lab_Term")->frame().pixelRectangle({0, 0, 160, 40});
    const double room = 150;
    for (std::size_t length = 1; length <= 20; ++length) {
        const String text(length, u'8');
        calculator.hShow(text);
        EXPECT_LE(roomFor(text), room) << length;
        if (size() < 26) {
            get<ctl_Label>(u"lab_Term")->Font()->Size(size() + 1);
            EXPECT_GT(roomFor(text), room) << length;
        }
    }
    calculator.hShow(u"1");
    EXPECT_EQ(size(), 26);
}

TEST_F(CalculatorLayout, NoFontIsSmallerThanFive)
{
    open();
    get<ctl_Label>(u"lab_Term")->frame().pixelRectangle({0, 0, 12, 40});
    calculator.hShow(u"12345678901234567890");
    EXPECT_EQ(size(), 5);
}

// The table.

TEST_F(CalculatorLayout, TheTableComesAndGoesAndTheWindowFits)
{
    open();
    EXPECT_FALSE(isShown(u"ctl_PSE"));
    const double before = width();
    tap({Table});
    EXPECT_TRUE(isShown(u"ctl_PSE"));
    EXPECT_FALSE(isShown(u"lst_Tape"));
    EXPECT_FALSE(isShown(u"lab_Tape"));
    EXPECT_GT(width(), before);
    EXPECT_LE(width(), 1024);
    tap({Table});
    EXPECT_FALSE(isShown(u"ctl_PSE"));
    EXPECT_TRUE(isShown(u"lst_Tape"));
    EXPECT_EQ(width(), before);
}

TEST_F(CalculatorLayout, NothingOverlapsAndNothingStandsOutside)
{
    for (const bool hasTable : {false, true}) {
        frm_ToolCalc made;
        CoreTokenList variables;
        for (const StringView name : {u"a", u"b", u"c", u"d", u"e", u"f", u"g"}) {
            variables.Add(name, {123.456, u"mmol/l"});
        }
        made.Variables(variables);
        made.Parameters().Set(u"TASK", u"Eine Aufgabe, die eine Zeile und noch ein gutes Stück mehr als eine "
                                       u"Zeile braucht, weil sie so viel zu erzählen hat.");
        made.ShowPSE(hasTable);
        made.form().Show();
        const double width = made.form().ScaleWidth();
        const double height = made.form().ScaleHeight();
        EXPECT_LE(width, 1024);
        double lowest = 0;
        for (const StringView name : {u"bar_Task", u"bar_Calc", u"bar_Var"}) {
            const PixelRectangle area = made.form().control<Control>(name)->frame().pixelRectangle();
            EXPECT_GE(area.top, lowest) << toUtf8(name);
            EXPECT_LE(area.left + area.width, width);
            lowest = area.top + area.height;
        }
        EXPECT_DOUBLE_EQ(lowest, height);
        for (std::int32_t memory = 0; memory < 4; ++memory) {
            const auto store =
                made.form().control<Control>(u"but_Key", Store1 + memory)->frame().pixelRectangle();
            const auto shown = made.form().control<Control>(u"but_Recall", memory)->frame().pixelRectangle();
            EXPECT_LT(store.left + store.width, shown.left);
            EXPECT_LE(shown.left + shown.width, width - 8);
            EXPECT_LE(shown.top + shown.height,
                      made.form().control<Control>(u"bar_Var")->frame().pixelRectangle().top);
            EXPECT_GE(shown.width, 34);
            EXPECT_GE(shown.height, 34) << "9 mm at 96 dots an inch";
        }
        made.form().discard();
    }
}

/// The areas of what stands on the form beside the keypad.
std::vector<PixelRectangle> areasBeside(const Form& form, bool hasTable)
{
    std::vector<PixelRectangle> areas;
    const auto add = [&](StringView name, std::int32_t index = -1) {
        areas.push_back(form.control<Control>(name, index)->frame().pixelRectangle());
    };
    add(u"bar_Calc");
    add(u"bar_Var");
    if (hasTable) {
        add(u"ctl_PSE");
    } else {
        add(u"lab_Tape");
        add(u"lst_Tape");
    }
    for (std::int32_t memory = 0; memory < 4; ++memory) {
        add(u"but_Key", Store1 + memory);
        add(u"but_Recall", memory);
    }
    return areas;
}

bool overlap(const PixelRectangle& one, const PixelRectangle& other)
{
    return one.left < other.left + other.width && other.left < one.left + one.width &&
           one.top < other.top + other.height && other.top < one.top + one.height;
}

TEST_F(CalculatorLayout, WhatStandsBesideTheKeypadSharesTheRoom)
{
    CoreTokenList variables;
    variables.Add(u"n", 2);
    calculator.Variables(variables);
    open();
    for (const bool hasTable : {false, true}) {
        if (hasTable) {
            tap({Table});
        }
        const auto areas = areasBeside(form(), hasTable);
        double right = 0;
        for (std::size_t one = 0; one < areas.size(); ++one) {
            for (std::size_t other = 0; other < one; ++other) {
                EXPECT_FALSE(overlap(areas[one], areas[other])) << one << " and " << other;
            }
            if (one > 1) { // neither bar
                right = std::max(right, areas[one].left + areas[one].width);
                EXPECT_GE(areas[one].left, areas[0].left + areas[0].width);
                EXPECT_LE(areas[one].top + areas[one].height, areas[1].top - 8);
            }
        }
        EXPECT_DOUBLE_EQ(right, width() - 16);
        EXPECT_EQ(areas[0].left, 0);
        const PixelRectangle lastRecall = areas.back();
        EXPECT_DOUBLE_EQ(lastRecall.top + lastRecall.height, areas[0].height - 16) << "level with OK";
    }
}

TEST_F(CalculatorLayout, KeysOfVariablesStandInEvenRows)
{
    CoreTokenList variables;
    for (const StringView name : {u"a", u"b", u"c", u"d", u"e", u"f", u"g"}) {
        variables.Add(name, {123.456, u"mmol/l"});
    }
    calculator.Variables(variables);
    open();
    const auto area = [&](std::int32_t at) {
        return form().control<Control>(u"but_Var", at)->frame().pixelRectangle();
    };
    std::int32_t columns = 1;
    while (columns < 7 && area(columns).top == area(0).top) {
        ++columns;
    }
    EXPECT_GT(columns, 1);
    EXPECT_LT(columns, 7) << "with their units they need two rows";
    EXPECT_EQ(area(0).left, 16);
    const PixelRectangle last = area(columns - 1);
    EXPECT_NEAR(last.left + last.width, width() - 16, 0.01);
    for (std::int32_t at = 1; at < 7; ++at) {
        const double step = (area(0).width + 8) * (at % columns);
        EXPECT_NEAR(area(at).left, 16 + step, 0.01) << at;
        const std::int32_t row = at / columns;
        EXPECT_NEAR(area(at).top, area(0).top + row * (area(0).height + 8), 0.01) << at;
        EXPECT_GE(area(at).width, roomFor(u"a = 123,456 mmol/l") * 11 / size()) << at;
    }
}

TEST_F(CalculatorLayout, WithTaskAndVariablesItHasRoomOnASmallScreen)
{
    CoreTokenList variables;
    variables.Add(u"n", {0.25, u"mol"});
    variables.Add(u"M", {58.5, u"g/mol"});
    calculator.Variables(variables);
    calculator.Parameters().Set(u"TASK", u"Wie viel wiegen 0,25 mol Natriumchlorid?");
    open();
    EXPECT_LE(form().ScaleHeight(), 600 - 40) << "with a title";
}

TEST_F(CalculatorLayout, IsShownSmallerWhereItHasNoRoomAndLargeAgainWhereItHas)
{
    outside.display().resize(800, 600);
    open();
    EXPECT_EQ(form().Zoom(), 1);
    const double before = form().Width();
    tap({Table});
    EXPECT_LT(form().Zoom(), 1);
    EXPECT_GT(form().Zoom(), 0.7);
    EXPECT_LE(form().Width() / 15, 800);
    EXPECT_EQ(placeOf(u"bar_Calc").left, 0);
    cornerIs(0, form().Top() / 15);
    tap({Table});
    EXPECT_EQ(form().Zoom(), 1);
    EXPECT_EQ(form().Width(), before);
}

TEST_F(CalculatorLayout, KeepsTheZoomOfTheProgramThatOpensIt)
{
    const auto program = std::make_shared<Form>(u"frm_Program");
    program->Zoom(1.25);
    program->Show();
    program->inputActivate();
    outside.visual().onModal(u"frm_ToolCalc", [&](Form& dialog) {
        EXPECT_EQ(dialog.Zoom(), 1.25);
        tap({Table});
        EXPECT_EQ(dialog.Zoom(), 1.25);
        tap({Table});
        EXPECT_EQ(dialog.Zoom(), 1.25);
        dialog.Unload();
    });
    form().Show(FormShow::Modal);
    program->discard();
}

TEST_F(CalculatorLayout, ManyVariablesAreOnTheScreenToo)
{
    outside.display().resize(1024, 600);
    CoreTokenList variables;
    for (int at = 0; at < 40; ++at) {
        variables.Add(u"variable" + String(Variant(at).toText()), {123.456, u"mmol/l"});
    }
    calculator.Variables(variables);
    open();
    EXPECT_LT(form().Zoom(), 1);
    EXPECT_LE((form().Top() + form().Height()) / 15, 600.01);
    EXPECT_GE(form().Top(), 0);
    const PixelRectangle last = form().control<Control>(u"but_Var", 39)->frame().pixelRectangle();
    EXPECT_LE(last.top + last.height, form().ScaleHeight());
}

// Task, variables, title.

TEST_F(CalculatorLayout, BarsAreThereOnlyWithWhatTheyShow)
{
    open();
    EXPECT_FALSE(isShown(u"bar_Task"));
    EXPECT_FALSE(isShown(u"bar_Var"));
    EXPECT_EQ(placeOf(u"bar_Calc").top, 0);
}

TEST_F(CalculatorLayout, ATaskStandsAboveTheKeys)
{
    calculator.Parameters().Set(u"TASK", u"Rechne!");
    open();
    EXPECT_TRUE(isShown(u"bar_Task"));
    EXPECT_EQ(get<ctl_Label>(u"lab_Task")->Caption(), u"Rechne!");
    EXPECT_EQ(placeOf(u"bar_Calc").top, placeOf(u"bar_Task").height);
}

TEST_F(CalculatorLayout, ACaptionOfItsOwnStaysInEitherLanguage)
{
    open();
    EXPECT_EQ(form().Caption(), u"Taschenrechner");
    LNG()->CURRENT(ID_Language_English);
    EXPECT_EQ(form().Caption(), u"Pocket calculator");
    form().Unload();
    calculator.Title(u"Dreisatz");
    open();
    EXPECT_EQ(form().Caption(), u"Dreisatz");
    LNG()->CURRENT(ID_Language_German);
    EXPECT_EQ(form().Caption(), u"Dreisatz");
}

// Its place.

TEST_F(CalculatorLayout, WithoutACornerItStandsInTheMiddle)
{
    open();
    cornerIs((1920 - form().Width() / 15) / 2, (1080 - form().Height() / 15) / 2);
}

TEST_F(CalculatorLayout, TheCornerIsMovedSoThatAllOfItIsOnTheScreen)
{
    calculator.Corner(PixelPoint{100 * 15, 60 * 15});
    open();
    cornerIs(100, 60);
    form().Unload();
    calculator.Corner(PixelPoint{1910 * 15, 1070 * 15});
    open();
    cornerIs(1920 - form().Width() / 15, 1080 - form().Height() / 15);
}

TEST_F(CalculatorLayout, WhatTheUserHasMovedStaysThereWhenTheTableComes)
{
    open();
    form().Move(300 * 15, 200 * 15);
    tap({Table});
    cornerIs(300, 200);
    tap({Table});
    form().Move(1900 * 15, 200 * 15);
    tap({Table});
    cornerIs(1920 - form().Width() / 15, 200);
}

} // namespace

} // namespace phial::test
