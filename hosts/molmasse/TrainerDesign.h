#pragma once

#include "common/FrameDesign.h"
#include "common/NumberAnswer.h"
#include "term/ctl_TermLabel.h"

/// What the trainer shows on its page of tasks: the formula's card, the answer with its unit, and the pad.
namespace molmasse::trainer_design
{

using phial::ctl_Label;
using phial::ctl_TermLabel;
using phial::design;
namespace Palette = phial::Palette;
using enum phial::TEXTALIGN;

/// Room for a formula, in pixels.
inline constexpr double FormulaWidth = 528;

inline constexpr phial::ControlDesign Controls[] = {
    learning::frame_design::card(u"pan_Formula"),
    design<ctl_TermLabel>(u"trm_Formula", {16, 24, FormulaWidth, 84})
        .inside(u"pan_Formula")
        .ink(Palette::Ink)
        .align(MiddleCentre),
    design<ctl_Label>(u"lab_Name", {16, 120, 528, 36})
        .inside(u"pan_Formula")
        .font(13)
        .ink(Palette::Muted)
        .align(MiddleCentre),
    learning::NumberAnswer::row(u"Molare Masse in g/mol|Molar mass in g/mol"),
    learning::NumberAnswer::unit(u"g/mol|g/mol"),
    learning::NumberPad::row(),
};

} // namespace molmasse::trainer_design
