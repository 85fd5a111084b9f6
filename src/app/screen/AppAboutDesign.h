#pragma once

#include "visual/FormDesign.h"
#include "visual/Label.h"
#include "visual/PictureBox.h"
#include "visual/ctl_CmdBar.h"

/// The design of frm_AppAbout: the program above, the people and the technical facts below.
namespace phial::app_about_design
{

inline constexpr double Width = 480;
inline constexpr double Height = 372;

inline constexpr double Emblem = 96;

inline constexpr FontDesign Link{.size = 10, .underline = true};

inline constexpr StringView Close = u"DIALOG.OK();";
inline constexpr ButtonDesign Commands[] = {{Close, u"Schließen|Close"}};

/// A text as wide as what it says: a link, or one that a link goes on with.
inline constexpr ControlDesign fitted(StringView name, ControlDesign::Rectangle place, StringView text)
{
    return design<Label>(name, place, text).set(u"WordWrap", false).set(u"AutoSize", true);
}

inline constexpr ControlDesign Controls[] = {
    // First in the order of the Tab key.
    design<ctl_CmdBar>(u"ctl_CmdBar1", {0, Height - 64, Width, 64}).buttons(Commands),
    design<PictureBox>(u"Picture1", {24, 24, Emblem, Emblem}).set(u"AutoRedraw", false),
    design<Label>(u"lab_Product", {144, 22, 312, 58}).font(18, FontWeight::Bold).ink(Palette::AccentDeep),
    design<Label>(u"lab_Version", {144, 82, 312, 20}).font(11).ink(Palette::Ink),
    design<Label>(u"lab_Copyright", {144, 104, 312, 36}).font(9).ink(Palette::Muted),
    fitted(u"Descript", {24, 160, 432, 20}, u"Programmentwicklung:|Program development:")
        .at(0)
        .font(10)
        .ink(Palette::Ink),
    fitted(u"lab_TDR", {24, 160, 120, 20}, u"QV Brunnhof|QV Brunnhof")
        .font(Link)
        .ink(Palette::Accent)
        .focusable(),
    fitted(u"Descript", {24, 188, 432, 20}, u"Besuchen Sie uns im |Visit us on the ")
        .at(1)
        .font(10)
        .ink(Palette::Ink),
    fitted(u"lab_Hyperlink", {24, 188, 120, 20}, u"Internet|Internet")
        .font(Link)
        .ink(Palette::Accent)
        .focusable(),
    design<Label>(u"Descript", {24, 228, 432, 20}, u"Technische Angaben|Technical details")
        .at(2)
        .font(10, FontWeight::Bold)
        .ink(Palette::Ink),
    design<Label>(u"lab_Ident", {24, 250, 432, 20}).font(10).ink(Palette::Muted),
    design<Label>(u"lab_Base", {24, 272, 432, 20}).font(10).ink(Palette::Muted),
};

inline constexpr FormDesign Design{.name = u"frm_AppAbout",
                                   .size = {Width, Height},
                                   .border = BorderStyle::FixedDialog,
                                   .closesByEscape = true,
                                   .controls = Controls};

} // namespace phial::app_about_design
