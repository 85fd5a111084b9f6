#include "desk/OxValuesDesign.h"

#include "desk/SheetDesign.h"
#include "visual/Shape.h"
#include "visual/ctl_Label.h"

namespace phial::tool_ox_values_design
{

namespace
{

using sheet_design::Margin;

constexpr double Top = 56;
constexpr double RowHeight = 40;
constexpr double Width = 920;
constexpr double RuleWidth = 610;
constexpr double ExampleLeft = Margin + RuleWidth + 12;
constexpr double Height = Top + Rules * RowHeight + 8;

constexpr ControlDesign cells(StringView name, double left, double width)
{
    return design<ctl_Label>(name, {left, Top, width, RowHeight})
        .repeated(Rules, 1, 0, RowHeight)
        .font(12)
        .ink(Palette::Ink)
        .align(TEXTALIGN::MiddleLeft);
}

constexpr ControlDesign ValueControls[] = {
    design<Shape>(u"shp_Band", {0, Top, Width, RowHeight})
        .repeated(Rules / 2, 1, 0, 2 * RowHeight)
        .set(u"BorderWidth", 0)
        .set(u"FillStyle", FillStyle::Solid)
        .set(u"FillColor", Palette::Band),
    design<ctl_Label>(u"lab_Intro", {Margin, 8, Width - 2 * Margin, Top - 16},
                      u"Gehe die Regeln von oben nach unten durch. Eine frühere gilt vor einer späteren.|"
                      u"Go through the rules from above to below. An earlier one counts before a later one.")
        .font(12, FontWeight::Bold)
        .ink(Palette::Ink)
        .align(TEXTALIGN::MiddleLeft),
    cells(u"lab_Rule", Margin, RuleWidth),
    cells(u"lab_Example", ExampleLeft, Width - ExampleLeft - Margin),
    sheet_design::commandBar(Width, Height),
};

} // namespace

constexpr FormDesign Design{.name = u"frm_ToolOxValues",
                            .caption = u"Regeln für Oxidationszahlen|Rules for oxidation numbers",
                            .size = {Width, Height + sheet_design::BarHeight},
                            .border = BorderStyle::FixedDialog,
                            .closesByEscape = true,
                            .controls = ValueControls};

} // namespace phial::tool_ox_values_design
