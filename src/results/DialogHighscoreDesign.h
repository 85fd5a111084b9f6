#pragma once

#include "visual/FormDesign.h"
#include "visual/Label.h"
#include "visual/Shape.h"
#include "visual/ctl_Button.h"
#include "visual/ctl_CmdBar.h"
#include "visual/ctl_Pannel.h"
#include "visual/ctl_Title.h"

/// The design of frm_DialogHighscore: a table of ten rows below its column titles, the buttons that turn its
/// pages, and the commands.
namespace phial::dialog_highscore_design
{

inline constexpr double Width = 820;
inline constexpr double Height = 566;
inline constexpr double Margin = 24;
inline constexpr double TableWidth = Width - 2 * Margin;

inline constexpr double TitlesTop = 72;
inline constexpr double TitlesHeight = 30;
inline constexpr double RowsTop = TitlesTop + TitlesHeight;
inline constexpr double RowHeight = 30;
inline constexpr std::int32_t Rows = 10;
inline constexpr double PagingTop = RowsTop + Rows * RowHeight + 12;
inline constexpr double PagingWidth = 180;
inline constexpr double PagingHeight = 48;
inline constexpr double CommandsHeight = 76;

inline constexpr double RowSize = 11; // points

inline constexpr StringView Reset = u"DIALOG.RESET();";
inline constexpr StringView Accept = u"DIALOG.ACCEPT();";
inline constexpr StringView Confirm = u"DIALOG.OK();";
inline constexpr ButtonDesign Commands[] = {{Reset, u"Zurücksetzen|Reset"}, {Confirm, u"OK|OK", true}};

/// Every second row of the table, from the first or the second one on.
inline constexpr ControlDesign band(StringView name, std::int32_t first, Colour colour)
{
    return design<Shape>(name, {Margin, RowsTop + first * RowHeight, TableWidth, RowHeight})
        .repeated(Rows / 2, 1, 0, 2 * RowHeight)
        .set(u"BorderWidth", 0)
        .set(u"FillStyle", FillStyle::Solid)
        .set(u"FillColor", colour);
}

/// The title of a column, and below it a label a row.
inline constexpr ControlDesign title(std::int32_t column, double left, double width, Alignment alignment,
                                     StringView text)
{
    return design<Label>(u"lab_Title", {left, TitlesTop, width, TitlesHeight}, text)
        .at(column)
        .font(10, FontWeight::Bold)
        .ink(Palette::Muted)
        .align(alignment)
        .set(u"SingleLine", true);
}
inline constexpr ControlDesign cells(StringView name, double left, double width, Alignment alignment)
{
    return design<Label>(name, {left, RowsTop, width, RowHeight})
        .repeated(Rows, 1, 0, RowHeight)
        .font(RowSize)
        .ink(Palette::Ink)
        .align(alignment)
        .set(u"SingleLine", true);
}

inline constexpr ControlDesign Controls[] = {
    band(u"shp_Row", 0, Palette::Surface),
    band(u"shp_Band", 1, Palette::Band),
    title(0, 30, 54, Alignment::Right, u"Rang|Rank"),
    cells(u"lab_Rank", 30, 54, Alignment::Right),
    title(1, 100, 218, Alignment::Left, u"Name|Name"),
    cells(u"lab_Name", 100, 218, Alignment::Left),
    title(2, 330, 204, Alignment::Left, u"Übung|Exercise"),
    cells(u"lab_Ueb", 330, 204, Alignment::Left),
    title(3, 544, 70, Alignment::Right, u"Punkte|Points"),
    cells(u"lab_Points", 544, 70, Alignment::Right),
    title(4, 632, 158, Alignment::Left, u"Zeit|Time"),
    cells(u"lab_time", 632, 158, Alignment::Left),
    design<ctl_Title>(u"bar_Header", {0, 0, Width, 56}, u"Bestenliste|High scores")
        .font(16, FontWeight::Bold)
        .set(u"Closable", false)
        .unfocusable(),
    design<ctl_Pannel>(u"bar_Empty", {Margin, RowsTop, TableWidth, Rows* RowHeight},
                       u"Hier steht noch niemand.|Nobody is in this list yet.")
        .font(14)
        .ink(Palette::AccentDeep)
        .ground(Palette::Surface)
        .edge(Palette::Divider)
        .hidden(),
    design<ctl_Button>(u"but_weniger", {Margin, PagingTop, PagingWidth, PagingHeight}, u"Vorige|Previous")
        .font(11),
    design<ctl_Button>(u"but_mehr", {Width - Margin - PagingWidth, PagingTop, PagingWidth, PagingHeight},
                       u"Nächste|Next")
        .font(11),
    design<ctl_CmdBar>(u"bar_Buttons", {0, Height - CommandsHeight, Width, CommandsHeight}).buttons(Commands),
};

inline constexpr FormDesign Design{.name = u"frm_DialogHighscore",
                                   .caption = u"Bestenliste|High scores",
                                   .size = {Width, Height},
                                   .border = BorderStyle::FixedDialog,
                                   .hearsKeysFirst = true,
                                   .controls = Controls};

} // namespace phial::dialog_highscore_design
