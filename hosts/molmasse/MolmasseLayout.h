#pragma once

#include "app/ctl_Avatar.h"
#include "term/ctl_TermLabel.h"
#include "visual/FormLayout.h"
#include "visual/Label.h"
#include "visual/TextBox.h"
#include "visual/ctl_Button.h"
#include "visual/ctl_Gradient.h"
#include "visual/ctl_Label.h"
#include "visual/ctl_Pannel.h"

/// The trainer's design: a header above four pages of which one is seen. Places are pixels.
namespace molmasse::layout
{

using phial::design;
using phial::LayoutItem;

inline constexpr double Width = 900;
inline constexpr double Height = 640;

inline constexpr LayoutItem Frame[] = {
    design<phial::ctl_Gradient>(u"bar_Header", {0, 0, Width, 72}),
    design<phial::ctl_Pannel>(u"pan_Start", {0, 72, Width, Height - 72}).hidden(),
    design<phial::ctl_Pannel>(u"pan_Task", {0, 72, Width, Height - 72}).hidden(),
    design<phial::ctl_Pannel>(u"pan_Summary", {0, 72, Width, Height - 72}).hidden(),
    design<phial::ctl_Pannel>(u"pan_Missing", {0, 72, Width, Height - 72}).hidden(),
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
    design<phial::ctl_Label>(u"lab_Hint", {268, 424, 324, 128}).inside(u"pan_Task"),
    design<phial::ctl_Button>(u"but_Key", {640, 80, 68, 68}).at(0).inside(u"pan_Task"),
    design<phial::ctl_Button>(u"but_Stop", {640, 424, 228, 56}, u"Beenden|Quit").inside(u"pan_Task"),

    design<phial::ctl_Label>(u"lab_Praise", {60, 72, 780, 56}).inside(u"pan_Summary"),
    design<phial::ctl_Label>(u"lab_Result", {60, 136, 780, 48}).inside(u"pan_Summary"),
    design<phial::ctl_Pannel>(u"pan_ResultBack", {200, 204, 500, 16}).inside(u"pan_Summary"),
    design<phial::ctl_Pannel>(u"pan_ResultDone", {200, 204, 500, 16}).inside(u"pan_Summary"),
    design<phial::ctl_Label>(u"lab_Solved", {60, 236, 780, 36}).inside(u"pan_Summary"),
    design<phial::ctl_Button>(u"but_Again", {200, 320, 240, 80}, u"Noch einmal|Again").inside(u"pan_Summary"),
    design<phial::ctl_Button>(u"but_Quit", {460, 320, 240, 80}, u"Beenden|Quit").inside(u"pan_Summary"),

    design<phial::ctl_Label>(u"lab_MissingTitle", {60, 60, 780, 48},
                             u"Da fehlt noch etwas|Something is missing")
        .inside(u"pan_Missing"),
    design<phial::ctl_Label>(u"lab_Missing", {60, 124, 780, 200}).inside(u"pan_Missing"),
    design<phial::ctl_Button>(u"but_Leave", {60, 360, 240, 80}, u"Beenden|Quit").inside(u"pan_Missing"),
};

/// The number pad, row by row. The comma stands for the user's decimal sign; the last key takes a character
/// away.
inline constexpr phial::StringView PadKeys[] = {u"7", u"8", u"9", u"4", u"5", u"6",
                                                u"1", u"2", u"3", u",", u"0", u"\u232B"};
inline constexpr int PadColumns = 3;
inline constexpr double PadStep = 80;

} // namespace molmasse::layout
