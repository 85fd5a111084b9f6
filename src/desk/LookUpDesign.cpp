#include "desk/LookUpDesign.h"

#include "desk/SheetDesign.h"
#include "visual/ComboBox.h"
#include "visual/Label.h"
#include "visual/ListView.h"
#include "visual/TextBox.h"

namespace phial::tool_look_up_design
{

namespace
{

using sheet_design::Margin;

constexpr double Width = 920;
constexpr double Height = 444;
constexpr double Field = 40;
constexpr double SheetsWidth = 250;
constexpr double SoughtLeft = 110;

constexpr ButtonDesign Commands[] = {{Asks, u"Üben|Practise"},
                                     {Copies, u"Kopieren|Copy"},
                                     {Prints, u"Drucken|Print"},
                                     {sheet_design::Confirm, u"OK|OK"}};

constexpr ControlDesign LookUpControls[] = {
    design<Label>(u"lab_Sought", {Margin, 12, SoughtLeft - Margin, Field}, u"Suchen:|Search:")
        .font(12)
        .ink(Palette::Ink)
        .set(u"SingleLine", true),
    design<TextBox>(u"txt_Sought", {SoughtLeft, 12, Width - SoughtLeft - SheetsWidth - 2 * Margin, Field})
        .font(13)
        .ground(Palette::Field)
        .spoken(u"Suchen|Search"),
    design<ComboBox>(u"cbo_Sheets", {Width - Margin - SheetsWidth, 12, SheetsWidth, Field})
        .font(12)
        .set(u"Style", ComboStyle::ListOnly)
        .spoken(u"Blatt|Sheet"),
    design<ListView>(u"lst_Found", {Margin, 64, Width - 2 * Margin, Height - 64 - 36})
        .font(12)
        .ground(Palette::Surface)
        .ink(Palette::Ink)
        .spoken(u"Gefunden|Found"),
    design<Label>(u"lab_State", {Margin, Height - 32, Width - 2 * Margin, 28})
        .font(11)
        .ink(Palette::Muted)
        .set(u"SingleLine", true),
    design<ctl_CmdBar>(u"bar_Buttons", {0, Height, Width, sheet_design::BarHeight}).buttons(Commands),
};

} // namespace

constexpr FormDesign Design{.name = u"frm_ToolLookUp",
                            .caption = u"Nachschlagen|Look up",
                            .size = {Width, Height + sheet_design::BarHeight},
                            .border = BorderStyle::FixedDialog,
                            .closesByEscape = true,
                            .controls = LookUpControls};

} // namespace phial::tool_look_up_design
