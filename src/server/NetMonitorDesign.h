#pragma once

#include "visual/FormDesign.h"
#include "visual/ListBox.h"
#include "visual/TextBox.h"
#include "visual/ctl_CmdBar.h"
#include "visual/ctl_Label.h"

/// The design of frm_NetMonitor: the lines, below them the chosen one as a whole, then the buttons, as the
/// window opens; the list takes what a larger one has to spare.
namespace phial::net_monitor_design
{

inline constexpr double Width = 720;
inline constexpr double Height = 440;
inline constexpr double Margin = 16;
inline constexpr double TextHeight = 84;
inline constexpr double BarHeight = 64;
inline constexpr double ListTop = 40;
inline constexpr double ListHeight = Height - ListTop - Margin - TextHeight - BarHeight - Margin;

inline constexpr FontDesign Evenly{.name = u"Courier New", .size = 9};

inline constexpr StringView Clear = u"MONITOR.CLEAR();";
inline constexpr StringView Close = u"DIALOG.OK();";
inline constexpr ButtonDesign Commands[] = {{Clear, u"Leeren|Clear"}, {Close, u"Schließen|Close"}};

inline constexpr ControlDesign Controls[] = {
    design<ctl_Label>(u"lab_Lines", {Margin, 12, Width - 2 * Margin, 22},
                      u"Verkehr mit dem Master|Traffic with the master")
        .font(11)
        .ink(Palette::Ink),
    design<ListBox>(u"lst_Lines", {Margin, ListTop, Width - 2 * Margin, ListHeight})
        .font(Evenly)
        .spoken(u"Verkehr mit dem Master|Traffic with the master"),
    design<TextBox>(u"txt_Line", {Margin, ListTop + ListHeight + Margin, Width - 2 * Margin, TextHeight})
        .font(Evenly)
        .set(u"MultiLine", true)
        .set(u"Locked", true)
        .spoken(u"Gewählte Zeile|Chosen line"),
    design<ctl_CmdBar>(u"bar_Buttons", {0, Height - BarHeight, Width, BarHeight}).buttons(Commands),
};

inline constexpr FormDesign Design{.name = u"frm_NetMonitor",
                                   .caption = u"Netzwerk-Monitor|Network monitor",
                                   .size = {Width, Height},
                                   .closesByEscape = true,
                                   .controls = Controls};

} // namespace phial::net_monitor_design
