#pragma once

#include "visual/FormLayout.h"
#include "visual/Label.h"
#include "visual/Shape.h"
#include "visual/ctl_Button.h"
#include "visual/ctl_CmdBar.h"
#include "visual/ctl_Pannel.h"
#include "visual/ctl_Title.h"

#include <array>

/// The design of frm_DialogHighscore: a table of ten rows below its column titles, the buttons that turn its
/// pages, and the commands. Places are pixels.
namespace phial::dialog_highscore_layout
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

struct Column {
    StringView name;  ///< of its labels
    StringView title; ///< "German|English"
    double left;
    double width;
    bool right; ///< aligned to the right
};

inline constexpr auto Columns = std::to_array<Column>({
    {u"lab_Rank", u"Rang|Rank", 30, 54, true},
    {u"lab_Name", u"Name|Name", 100, 218, false},
    {u"lab_Ueb", u"Übung|Exercise", 330, 204, false},
    {u"lab_Points", u"Punkte|Points", 544, 70, true},
    {u"lab_time", u"Zeit|Time", 632, 158, false},
});

inline constexpr auto Frame = std::to_array<LayoutItem>({
    design<ctl_Title>(u"bar_Header", {0, 0, Width, 56}, u"Bestenliste|High scores"),
    design<ctl_Pannel>(u"bar_Empty", {Margin, RowsTop, TableWidth, Rows* RowHeight},
                       u"Hier steht noch niemand.|Nobody is in this list yet.")
        .hidden(),
    design<ctl_Button>(u"but_weniger", {Margin, PagingTop, PagingWidth, PagingHeight}, u"Vorige|Previous"),
    design<ctl_Button>(u"but_mehr", {Width - Margin - PagingWidth, PagingTop, PagingWidth, PagingHeight},
                       u"Nächste|Next"),
    design<ctl_CmdBar>(u"bar_Buttons", {0, Height - CommandsHeight, Width, CommandsHeight}),
});

constexpr double rowTop(std::int32_t row)
{
    return RowsTop + row * RowHeight;
}

/// The bands of the rows, the column titles, the labels of the rows, and the frame.
constexpr auto makeItems()
{
    std::array<LayoutItem, Rows + Columns.size() * (Rows + 1) + Frame.size()> items{};
    auto next = items.begin();
    for (std::int32_t row = 0; row < Rows; ++row) {
        *next++ = design<Shape>(u"shp_Row", {Margin, rowTop(row), TableWidth, RowHeight}).at(row);
    }
    std::int32_t index = 0;
    for (const Column& column : Columns) {
        *next++ =
            design<Label>(u"lab_Title", {column.left, TitlesTop, column.width, TitlesHeight}, column.title)
                .at(index++);
        for (std::int32_t row = 0; row < Rows; ++row) {
            *next++ = design<Label>(column.name, {column.left, rowTop(row), column.width, RowHeight}).at(row);
        }
    }
    for (const LayoutItem& item : Frame) {
        *next++ = item;
    }
    return items;
}

inline constexpr auto Items = makeItems();

} // namespace phial::dialog_highscore_layout
