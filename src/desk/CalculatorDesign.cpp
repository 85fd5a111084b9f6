#include "desk/CalculatorDesign.h"

#include "mascot/ctl_Bubble.h"
#include "periodic/ctl_PSE.h"
#include "visual/ListBox.h"
#include "visual/Shape.h"
#include "visual/ctl_Button.h"
#include "visual/ctl_Label.h"
#include "visual/ctl_Pannel.h"

namespace phial::tool_calc_design
{

namespace
{

constexpr double KeyPoints = 14;

/// A key by its row and column; some are wider.
constexpr ControlDesign key(std::int32_t index, std::int32_t row, std::int32_t column, StringView face,
                            StringView spoken, std::int32_t columns = 1)
{
    return design<ctl_Button>(u"but_Key",
                              {Margin + column * (KeyWidth + Gap), KeysTop + row * (KeyHeight + Gap),
                               columns * KeyWidth + (columns - 1) * Gap, KeyHeight},
                              face)
        .at(index)
        .inside(u"bar_Calc")
        .font(KeyPoints)
        .spoken(spoken);
}

/// A key that keeps the value of the line in that memory, counted from 1.
constexpr ControlDesign store(std::int32_t memory, StringView face, StringView spoken)
{
    return design<ctl_Button>(u"but_Key", {0, 0, StoreWidth, MemoryHeight}, face)
        .at(FirstStoreKey + memory - 1)
        .font(11)
        .spoken(spoken);
}

constexpr ControlDesign CalcControls[] = {
    design<ctl_Pannel>(u"bar_Task", {0, 0, CalcWidth, 0})
        .ground(Palette::AccentSoft)
        .edge(Palette::AccentSoft)
        .hidden(),
    design<ctl_Label>(u"lab_Task", {Margin, Gap, CalcWidth - 2 * Margin, 20})
        .inside(u"bar_Task")
        .font(12)
        .ink(Palette::Ink)
        .set(u"AutoSize", true),
    design<ctl_Pannel>(u"bar_Calc", {0, 0, CalcWidth, CalcHeight})
        .ground(Palette::Ground)
        .edge(Palette::Ground),
    design<Shape>(u"shp_Display", {Margin, Margin, KeypadWidth, DisplayHeight})
        .inside(u"bar_Calc")
        .set(u"FillColor", Palette::Field)
        .set(u"FillStyle", FillStyle::Solid)
        .edge(Palette::ControlBorder),
    design<ctl_Label>(u"Label2", {Margin + 6, Margin + 4, 60, 16}, u"RAD")
        .inside(u"bar_Calc")
        .font(8)
        .ink(Palette::Muted)
        .spoken(u"Winkel im Bogenmaß|Angles in radians"),
    design<ctl_Label>(u"lab_Term", {Margin + 4, Margin + 16, KeypadWidth - 8, DisplayHeight - 18})
        .inside(u"bar_Calc")
        .font({.name = u"Courier New", .size = LargestPoints})
        .ink(Palette::Ink)
        .align(TEXTALIGN::MiddleRight)
        .set(u"PlainText", true),
    design<ctl_Label>(u"Label1", {Margin, ReadingTop, KeypadWidth, ReadingHeight})
        .inside(u"bar_Calc")
        .font(11)
        .ink(Palette::Muted)
        .align(TEXTALIGN::MiddleRight),
    key(20, 0, 0, u"PSE", u"Periodensystem|Periodic table"),
    key(21, 0, 1, u"M( )", u"Molare Masse einer Formel|Molar mass of a formula"),
    key(22, 0, 2, u"log", u"Logarithmus|Logarithm"),
    key(10, 0, 3, u"(", u"Klammer auf|Open bracket"),
    key(11, 0, 4, u")", u"Klammer zu|Close bracket"),
    key(7, 1, 0, u"7", u"7|7"),
    key(8, 1, 1, u"8", u"8|8"),
    key(9, 1, 2, u"9", u"9|9"),
    key(23, 1, 3, u"←", u"Letztes Zeichen löschen|Delete the last sign"),
    key(24, 1, 4, u"CE", u"Alles löschen|Clear"),
    key(4, 2, 0, u"4", u"4|4"),
    key(5, 2, 1, u"5", u"5|5"),
    key(6, 2, 2, u"6", u"6|6"),
    key(12, 2, 3, u"×", u"mal|times"),
    key(13, 2, 4, u"÷", u"geteilt durch|divided by"),
    key(1, 3, 0, u"1", u"1|1"),
    key(2, 3, 1, u"2", u"2|2"),
    key(3, 3, 2, u"3", u"3|3"),
    key(14, 3, 3, u"+", u"plus"),
    key(15, 3, 4, u"−", u"minus"),
    key(0, 4, 0, u"0", u"0|0"),
    key(16, 4, 1, u",", u"Komma|Decimal sign"),
    key(17, 4, 2, u"(−)", u"Vorzeichen|Sign"),
    key(18, 4, 3, u"^", u"hoch|to the power of"),
    key(19, 4, 4, u"=", u"ist gleich|equals").set(u"Accent", true),
    key(26, 5, 0, u"Alle Stellen|All digits", u"", 2).font(11),
    key(25, 5, 2, u"OK", u"Ergebnis übernehmen|Take the result", 3).set(u"Accent", true),
    design<ctl_Label>(u"lab_Tape", {0, Margin, TapeWidth, TapeTitleHeight},
                      u"Bisher gerechnet|Worked out so far")
        .font(11)
        .ink(Palette::Muted),
    design<ListBox>(u"lst_Tape", {0, Margin + TapeTitleHeight, TapeWidth, 100})
        .font(10)
        .spoken(u"Bisher gerechnet|Worked out so far"),
    design<ctl_PSE>(u"ctl_PSE", {0, Margin, TableWidth, 300})
        .set(u"FIXEDSIZE", true)
        .set(u"BACKCOLOR", Palette::Ground)
        .set(u"Colouring", TableColours::ByTheme)
        .hidden(),
    store(1, u"STO1", u"In Speicher 1|Store in memory 1"),
    store(2, u"STO2", u"In Speicher 2|Store in memory 2"),
    store(3, u"STO3", u"In Speicher 3|Store in memory 3"),
    store(4, u"STO4", u"In Speicher 4|Store in memory 4"),
    design<ctl_Button>(u"but_Recall", {0, 0, 100, MemoryHeight}).repeated(4, 4, 100, 0).font(11),
    design<ctl_Pannel>(u"bar_Var", {0, 0, CalcWidth, 0})
        .ground(Palette::Footer)
        .edge(Palette::Footer)
        .hidden(),
    design<ctl_Bubble>(u"ctl_Bubble1", {0, 0, 170, 90}).hidden(),
};

} // namespace

constexpr FormDesign Design{.name = u"frm_ToolCalc",
                            .caption = u"Taschenrechner|Pocket calculator",
                            .size = {CalcWidth + TapeWidth + Margin, CalcHeight},
                            .border = BorderStyle::FixedDialog,
                            .isCentred = false,
                            .hearsKeysFirst = true,
                            .closesByEscape = true,
                            .controls = CalcControls};

} // namespace phial::tool_calc_design
