#pragma once

#include "common/FrameDesign.h"
#include "common/NumberPad.h"
#include "term/ctl_TermLabel.h"
#include "visual/TextBox.h"

/// What the trainer shows on its page of tasks: the formula's card, the answer with its unit, and the pad.
namespace molmasse::trainer_design
{

using phial::ctl_Label;
using phial::ctl_TermLabel;
using phial::design;
using phial::TextBox;
namespace Palette = phial::Palette;
using enum phial::TEXTALIGN;

inline constexpr phial::ControlDesign Controls[] = {
    learning::frame_design::card(u"pan_Formula"),
    design<ctl_TermLabel>(u"trm_Formula", {16, 24, 528, 84})
        .inside(u"pan_Formula")
        .font(38)
        .ink(Palette::Ink)
        .align(MiddleCentre),
    design<ctl_Label>(u"lab_Name", {16, 120, 528, 36})
        .inside(u"pan_Formula")
        .font(13)
        .ink(Palette::Muted)
        .align(MiddleCentre),
    design<TextBox>(u"txt_Answer", {32, 272, 220, 64})
        .inside(u"pan_Task")
        .font(24)
        .ground(Palette::Surface)
        .align(phial::Alignment::Right)
        .set(u"MaxLength", 12)
        .spoken(u"Molare Masse in g/mol|Molar mass in g/mol"),
    design<ctl_Label>(u"lab_Unit", {264, 272, 100, 64}, u"g/mol|g/mol")
        .inside(u"pan_Task")
        .font(18)
        .ink(Palette::Ink)
        .align(MiddleLeft),
    learning::NumberPad::row(),
};

} // namespace molmasse::trainer_design
