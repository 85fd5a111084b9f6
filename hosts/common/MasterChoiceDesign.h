#pragma once

#include "visual/FormDesign.h"
#include "visual/ListBox.h"
#include "visual/TextBox.h"
#include "visual/ctl_Button.h"
#include "visual/ctl_Gradient.h"
#include "visual/ctl_Label.h"

/// The design of frm_MasterChoice.
namespace learning::master_choice_design
{

using phial::ctl_Button;
using phial::ctl_Gradient;
using phial::ctl_Label;
using phial::design;
using phial::FontWeight;
using phial::ListBox;
using phial::TextBox;
namespace Palette = phial::Palette;

inline constexpr double Width = 560;
inline constexpr double Height = 462;

inline constexpr std::int32_t LongestAddress = 255; // characters, as of a host's name

inline constexpr phial::ControlDesign Controls[] = {
    design<ctl_Gradient>(u"bar_Header", {0, 0, Width, 64}).gradient(Palette::Header, Palette::HeaderDeep, 0),
    design<ctl_Label>(u"lab_Title", {24, 0, 512, 64}, u"Klassenraum|Classroom")
        .inside(u"bar_Header")
        .font(18, FontWeight::Bold)
        .ink(Palette::OnHeader),
    design<ctl_Label>(u"lab_Masters", {24, 80, 512, 24}, u"Gefundene Master:|Masters found:")
        .font(11)
        .ink(Palette::Ink),
    design<ListBox>(u"lst_Masters", {24, 108, 512, 112})
        .font(12)
        .ground(Palette::Surface)
        .spoken(u"Gefundene Master|Masters found"),
    design<ctl_Button>(u"but_Search", {24, 232, 246, 48}, u"Noch einmal suchen|Search again").font(12),
    design<ctl_Label>(u"lab_Found", {290, 232, 246, 48}).font(11).ink(Palette::Muted),
    design<ctl_Label>(u"lab_Address", {24, 292, 512, 24}, u"Adresse des Masters:|Address of the master:")
        .font(11)
        .ink(Palette::Ink),
    design<TextBox>(u"txt_Address", {24, 320, 512, 44})
        .font(14)
        .ground(Palette::Surface)
        .set(u"MaxLength", LongestAddress)
        .spoken(u"Adresse des Masters|Address of the master"),
    design<ctl_Button>(u"but_Connect", {24, 384, 246, 56}, u"Verbinden|Connect")
        .font(14, FontWeight::Bold)
        .set(u"Accent", true)
        .defaultButton(),
    design<ctl_Button>(u"but_Cancel", {290, 384, 246, 56}, u"Abbrechen|Cancel")
        .font(14, FontWeight::Bold)
        .cancelButton(),
};

inline constexpr phial::FormDesign Design{.name = u"frm_MasterChoice",
                                          .caption = u"Klassenraum|Classroom",
                                          .size = {Width, Height},
                                          .border = phial::BorderStyle::FixedDialog,
                                          .controls = Controls};

} // namespace learning::master_choice_design
