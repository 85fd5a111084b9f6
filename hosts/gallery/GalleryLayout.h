#pragma once

#include "visual/FormLayout.h"
#include "visual/ListBox.h"
#include "visual/TextBox.h"
#include "visual/ctl_Button.h"
#include "visual/ctl_Gradient.h"
#include "visual/ctl_Label.h"
#include "visual/ctl_Pannel.h"

/// The gallery's design: below the header the list, the stage with its states, and the properties. Places are
/// pixels.
namespace gallery::layout
{

using phial::design;
using phial::LayoutItem;

inline constexpr double Width = 1024;
inline constexpr double Height = 668;
inline constexpr double HeaderHeight = 64;

inline constexpr double ListWidth = 228;
inline constexpr double StageLeft = 260;
inline constexpr double StageWidth = 420;
inline constexpr double StageHeight = 300;
inline constexpr double RightLeft = 696;
inline constexpr double RightWidth = 312;

/// The buttons of the states, row by row.
inline constexpr int StateColumns = 3;
inline constexpr int MostStates = 9;
inline constexpr double StateWidth = 132;
inline constexpr double StateStepX = 144;
inline constexpr double StateStepY = 56;

inline constexpr LayoutItem Frame[] = {
    design<phial::ctl_Gradient>(u"bar_Header", {0, 0, Width, HeaderHeight}),
    design<phial::ListBox>(u"lst_Exhibits", {16, 80, ListWidth, 572}),
    design<phial::ctl_Label>(u"lab_Name", {StageLeft, 76, StageWidth, 34}),
    design<phial::ctl_Label>(u"lab_About", {StageLeft, 110, StageWidth, 34}),
    design<phial::ctl_Pannel>(u"pan_Stage", {StageLeft, 152, StageWidth, StageHeight}),
    design<phial::ctl_Label>(u"lab_States", {StageLeft, 462, StageWidth, 28}, u"Zustände|States"),
    design<phial::ctl_Button>(u"but_State", {StageLeft, 494, StateWidth, 48}).at(0).hidden(),
    design<phial::ctl_Label>(u"lab_Properties", {RightLeft, 76, 200, 34}, u"Eigenschaften|Properties"),
    design<phial::ctl_Label>(u"lab_Path", {RightLeft, 110, 200, 34}),
    design<phial::ctl_Button>(u"but_Back", {RightLeft + 204, 104, 108, 40}, u"Zurück|Back").hidden(),
    design<phial::ListBox>(u"lst_Properties", {RightLeft, 152, RightWidth, StageHeight}),
    design<phial::ctl_Label>(u"lab_Property", {RightLeft, 462, RightWidth, 28}),
    design<phial::TextBox>(u"txt_Value", {RightLeft, 494, 192, 48}),
    design<phial::ctl_Button>(u"but_Set", {RightLeft + 200, 494, 112, 48}, u"Setzen|Set"),
    design<phial::ctl_Label>(u"lab_Message", {RightLeft, 552, RightWidth, 100}),
};

inline constexpr LayoutItem Header[] = {
    design<phial::ctl_Label>(u"lab_Title", {16, 0, 600, HeaderHeight},
                             u"Galerie der Steuerelemente|Gallery of the controls")
        .inside(u"bar_Header"),
};

} // namespace gallery::layout
