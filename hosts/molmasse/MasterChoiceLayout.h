#pragma once

#include "visual/FormLayout.h"
#include "visual/ListBox.h"
#include "visual/TextBox.h"
#include "visual/ctl_Button.h"
#include "visual/ctl_Gradient.h"
#include "visual/ctl_Label.h"

/// The design of frm_MasterChoice. Places are pixels.
namespace molmasse::master_choice_layout
{

using phial::design;
using phial::LayoutItem;

inline constexpr double Width = 560;
inline constexpr double Height = 462;

inline constexpr LayoutItem Items[] = {
    design<phial::ctl_Gradient>(u"bar_Header", {0, 0, Width, 64}),
    design<phial::ctl_Label>(u"lab_Title", {24, 0, 512, 64}, u"Klassenraum|Classroom").inside(u"bar_Header"),
    design<phial::ctl_Label>(u"lab_Masters", {24, 80, 512, 24}, u"Gefundene Master:|Masters found:"),
    design<phial::ListBox>(u"lst_Masters", {24, 108, 512, 112}),
    design<phial::ctl_Button>(u"but_Search", {24, 232, 246, 48}, u"Noch einmal suchen|Search again"),
    design<phial::ctl_Label>(u"lab_Found", {290, 232, 246, 48}),
    design<phial::ctl_Label>(u"lab_Address", {24, 292, 512, 24},
                             u"Adresse des Masters:|Address of the master:"),
    design<phial::TextBox>(u"txt_Address", {24, 320, 512, 44}),
    design<phial::ctl_Button>(u"but_Connect", {24, 384, 246, 56}, u"Verbinden|Connect"),
    design<phial::ctl_Button>(u"but_Cancel", {290, 384, 246, 56}, u"Abbrechen|Cancel"),
};

} // namespace molmasse::master_choice_layout
