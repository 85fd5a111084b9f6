#pragma once

#include "visual/FormDesign.h"
#include "visual/ctl_Button.h"
#include "visual/ctl_Label.h"

/// The design of frm_LeaveRound.
namespace learning::leave_round_design
{

namespace Palette = phial::Palette;

inline constexpr phial::ControlDesign Controls[] = {
    phial::design<phial::ctl_Label>(u"lab_Question", {24, 20, 432, 64})
        .font(14)
        .ink(Palette::Ink)
        .align(phial::TEXTALIGN::MiddleLeft),
    phial::design<phial::ctl_Button>(u"but_GoOn", {24, 100, 208, 56}, u"Weiterüben|Keep practising")
        .font(14, phial::FontWeight::Bold)
        .set(u"Accent", true)
        .defaultButton()
        .cancelButton(),
    phial::design<phial::ctl_Button>(u"but_Leave", {248, 100, 208, 56}, u"Abbrechen|Stop the round").font(14),
};

inline constexpr phial::FormDesign Design{.name = u"frm_LeaveRound",
                                          .caption = u"Runde abbrechen?|Stop the round?",
                                          .size = {480, 176},
                                          .border = phial::BorderStyle::FixedDialog,
                                          .closesByEscape = true,
                                          .controls = Controls};

} // namespace learning::leave_round_design
