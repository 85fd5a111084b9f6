#pragma once

#include "dialogs/ctl_Keys.h"
#include "visual/FormDesign.h"
#include "visual/TextBox.h"

/// The design of frm_DialogKeyboard, at scale 1: what one types into at the top, the keys below.
namespace phial::dialog_keyboard_design
{

inline constexpr PixelSize Size{750, 340};

/// Points of the text; of one in several lines, so that two can be seen.
inline constexpr double TextSize = 20;
inline constexpr double LinesSize = 12;

/// Where the text stands; that of several lines has more room, for the same reason.
inline constexpr ControlDesign::Rectangle LineArea{228, 12, 447, 48};
inline constexpr PixelRectangle PageArea{228, 9, 447, 54};

inline constexpr ControlDesign Controls[] = {
    design<TextBox>(u"txt_Input", LineArea)
        .font(TextSize)
        .ink(Palette::Ink)
        .ground(Palette::Field)
        .set(u"AcceptsReturn", false)
        .keyboarded(),
    design<ctl_Keys>(u"ctl_Keys", {15, 68, 720, 240}).ground(Palette::Footer).touchable(),
};

inline constexpr FormDesign Design{.name = u"frm_DialogKeyboard",
                                   .caption = u"Tastatur|Keyboard",
                                   .size = Size,
                                   .border = BorderStyle::None,
                                   .ground = Palette::Footer,
                                   .isCentred = false,
                                   .hearsKeysFirst = true,
                                   .controls = Controls};

} // namespace phial::dialog_keyboard_design
