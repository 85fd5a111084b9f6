#pragma once

#include "visual/FormDesign.h"
#include "visual/ctl_CmdBar.h"

/// What the reference sheets have in common: the bar at the bottom, whose buttons search in all of them and
/// close them.
namespace phial::sheet_design
{

inline constexpr double Margin = 16;
inline constexpr double BarHeight = 76;

inline constexpr StringView Confirm = u"DIALOG.OK();";
inline constexpr StringView LooksUp = u"SHEET.LOOKUP();";
inline constexpr ButtonDesign Commands[] = {{LooksUp, u"Nachschlagen|Look up"}, {Confirm, u"OK|OK", true}};

/// The bar below a sheet of that size.
inline constexpr ControlDesign commandBar(double width, double height)
{
    return design<ctl_CmdBar>(u"bar_Buttons", {0, height, width, BarHeight}).buttons(Commands);
}

} // namespace phial::sheet_design
