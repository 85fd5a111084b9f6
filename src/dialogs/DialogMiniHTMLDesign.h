#pragma once

#include "dialogs/ctl_MiniHTMLInput.h"
#include "visual/FormDesign.h"
#include "visual/PictureBox.h"
#include "visual/ScrollBar.h"
#include "visual/ctl_CmdBar.h"
#include "visual/ctl_Frame.h"
#include "visual/ctl_Label.h"
#include "visual/ctl_Title.h"

/// The design of frm_DialogMiniHTML: what is asked for at the top, the text at the left, and at the right how
/// it will look.
namespace phial::dialog_mini_html_design
{

inline constexpr double Width = 820;
inline constexpr double Height = 468;
inline constexpr double Margin = 24;
inline constexpr double HeaderHeight = 56;
inline constexpr double CommandsHeight = 76;
inline constexpr double QuestionHeight = 48;
inline constexpr double TextTop = HeaderHeight + 12 + QuestionHeight + 8;
inline constexpr double TextHeight = Height - CommandsHeight - 12 - TextTop;
inline constexpr double TextWidth = 440;
inline constexpr double PreviewLeft = Margin + TextWidth + 20;
inline constexpr double PreviewWidth = Width - Margin - PreviewLeft;
inline constexpr double PreviewInset = 14;
inline constexpr double PreviewTop = 28;
inline constexpr double PreviewBarWidth = 36;
inline constexpr double PreviewBarGap = 6;
inline constexpr double PreviewTextWidth = PreviewWidth - PreviewInset - PreviewBarWidth - 2 * PreviewBarGap;
inline constexpr double PreviewTextHeight = TextHeight - PreviewTop - PreviewInset;

inline constexpr ButtonDesign Commands[] = {{u"DIALOG.OK();", u"OK|OK", true}};

inline constexpr ControlDesign Controls[] = {
    design<ctl_Label>(u"lab_Text", {Margin, HeaderHeight + 12, Width - 2 * Margin, QuestionHeight})
        .font(12)
        .ink(Palette::Ink)
        .set(u"BreaksWords", true),
    design<ctl_MiniHTMLInput>(u"txt_Input", {Margin, TextTop, TextWidth, TextHeight}).set(u"MULTILINE", true),
    design<ctl_Frame>(u"ctl_Frame1", {PreviewLeft, TextTop, PreviewWidth, TextHeight}, u"Vorschau|Preview")
        .font(10)
        .ink(Palette::Muted)
        .ground(Palette::Ground),
    design<PictureBox>(u"pic_Preview", {PreviewInset, PreviewTop, PreviewTextWidth, PreviewTextHeight})
        .inside(u"ctl_Frame1")
        .ground(Palette::Ground),
    design<ctl_Label>(u"lab_Preview", {0, 0, PreviewTextWidth, 0})
        .inside(u"pic_Preview")
        .font(12)
        .ink(Palette::Ink)
        .align(TEXTALIGN::TopLeft)
        .set(u"BreaksWords", true)
        .set(u"AutoSize", true),
    design<ScrollBar>(u"srl_Preview", {PreviewWidth - PreviewBarWidth - PreviewBarGap, PreviewTop,
                                       PreviewBarWidth, PreviewTextHeight})
        .inside(u"ctl_Frame1")
        .spoken(u"Vorschau|Preview")
        .hidden(),
    design<ctl_CmdBar>(u"bar_Buttons", {0, Height - CommandsHeight, Width, CommandsHeight}).buttons(Commands),
    design<ctl_Title>(u"bar_Header", {0, 0, Width, HeaderHeight}).font(16, FontWeight::Bold),
};

inline constexpr FormDesign Design{.name = u"frm_DialogMiniHTML",
                                   .caption = u"Text eingeben|Enter a text",
                                   .size = {Width, Height},
                                   .border = BorderStyle::FixedDialog,
                                   .closesByEscape = true,
                                   .controls = Controls};

} // namespace phial::dialog_mini_html_design
