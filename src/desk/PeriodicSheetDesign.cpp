#include "desk/PeriodicSheetDesign.h"

#include "desk/SheetDesign.h"
#include "mascot/ctl_Bubble.h"
#include "periodic/ctl_PSE.h"
#include "visual/PictureBox.h"
#include "visual/ctl_Button.h"
#include "visual/ctl_Pannel.h"

namespace phial::tool_periodic_design
{

namespace
{

using sheet_design::Margin;

constexpr double TableWidth = 722; // 19 cells of 38 pixels
constexpr double TableHeight = 475;
constexpr double Width = TableWidth + 2 * Margin;
constexpr double Height = TableHeight;
constexpr double ButtonWidth = 170;
constexpr double ButtonHeight = 48;
constexpr double ButtonTop = Height + (sheet_design::BarHeight - ButtonHeight) / 2;

/// The tables follow the holder's size when the sheet opens.
constexpr ControlDesign table(StringView name)
{
    return design<ctl_PSE>(name, {Margin, 0, 100, 100})
        .set(u"FIXEDSIZE", true)
        .set(u"BACKCOLOR", Palette::Ground)
        .set(u"Colouring", TableColours::ByTheme);
}

constexpr ControlDesign PeriodicControls[] = {
    design<ctl_Pannel>(u"frm_P1Holder", {Margin, 0, TableWidth, TableHeight})
        .ground(Palette::Ground)
        .edge(Palette::Ground)
        .hidden(),
    design<PictureBox>(u"frm_P1", {0, 0, TableWidth, TableHeight})
        .inside(u"frm_P1Holder")
        .set(u"Border", false)
        .spoken(u"Bild des Periodensystems|Picture of the periodic table"),
    table(u"frm_P2"),
    table(u"frm_P3").hidden(),
    sheet_design::commandBar(Width, Height),
    design<ctl_Button>(u"but_Change", {Margin, ButtonTop, ButtonWidth, ButtonHeight}).font(12),
    design<ctl_Button>(u"but_NamSymb", {Margin + ButtonWidth + 8, ButtonTop, ButtonWidth, ButtonHeight})
        .font(12),
    design<ctl_Bubble>(u"ctl_Bubble1", {0, 0, 170, 90}).hidden(),
};

} // namespace

constexpr FormDesign Design{.name = u"frm_ToolPeriodensystem",
                            .caption = u"Periodensystem|Periodic table",
                            .size = {Width, Height + sheet_design::BarHeight},
                            .border = BorderStyle::FixedDialog,
                            .closesByEscape = true,
                            .controls = PeriodicControls};

} // namespace phial::tool_periodic_design
