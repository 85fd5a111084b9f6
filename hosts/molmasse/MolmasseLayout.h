#pragma once

#include "app/ctl_Avatar.h"
#include "results/ctl_Mark.h"
#include "term/ctl_TermLabel.h"
#include "visual/FormLayout.h"
#include "visual/Shape.h"
#include "visual/TextBox.h"
#include "visual/ctl_Button.h"
#include "visual/ctl_Gradient.h"
#include "visual/ctl_Label.h"
#include "visual/ctl_Pannel.h"

/// The trainer's design: pages of which one is seen, between a header and a footer. Places are pixels.
namespace molmasse::layout
{

using phial::design;
using phial::LayoutItem;

inline constexpr double Width = 900;
inline constexpr double Height = 640;
inline constexpr double Header = 72;
inline constexpr double Footer = 44;

inline constexpr LayoutItem page(phial::StringView name)
{
    return design<phial::ctl_Pannel>(name, {0, Header, Width, Height - Header - Footer}).hidden();
}

inline constexpr LayoutItem Frame[] = {
    design<phial::ctl_Gradient>(u"bar_Header", {0, 0, Width, Header}),
    page(u"pan_Start"),
    page(u"pan_Task"),
    page(u"pan_Summary"),
    page(u"pan_Waiting"),
    page(u"pan_Missing"),
    design<phial::ctl_Pannel>(u"pan_Footer", {0, Height - Footer, Width, Footer}),
};

inline constexpr LayoutItem Contents[] = {
    design<phial::ctl_Label>(u"lab_Title", {32, 0, 300, 72}, u"Molmassen-Trainer|Molar mass trainer")
        .inside(u"bar_Header"),
    design<phial::ctl_Label>(u"lab_Points", {340, 0, 188, 72}).inside(u"bar_Header"),
    design<phial::ctl_Avatar>(u"ctl_User", {548, 8, 220, 56}).inside(u"bar_Header"),
    design<phial::ctl_Button>(u"but_Language", {Width - 116, 16, 84, 40}, u"English|Deutsch")
        .inside(u"bar_Header"),

    design<phial::ctl_Label>(u"lab_Question", {60, 60, 780, 44},
                             u"Was wiegt ein Mol davon?|What does a mole of it weigh?")
        .inside(u"pan_Start"),
    design<phial::ctl_Label>(
        u"lab_Intro", {60, 112, 780, 84},
        u"Zehn Formeln warten auf dich. Bestimme zu jeder die molare Masse in g/mol und tippe sie ein, "
        u"mit Komma oder Punkt. Wähle, wie schwer es werden soll:|"
        u"Ten formulas are waiting for you. Work out the molar mass of each in g/mol and type it, "
        u"with a comma or a point. Choose how hard it shall be:")
        .inside(u"pan_Start"),
    design<phial::ctl_Button>(u"but_Level", {60, 220, 246, 104}).at(0).inside(u"pan_Start"),
    design<phial::ctl_Label>(
        u"lab_Tolerance", {60, 360, 780, 60},
        u"Gerundete Werte zählen: ±0,1 g/mol, bei großen Massen ±0,2 % und höchstens ±0,5 g/mol.|"
        u"Rounded values count: ±0.1 g/mol, for large masses ±0.2 % and at most ±0.5 g/mol.")
        .inside(u"pan_Start"),

    design<phial::ctl_Label>(u"lab_Progress", {32, 20, 400, 28}).inside(u"pan_Task"),
    design<phial::ctl_Pannel>(u"pan_ProgressBack", {32, 52, 560, 10}).inside(u"pan_Task"),
    design<phial::ctl_Pannel>(u"pan_ProgressDone", {32, 52, 56, 10}).inside(u"pan_Task"),
    design<phial::ctl_Pannel>(u"pan_Formula", {32, 80, 560, 172}).inside(u"pan_Task"),
    design<phial::ctl_TermLabel>(u"trm_Formula", {16, 24, 528, 84}).inside(u"pan_Formula"),
    design<phial::ctl_Label>(u"lab_Name", {16, 120, 528, 36}).inside(u"pan_Formula"),
    design<phial::TextBox>(u"txt_Answer", {32, 272, 220, 64}).inside(u"pan_Task"),
    design<phial::ctl_Label>(u"lab_Unit", {264, 272, 100, 64}, u"g/mol|g/mol").inside(u"pan_Task"),
    design<phial::ctl_Button>(u"but_Check", {372, 272, 220, 64}, u"Prüfen|Check").inside(u"pan_Task"),
    design<phial::ctl_Label>(u"lab_Feedback", {32, 352, 560, 60}).inside(u"pan_Task"),
    design<phial::ctl_Button>(u"but_Hint", {32, 424, 220, 56}, u"Tipp (F1)|Hint (F1)").inside(u"pan_Task"),
    design<phial::ctl_Label>(u"lab_Hint", {268, 420, 324, 96}).inside(u"pan_Task"),
    design<phial::ctl_Button>(u"but_Key", {640, 80, 68, 68}).at(0).inside(u"pan_Task"),
    design<phial::ctl_Button>(u"but_Stop", {640, 424, 228, 56}, u"Beenden|Quit").inside(u"pan_Task"),

    design<phial::ctl_Label>(u"lab_Praise", {60, 20, 780, 48}).inside(u"pan_Summary"),
    design<phial::ctl_Label>(u"lab_Result", {60, 68, 780, 40}).inside(u"pan_Summary"),
    design<phial::ctl_Pannel>(u"pan_ResultBack", {200, 116, 500, 14}).inside(u"pan_Summary"),
    design<phial::ctl_Pannel>(u"pan_ResultDone", {200, 116, 500, 14}).inside(u"pan_Summary"),
    design<phial::ctl_Label>(u"lab_Solved", {60, 136, 780, 32}).inside(u"pan_Summary"),
    design<phial::ctl_Mark>(u"ctl_Mark1", {300, 180, 300, 60}).inside(u"pan_Summary"),
    design<phial::ctl_Label>(u"lab_Mark", {60, 248, 780, 32}).inside(u"pan_Summary"),
    design<phial::ctl_Label>(u"lab_Rank", {60, 280, 780, 32}).inside(u"pan_Summary"),
    design<phial::ctl_Button>(u"but_List", {60, 328, 246, 64}, u"Bestenliste|Best rounds")
        .inside(u"pan_Summary"),
    design<phial::ctl_Button>(u"but_Certificate", {327, 328, 246, 64}, u"Urkunde drucken|Print certificate")
        .inside(u"pan_Summary"),
    design<phial::ctl_Button>(u"but_Export", {594, 328, 246, 64}, u"Liste als Text|List as text")
        .inside(u"pan_Summary"),
    design<phial::ctl_Button>(u"but_Again", {60, 412, 513, 76}, u"Noch einmal|Again").inside(u"pan_Summary"),
    design<phial::ctl_Button>(u"but_Quit", {594, 412, 246, 76}, u"Beenden|Quit").inside(u"pan_Summary"),

    design<phial::ctl_Label>(u"lab_WaitingTitle", {60, 60, 780, 48}, u"Gleich geht es los|It will begin soon")
        .inside(u"pan_Waiting"),
    design<phial::ctl_Label>(
        u"lab_Waiting", {60, 116, 780, 60},
        u"Sobald deine Lehrkraft den Molmassen-Trainer freigibt, geht es hier von selbst weiter.|"
        u"As soon as your teacher opens the molar mass trainer for you, it goes on here by itself.")
        .inside(u"pan_Waiting"),
    design<phial::ctl_Button>(u"but_Ask", {60, 208, 513, 80}, u"Noch einmal fragen|Ask again")
        .inside(u"pan_Waiting"),
    design<phial::ctl_Button>(u"but_GiveUp", {594, 208, 246, 80}, u"Beenden|Quit").inside(u"pan_Waiting"),

    design<phial::ctl_Label>(u"lab_MissingTitle", {60, 60, 780, 48},
                             u"Da fehlt noch etwas|Something is missing")
        .inside(u"pan_Missing"),
    design<phial::ctl_Label>(u"lab_Missing", {60, 124, 780, 200}).inside(u"pan_Missing"),
    design<phial::ctl_Button>(u"but_Leave", {60, 360, 240, 80}, u"Beenden|Quit").inside(u"pan_Missing"),

    design<phial::Shape>(u"shp_Classroom", {32, 16, 12, 12}).inside(u"pan_Footer"),
    design<phial::ctl_Label>(u"lab_Classroom", {56, 0, 560, 44}).inside(u"pan_Footer"),
    design<phial::ctl_Button>(u"but_Classroom", {684, 4, 184, 36}, u"Klassenraum …|Classroom …")
        .inside(u"pan_Footer"),
};

/// The number pad, row by row. The comma stands for the user's decimal sign; the last key takes a character
/// away.
inline constexpr phial::StringView PadKeys[] = {u"7", u"8", u"9", u"4", u"5", u"6",
                                                u"1", u"2", u"3", u",", u"0", u"\u232B"};
inline constexpr int PadColumns = 3;
inline constexpr double PadStep = 80;

} // namespace molmasse::layout
