#pragma once

#include "app/ctl_Avatar.h"
#include "results/ctl_Mark.h"
#include "term/ctl_TermLabel.h"
#include "visual/FormDesign.h"
#include "visual/Shape.h"
#include "visual/TextBox.h"
#include "visual/ctl_Button.h"
#include "visual/ctl_Gradient.h"
#include "visual/ctl_Label.h"
#include "visual/ctl_Pannel.h"

/// The trainer's design: pages of which one is seen, between a header and a footer.
namespace molmasse::layout
{

using phial::ControlDesign;
using phial::ctl_Avatar;
using phial::ctl_Button;
using phial::ctl_Gradient;
using phial::ctl_Label;
using phial::ctl_Mark;
using phial::ctl_Pannel;
using phial::ctl_TermLabel;
using phial::design;
using phial::FontWeight;
using phial::Shape;
using phial::StringView;
using phial::TextBox;
namespace Palette = phial::Palette;
using enum phial::TEXTALIGN;

inline constexpr double Width = 900;
inline constexpr double Height = 640;
inline constexpr double Header = 72;
inline constexpr double Footer = 44;

/// The number pad, row by row. The comma stands for the user's decimal sign; the last key takes a character
/// away.
inline constexpr StringView PadKeys[] = {u"7", u"8", u"9", u"4", u"5", u"6",
                                         u"1", u"2", u"3", u",", u"0", u"\u232B"};
inline constexpr int PadColumns = 3;
inline constexpr double PadStep = 80;

/// Between the buttons of the levels, of which the data tells how many there are.
inline constexpr double LevelGap = 21;

inline constexpr ControlDesign panel(StringView name, ControlDesign::Rectangle place, phial::Colour ground,
                                     phial::Colour edge)
{
    return design<ctl_Pannel>(name, place).ground(ground).edge(edge);
}

inline constexpr ControlDesign page(StringView name)
{
    return panel(name, {0, Header, Width, Height - Header - Footer}, Palette::Ground, Palette::Ground)
        .hidden();
}

/// The large text that a page begins with, and a longer one below it.
inline constexpr ControlDesign heading(StringView name, ControlDesign::Rectangle place, StringView text)
{
    return design<ctl_Label>(name, place, text)
        .font(22, FontWeight::Bold)
        .ink(Palette::Ink)
        .align(MiddleLeft);
}
inline constexpr ControlDesign paragraph(StringView name, ControlDesign::Rectangle place,
                                         StringView text = {})
{
    return design<ctl_Label>(name, place, text).font(13).ink(Palette::Ink).align(TopLeft);
}

/// A line in the middle of the page.
inline constexpr ControlDesign centred(StringView name, ControlDesign::Rectangle place, double size,
                                       FontWeight weight = FontWeight::Regular)
{
    return design<ctl_Label>(name, place).font(size, weight).ink(Palette::Ink).align(MiddleCentre);
}

/// The button to press next, one beside it that leaves, and one that does something in between.
inline constexpr ControlDesign mainButton(StringView name, ControlDesign::Rectangle place, StringView text)
{
    return design<ctl_Button>(name, place, text).font(15, FontWeight::Bold).set(u"Accent", true);
}
inline constexpr ControlDesign leavingButton(StringView name, ControlDesign::Rectangle place, StringView text)
{
    return design<ctl_Button>(name, place, text).font(15, FontWeight::Bold);
}
inline constexpr ControlDesign sideButton(StringView name, ControlDesign::Rectangle place, StringView text)
{
    return design<ctl_Button>(name, place, text).font(12);
}

inline constexpr ControlDesign Controls[] = {
    design<ctl_Gradient>(u"bar_Header", {0, 0, Width, Header})
        .gradient(Palette::Accent, Palette::AccentDeep, 0),
    page(u"pan_Start"),
    page(u"pan_Task"),
    page(u"pan_Summary"),
    page(u"pan_Waiting"),
    page(u"pan_Missing"),
    panel(u"pan_Footer", {0, Height - Footer, Width, Footer}, Palette::Footer, Palette::Divider),

    design<ctl_Label>(u"lab_Title", {32, 0, 300, 72}, u"Molmassen-Trainer|Molar mass trainer")
        .inside(u"bar_Header")
        .font(18, FontWeight::Bold)
        .ink(Palette::OnAccent)
        .align(MiddleLeft),
    design<ctl_Label>(u"lab_Points", {340, 0, 188, 72})
        .inside(u"bar_Header")
        .font(14)
        .ink(Palette::OnAccent)
        .align(MiddleRight),
    design<ctl_Avatar>(u"ctl_User", {548, 8, 220, 56}).inside(u"bar_Header"),
    design<ctl_Button>(u"but_Language", {Width - 116, 16, 84, 40}, u"English|Deutsch")
        .inside(u"bar_Header")
        .font(10),

    heading(u"lab_Question", {60, 60, 780, 44}, u"Was wiegt ein Mol davon?|What does a mole of it weigh?")
        .inside(u"pan_Start"),
    paragraph(u"lab_Intro", {60, 112, 780, 84},
              u"Zehn Formeln warten auf dich. Bestimme zu jeder die molare Masse in g/mol und tippe sie ein, "
              u"mit Komma oder Punkt. Wähle, wie schwer es werden soll:|"
              u"Ten formulas are waiting for you. Work out the molar mass of each in g/mol and type it, "
              u"with a comma or a point. Choose how hard it shall be:")
        .inside(u"pan_Start"),
    design<ctl_Button>(u"but_Level", {60, 220, 246, 104})
        .at(0)
        .inside(u"pan_Start")
        .font(16, FontWeight::Bold),
    design<ctl_Label>(
        u"lab_Tolerance", {60, 360, 780, 60},
        u"Gerundete Werte zählen: ±0,1 g/mol, bei großen Massen ±0,2 % und höchstens ±0,5 g/mol.|"
        u"Rounded values count: ±0.1 g/mol, for large masses ±0.2 % and at most ±0.5 g/mol.")
        .inside(u"pan_Start")
        .font(11)
        .ink(Palette::Muted)
        .align(TopLeft),

    design<ctl_Label>(u"lab_Progress", {32, 20, 400, 28})
        .inside(u"pan_Task")
        .font(12)
        .ink(Palette::Muted)
        .align(MiddleLeft),
    panel(u"pan_ProgressBack", {32, 52, 560, 10}, Palette::Divider, Palette::Divider).inside(u"pan_Task"),
    panel(u"pan_ProgressDone", {32, 52, 56, 10}, Palette::Accent, Palette::Accent).inside(u"pan_Task"),
    panel(u"pan_Formula", {32, 80, 560, 172}, Palette::Surface, Palette::Divider).inside(u"pan_Task"),
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
    mainButton(u"but_Check", {372, 272, 220, 64}, u"Prüfen|Check").inside(u"pan_Task"),
    design<ctl_Label>(u"lab_Feedback", {32, 352, 560, 60})
        .inside(u"pan_Task")
        .font(14, FontWeight::Bold)
        .ink(Palette::Ink)
        .align(MiddleLeft),
    sideButton(u"but_Hint", {32, 424, 220, 56}, u"Tipp (F1)|Hint (F1)").inside(u"pan_Task"),
    design<ctl_Label>(u"lab_Hint", {268, 420, 324, 96})
        .inside(u"pan_Task")
        .font(12)
        .ink(Palette::Ink)
        .align(TopLeft),
    // The answer keeps the focus, and with it its selection, while the pad is touched.
    design<ctl_Button>(u"but_Key", {640, 80, 68, 68})
        .repeated(static_cast<std::int32_t>(std::size(PadKeys)), PadColumns, PadStep, PadStep)
        .inside(u"pan_Task")
        .font(18)
        .unfocusable(),
    sideButton(u"but_Stop", {640, 424, 228, 56}, u"Beenden|Quit").inside(u"pan_Task"),

    centred(u"lab_Praise", {60, 20, 780, 48}, 24, FontWeight::Bold).inside(u"pan_Summary"),
    centred(u"lab_Result", {60, 68, 780, 40}, 18).inside(u"pan_Summary"),
    panel(u"pan_ResultBack", {200, 116, 500, 14}, Palette::Divider, Palette::Divider).inside(u"pan_Summary"),
    panel(u"pan_ResultDone", {200, 116, 500, 14}, Palette::Accent, Palette::Accent).inside(u"pan_Summary"),
    design<ctl_Label>(u"lab_Solved", {60, 136, 780, 32})
        .inside(u"pan_Summary")
        .font(13)
        .ink(Palette::Muted)
        .align(MiddleCentre),
    design<ctl_Mark>(u"ctl_Mark1", {300, 180, 300, 60}).inside(u"pan_Summary").ground(Palette::Ground),
    centred(u"lab_Mark", {60, 248, 780, 32}, 14, FontWeight::Bold).inside(u"pan_Summary"),
    centred(u"lab_Rank", {60, 280, 780, 32}, 13).inside(u"pan_Summary"),
    sideButton(u"but_List", {60, 328, 246, 64}, u"Bestenliste|Best rounds").inside(u"pan_Summary"),
    sideButton(u"but_Certificate", {327, 328, 246, 64}, u"Urkunde drucken|Print certificate")
        .inside(u"pan_Summary"),
    sideButton(u"but_Export", {594, 328, 246, 64}, u"Liste als Text|List as text").inside(u"pan_Summary"),
    mainButton(u"but_Again", {60, 412, 513, 76}, u"Noch einmal|Again").inside(u"pan_Summary"),
    leavingButton(u"but_Quit", {594, 412, 246, 76}, u"Beenden|Quit").inside(u"pan_Summary"),

    heading(u"lab_WaitingTitle", {60, 60, 780, 48}, u"Gleich geht es los|It will begin soon")
        .inside(u"pan_Waiting"),
    paragraph(u"lab_Waiting", {60, 116, 780, 60},
              u"Sobald deine Lehrkraft den Molmassen-Trainer freigibt, geht es hier von selbst weiter.|"
              u"As soon as your teacher opens the molar mass trainer for you, it goes on here by itself.")
        .inside(u"pan_Waiting"),
    mainButton(u"but_Ask", {60, 208, 513, 80}, u"Noch einmal fragen|Ask again").inside(u"pan_Waiting"),
    leavingButton(u"but_GiveUp", {594, 208, 246, 80}, u"Beenden|Quit").inside(u"pan_Waiting"),

    heading(u"lab_MissingTitle", {60, 60, 780, 48}, u"Da fehlt noch etwas|Something is missing")
        .inside(u"pan_Missing"),
    paragraph(u"lab_Missing", {60, 124, 780, 200}).inside(u"pan_Missing"),
    mainButton(u"but_Leave", {60, 360, 240, 80}, u"Beenden|Quit").inside(u"pan_Missing"),

    design<Shape>(u"shp_Classroom", {32, 16, 12, 12})
        .inside(u"pan_Footer")
        .set(u"Shape", phial::ShapeKind::Circle)
        .set(u"BorderWidth", 0)
        .set(u"FillStyle", phial::FillStyle::Solid),
    design<ctl_Label>(u"lab_Classroom", {56, 0, 560, 44})
        .inside(u"pan_Footer")
        .font(10)
        .ink(Palette::Muted)
        .align(MiddleLeft),
    design<ctl_Button>(u"but_Classroom", {684, 4, 184, 36}, u"Klassenraum …|Classroom …")
        .inside(u"pan_Footer")
        .font(10),
};

inline constexpr phial::FormDesign Design{.name = u"frm_Molmasse",
                                          .caption = u"Molmassen-Trainer|Molar mass trainer",
                                          .size = {Width, Height},
                                          .border = phial::BorderStyle::FixedSingle,
                                          .hearsKeysFirst = true,
                                          .controls = Controls};

} // namespace molmasse::layout
