#pragma once

#include "dialogs/ctl_Keys.h"
#include "visual/FormDesign.h"
#include "visual/TextBox.h"

/// The design of frm_DialogNumericTouch, at scale 1: what is asked for, the number below it, then the keys.
namespace phial::dialog_numeric_touch_design
{

inline constexpr ControlDesign Controls[] = {
    design<TextBox>(u"txt_Input", {17, 67, 188, 42})
        .font(20)
        .ink(Palette::Ink)
        .ground(Palette::Field)
        .align(Alignment::Right)
        .keyboarded(),
    design<ctl_Keys>(u"ctl_Keys", {15, 116, 192, 192}).ground(Palette::Footer).touchable(),
};

inline constexpr FormDesign Design{.name = u"frm_DialogNumericTouch",
                                   .caption = u"Zahlenblock|Number pad",
                                   .size = {222, 340},
                                   .border = BorderStyle::None,
                                   .ground = Palette::Footer,
                                   .isCentred = false,
                                   .hearsKeysFirst = true,
                                   .controls = Controls};

} // namespace phial::dialog_numeric_touch_design
