#pragma once

#include "visual/FormDesign.h"
#include "visual/ListBox.h"
#include "visual/TextBox.h"
#include "visual/ctl_Button.h"
#include "visual/ctl_Gradient.h"
#include "visual/ctl_Label.h"
#include "visual/ctl_Pannel.h"

/// The gallery's design: below the header the list, the stage with its states, and the properties.
namespace gallery::layout
{

using phial::ControlDesign;
using phial::ctl_Button;
using phial::ctl_Gradient;
using phial::ctl_Label;
using phial::ctl_Pannel;
using phial::design;
using phial::FontWeight;
using phial::ListBox;
using phial::StringView;
using phial::TextBox;
namespace Palette = phial::Palette;
using enum phial::TEXTALIGN;

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

/// What a section of the window begins with, large or small, and what it tells below.
inline constexpr ControlDesign heading(StringView name, ControlDesign::Rectangle place, double size,
                                       StringView text = {})
{
    return design<ctl_Label>(name, place, text)
        .font(size, FontWeight::Bold)
        .ink(Palette::Ink)
        .align(MiddleLeft);
}
inline constexpr ControlDesign remark(StringView name, ControlDesign::Rectangle place, phial::Colour ink)
{
    return design<ctl_Label>(name, place).font(10).ink(ink).align(TopLeft);
}

inline constexpr ControlDesign Controls[] = {
    design<ctl_Gradient>(u"bar_Header", {0, 0, Width, HeaderHeight})
        .gradient(Palette::Header, Palette::HeaderDeep, 0),
    design<ctl_Label>(u"lab_Title", {16, 0, 600, HeaderHeight},
                      u"Galerie der Steuerelemente|Gallery of the controls")
        .inside(u"bar_Header")
        .font(18, FontWeight::Bold)
        .ink(Palette::OnHeader)
        .align(MiddleLeft),
    design<ListBox>(u"lst_Exhibits", {16, 80, ListWidth, 572})
        .font(10)
        .ground(Palette::Surface)
        .spoken(u"Steuerelemente|Controls"),
    heading(u"lab_Name", {StageLeft, 76, StageWidth, 34}, 16),
    remark(u"lab_About", {StageLeft, 110, StageWidth, 34}, Palette::Muted),
    design<ctl_Pannel>(u"pan_Stage", {StageLeft, 152, StageWidth, StageHeight})
        .ground(Palette::Surface)
        .edge(Palette::Divider),
    heading(u"lab_States", {StageLeft, 462, StageWidth, 28}, 11, u"Zustände|States"),
    design<ctl_Button>(u"but_State", {StageLeft, 494, StateWidth, 48})
        .repeated(MostStates, StateColumns, StateStepX, StateStepY)
        .font(10)
        .hidden(),
    heading(u"lab_Properties", {RightLeft, 76, 200, 34}, 16, u"Eigenschaften|Properties"),
    remark(u"lab_Path", {RightLeft, 110, 200, 34}, Palette::Muted),
    design<ctl_Button>(u"but_Back", {RightLeft + 204, 104, 108, 40}, u"Zurück|Back")
        .font(10)
        .cancelButton()
        .hidden(),
    design<ListBox>(u"lst_Properties", {RightLeft, 152, RightWidth, StageHeight})
        .font(9)
        .ground(Palette::Surface)
        .spoken(u"Eigenschaften|Properties"),
    heading(u"lab_Property", {RightLeft, 462, RightWidth, 28}, 11),
    design<TextBox>(u"txt_Value", {RightLeft, 494, 192, 48})
        .font(11)
        .ground(Palette::Surface)
        .spoken(u"Wert|Value"),
    design<ctl_Button>(u"but_Set", {RightLeft + 200, 494, 112, 48}, u"Setzen|Set")
        .font(11, FontWeight::Bold)
        .set(u"Accent", true),
    remark(u"lab_Message", {RightLeft, 552, RightWidth, 100}, Palette::Failure),
};

inline constexpr phial::FormDesign Design{.name = u"frm_Gallery",
                                          .caption = u"QV Phial: Galerie|QV Phial: Gallery",
                                          .size = {Width, Height},
                                          .border = phial::BorderStyle::FixedSingle,
                                          .controls = Controls};

} // namespace gallery::layout
