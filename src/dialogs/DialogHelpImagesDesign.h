#pragma once

#include "dialogs/PageSegments.h"
#include "visual/FormDesign.h"
#include "visual/Label.h"
#include "visual/PictureBox.h"
#include "visual/ctl_Button.h"
#include "visual/ctl_CmdBar.h"
#include "visual/ctl_Title.h"

/// The design of frm_DialogHelpImages: the book's pages in the middle, its progress below them, and at the
/// bottom what turns its pages.
namespace phial::dialog_help_images_design
{

inline constexpr double Width = 1000;
inline constexpr double Height = 560;
inline constexpr PixelSize Least{480, 320};
inline constexpr double Margin = 16;
inline constexpr double HeaderHeight = 48;
inline constexpr double StripHeight = 14;
inline constexpr double BarHeight = 68;
inline constexpr double ButtonHeight = 48;
inline constexpr double ButtonWidth = 140;
inline constexpr double ButtonGap = 12;
inline constexpr double ButtonTop = Height - BarHeight + (BarHeight - ButtonHeight) / 2;
inline constexpr double StripGap = 6;
inline constexpr double StripEdge = 2; ///< around the strip, so that its white is seen on white
inline constexpr double StripTop = Height - BarHeight - StripHeight - StripGap;

inline constexpr StringView Print = u"HELP.PRINT();";
inline constexpr ButtonDesign Commands[] = {{Print, u"Drucken|Print"}};

inline constexpr ControlDesign button(StringView name, double left, StringView text)
{
    return design<ctl_Button>(name, {left, ButtonTop, ButtonWidth, ButtonHeight}, text).font(11);
}

inline constexpr ControlDesign Controls[] = {
    design<PageSegments>(u"pic_Strip", {0, StripTop - StripEdge, Width, StripHeight + 2 * StripEdge}),
    design<Label>(u"lab_Strip", {Margin, 0, 20, StripHeight + 2 * StripEdge})
        .inside(u"pic_Strip")
        .set(u"BackStyle", BackStyle::Opaque)
        .ground(RGB(28, 40, 54))
        .hidden(),
    design<Label>(u"bar_Progress", {Margin, StripEdge, 20, StripHeight})
        .at(0)
        .inside(u"pic_Strip")
        .set(u"BackStyle", BackStyle::Opaque)
        .ground(QBColor(7))
        .hidden(),
    design<ctl_Title>(u"bar_Header", {0, 0, Width, HeaderHeight}, u"Hilfe|Help")
        .font(15, FontWeight::Bold)
        .unfocusable(),
    design<Label>(u"lab_Band", {0, Height - BarHeight, Width, BarHeight})
        .set(u"BackStyle", BackStyle::Opaque),
    button(u"but_Back", Margin, u"Zurück|Back"),
    button(u"but_Menu", Margin + ButtonWidth + ButtonGap, u"Übersicht|Contents"),
    button(u"but_Delete", Margin + 2 * (ButtonWidth + ButtonGap), u"Löschen|Delete").hidden(),
    design<ctl_CmdBar>(u"ctl_CmdBar1", {Width / 2, Height - BarHeight, 200, BarHeight}).buttons(Commands),
    button(u"but_Next", Width - Margin - ButtonWidth, u"Weiter|Next"),
    // Painted behind all others, since the page is waited for then.
    design<PictureBox>(u"pic_ViewHolder", {0, HeaderHeight, Width, StripTop - HeaderHeight - StripGap})
        .set(u"AutoRedraw", false)
        .ground(Palette::Ground)
        .touchable(),
    design<PictureBox>(u"pic_Viewer", {0, 0, Width, 100})
        .repeated(4, 4, 0, 0)
        .inside(u"pic_ViewHolder")
        .set(u"AutoRedraw", false)
        .ground(QBColor(15))
        .hidden()
        .touchable(),
};

inline constexpr FormDesign Design{.name = u"frm_DialogHelpImages",
                                   .caption = u"Hilfe|Help",
                                   .size = {Width, Height},
                                   .border = BorderStyle::Sizable,
                                   .hearsKeysFirst = true,
                                   .closesByEscape = true,
                                   .controls = Controls};

} // namespace phial::dialog_help_images_design
