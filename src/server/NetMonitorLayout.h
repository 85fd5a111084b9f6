#pragma once

#include "visual/FormLayout.h"
#include "visual/ListBox.h"
#include "visual/TextBox.h"
#include "visual/ctl_CmdBar.h"
#include "visual/ctl_Label.h"

/// The design of frm_NetMonitor: the lines, below them the chosen one as a whole, then the buttons. Places
/// are pixels of the window as it opens; the list takes what a larger one has to spare.
namespace phial::net_monitor_layout
{

inline constexpr double Width = 720;
inline constexpr double Height = 440;
inline constexpr double Margin = 16;
inline constexpr double TextHeight = 84;
inline constexpr double BarHeight = 64;
inline constexpr double ListTop = 40;
inline constexpr double ListHeight = Height - ListTop - Margin - TextHeight - BarHeight - Margin;

inline constexpr LayoutItem Items[] = {
    design<ctl_Label>(u"lab_Lines", {Margin, 12, Width - 2 * Margin, 22},
                      u"Verkehr mit dem Master|Traffic with the master"),
    design<ListBox>(u"lst_Lines", {Margin, ListTop, Width - 2 * Margin, ListHeight}),
    design<TextBox>(u"txt_Line", {Margin, ListTop + ListHeight + Margin, Width - 2 * Margin, TextHeight}),
    design<ctl_CmdBar>(u"bar_Buttons", {0, Height - BarHeight, Width, BarHeight}),
};

} // namespace phial::net_monitor_layout
