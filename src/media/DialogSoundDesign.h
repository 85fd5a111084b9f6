#pragma once

#include "visual/FormDesign.h"
#include "visual/PictureBox.h"
#include "visual/ctl_Gradient.h"
#include "visual/ctl_Label.h"

/// The design of frm_DialogSound: a sign and a word on a ground that passes from dark (above) to light. The
/// word keeps to that part of the ground which is dark enough for white letters.
namespace phial::dialog_sound_design
{

inline constexpr double Width = 440;
inline constexpr double Height = 160;
inline constexpr double Margin = 24;
inline constexpr double Sign = 56;
inline constexpr double WordLeft = Margin + Sign + 16;
inline constexpr double WordWidth = Width - WordLeft - Margin;

/// So much of the height has a contrast of 4.5 to 1 with white, on the green too, which is the lighter one.
inline constexpr double DarkPart = 0.58;

inline constexpr double WordSize = 20;
/// A word of more characters is a sentence, and smaller.
inline constexpr std::size_t LongestWord = 48;
inline constexpr double SentenceSize = 13;
/// What is beyond is left out.
inline constexpr std::int32_t LongestSentence = 240;

inline constexpr Colour White = RGB(255, 255, 255);

inline constexpr ControlDesign Controls[] = {
    design<ctl_Gradient>(u"ctl_Gradient", {0, 0, Width, Height}),
    design<PictureBox>(u"pic_Sign", {Margin, Margin, Sign, Sign})
        .inside(u"ctl_Gradient")
        .set(u"AutoRedraw", false),
    design<ctl_Label>(u"ctl_Label1", {WordLeft, Margin, WordWidth, Sign})
        .inside(u"ctl_Gradient")
        .set(u"PlainText", true)
        .set(u"AutoSize", true)
        .font(WordSize, FontWeight::Bold)
        .ink(White),
};

inline constexpr FormDesign Design{.name = u"frm_DialogSound",
                                   .size = {Width, Height},
                                   .border = BorderStyle::None,
                                   .closesByEscape = true,
                                   .controls = Controls};

} // namespace phial::dialog_sound_design
