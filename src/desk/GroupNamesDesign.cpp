#include "desk/GroupNamesDesign.h"

#include "desk/SheetDesign.h"
#include "visual/Label.h"
#include "visual/PictureBox.h"
#include "visual/Shape.h"

namespace phial::tool_group_names_design
{

namespace
{

constexpr double Top = 8;
constexpr double ColumnWidth = NameWidth + FormulaWidth;
constexpr double Width = 2 * sheet_design::Margin + Columns * ColumnWidth;
constexpr double Height = Top + Rows * RowHeight + 8;

/// The lines of a column from above to below; its first line says where it stands.
constexpr ControlDesign lines(std::int32_t column, ControlDesign design)
{
    const std::int32_t first = column * Rows;
    const std::int32_t count = Lines - first < Rows ? Lines - first : Rows;
    design.place.left += sheet_design::Margin + column * ColumnWidth;
    ControlDesign made = design.repeated(count, 1, 0, RowHeight);
    made.index = first;
    return made;
}
constexpr ControlDesign names(std::int32_t column)
{
    return lines(column, design<Label>(u"Gruppe", {0, Top + 7, NameWidth, RowHeight - 14})
                             .font(11)
                             .ink(Palette::Ink)
                             .set(u"SingleLine", true));
}
constexpr ControlDesign formulas(std::int32_t column)
{
    return lines(column, design<PictureBox>(u"Formel", {NameWidth, Top, FormulaWidth, RowHeight})
                             .set(u"AutoRedraw", false)
                             .set(u"PaintsDirectly", true)
                             .set(u"Transparent", true)
                             .set(u"Border", false));
}

constexpr ControlDesign GroupControls[] = {
    design<Shape>(u"shp_Band", {0, Top, Width, RowHeight})
        .repeated(Rows / 2 + 1, 1, 0, 2 * RowHeight)
        .set(u"BorderWidth", 0)
        .set(u"FillStyle", FillStyle::Solid)
        .set(u"FillColor", Palette::Band),
    names(0),
    formulas(0),
    names(1),
    formulas(1),
    names(2),
    formulas(2),
    names(3),
    formulas(3),
    sheet_design::commandBar(Width, Height),
};

} // namespace

constexpr FormDesign Design{.name = u"frm_ToolGroupNames",
                            .caption = u"Namen von Gruppen|Names of groups",
                            .size = {Width, Height + sheet_design::BarHeight},
                            .border = BorderStyle::FixedDialog,
                            .closesByEscape = true,
                            .controls = GroupControls};

} // namespace phial::tool_group_names_design
