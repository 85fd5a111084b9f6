#pragma once

#include "visual/FormLayout.h"
#include "visual/Label.h"
#include "visual/PictureBox.h"
#include "visual/ctl_CmdBar.h"

/// The design of frm_AppAbout: the program above, the people and the technical facts below. Places are
/// pixels.
namespace phial::app_about_layout
{

inline constexpr double Width = 480;
inline constexpr double Height = 372;

inline constexpr double Emblem = 96;

inline constexpr LayoutItem Items[] = {
    design<ctl_CmdBar>(u"ctl_CmdBar1", {0, Height - 64, Width, 64}), // first of the Tab key's order
    design<PictureBox>(u"Picture1", {24, 24, Emblem, Emblem}),
    design<Label>(u"lab_Product", {144, 22, 312, 58}),
    design<Label>(u"lab_Version", {144, 82, 312, 20}),
    design<Label>(u"lab_Copyright", {144, 104, 312, 36}),
    design<Label>(u"Descript", {24, 160, 432, 20}, u"Programmentwicklung:|Program development:").at(0),
    design<Label>(u"lab_TDR", {24, 160, 120, 20}, u"QV Brunnhof|QV Brunnhof"),
    design<Label>(u"Descript", {24, 188, 432, 20}, u"Besuchen Sie uns im |Visit us on the ").at(1),
    design<Label>(u"lab_Hyperlink", {24, 188, 120, 20}, u"Internet|Internet"),
    design<Label>(u"Descript", {24, 228, 432, 20}, u"Technische Angaben|Technical details").at(2),
    design<Label>(u"lab_Ident", {24, 250, 432, 20}),
    design<Label>(u"lab_Base", {24, 272, 432, 20}),
};

} // namespace phial::app_about_layout
