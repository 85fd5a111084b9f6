#pragma once

#include "app/cls_App.h"
#include "app/cls_AppURL.h"
#include "app/frm_DialogUser.h"
#include "app/screen/frm_AppAbout.h"
#include "app/screen/frm_Fade.h"
#include "app/screen/frm_Resource.h"
#include "app/sys_Global.h"
#include "core/NativePath.h"
#include "desk/CalculatorDesign.h"
#include "desk/frm_ToolCalc.h"
#include "dialogs/DialogHelpImagesDesign.h"
#include "dialogs/DialogKeyboardDesign.h"
#include "dialogs/DialogKeyboardPSEDesign.h"
#include "dialogs/DialogKeyboardTermDesign.h"
#include "dialogs/DialogMiniHTMLDesign.h"
#include "dialogs/DialogNumericTouchDesign.h"
#include "dialogs/frm_DialogHelpImages.h"
#include "dialogs/frm_DialogKeyboard.h"
#include "dialogs/frm_DialogKeyboardPSE.h"
#include "dialogs/frm_DialogKeyboardTerm.h"
#include "dialogs/frm_DialogMiniHTML.h"
#include "dialogs/frm_DialogNumericTouch.h"
#include "media/frm_AppMCI.h"
#include "media/frm_DialogSound.h"
#include "results/cls_DataScores.h"
#include "results/frm_DialogHighscore.h"
#include "server/NetMonitorDesign.h"
#include "server/frm_NetMonitor.h"
#include "support/Places.h"

#include <functional>
#include <memory>
#include <vector>

namespace phial::test
{

/// A form of the library as a test makes it; `form` lives as long as `owner`.
struct MadeForm {
    std::shared_ptr<void> owner;
    Form* form = nullptr;
};

/// One form of the library: how it is made, and all that it shows in either language.
struct LibraryForm {
    StringView name; ///< of the class and its header
    std::function<MadeForm()> make;
    const FormDesign* design = nullptr; ///< whose texts are pairs "German|English"; null for none
    std::vector<StringView> pairs;      ///< "German|English": what stands outside the design
    std::vector<StringView> data;       ///< what is no text of the form and stays in both languages
    bool shown = true;                  ///< false: it is never shown, and only loaded
    bool aborts = false;                ///< Escape closes it, as its frame does
};

template <typename Class>
MadeForm makeLibraryForm()
{
    const auto made = std::make_shared<Class>();
    return {made, &made->form()};
}

/// The highscore window with an empty list, of which it says so.
inline MadeForm makeHighscore()
{
    const auto made = std::make_shared<frm_DialogHighscore>();
    made->DialogScores(std::make_shared<cls_DataScores>());
    return {made, &made->form()};
}

/// A help book without pages, whose pages could be deleted.
inline MadeForm makeHelp()
{
    const auto made = std::make_shared<frm_DialogHelpImages>();
    made->More().Set(u"DELETE", true);
    return {made, &made->form()};
}

/// With the table of the installed elements.
inline MadeForm makePeriodicKeyboard()
{
    QVAPP()->URL()->ROOT(systemPath(treeFolder()) + u"\\");
    return makeLibraryForm<frm_DialogKeyboardPSE>();
}

inline MadeForm makeCalculator()
{
    QVAPP()->URL()->ROOT(systemPath(treeFolder()) + u"\\");
    return makeLibraryForm<frm_ToolCalc>();
}

/// The praise window with a word of praise.
inline MadeForm makePraise()
{
    const auto made = std::make_shared<frm_DialogSound>();
    made->SoundText(u"Bravo.wav");
    return {made, &made->form()};
}

/// The network monitor with one line, a note.
inline MadeForm makeNetMonitor()
{
    const auto traffic = std::make_shared<TrafficLog>();
    traffic->add(Moment{45292.375}, TrafficKind::Note, u"127.0.0.1:10049", u"verbunden|connected");
    const auto made = std::make_shared<frm_NetMonitor>(traffic);
    return {made, &made->form()};
}

/// All forms of the library. A new `frm_…` gets a row here; a test names those that have none.
inline std::vector<LibraryForm> libraryForms()
{
    return {
        {.name = u"frm_AppAbout",
         .make = makeLibraryForm<frm_AppAbout>,
         .design = &app_about_design::Design,
         .pairs = {u"Info über Molmasse|About Molmasse"},
         .data = {u"Molmasse", u"Version 5.1.2", u"(c) Somebody", u"apps\\Molmasse\\"},
         .aborts = true},
        {.name = u"frm_AppMCI", .make = makeLibraryForm<frm_AppMCI>, .pairs = {}, .data = {}, .shown = false},
        {.name = u"frm_DialogHelpImages",
         .make = makeHelp,
         .design = &dialog_help_images_design::Design,
         .pairs = {},
         .data = {},
         .aborts = true},
        {.name = u"frm_DialogHighscore",
         .make = makeHighscore,
         .design = &dialog_highscore_design::Design,
         .pairs = {},
         .data = {},
         .aborts = true},
        {.name = u"frm_DialogKeyboard",
         .make = makeLibraryForm<frm_DialogKeyboard>,
         .design = &dialog_keyboard_design::Design,
         .pairs = {u"Bitte geben Sie den Wert ein:|Please enter the value:", u"Abbrechen|Cancel"},
         .data = {u"\u2715"},
         .aborts = true},
        {.name = u"frm_DialogKeyboardPSE",
         .make = makePeriodicKeyboard,
         .design = &dialog_keyboard_pse_design::Design,
         .pairs = {u"Bitte geben Sie den Wert ein:|Please enter the value:", u"Abbrechen|Cancel"},
         .data = {u"\u2715"},
         .aborts = true},
        {.name = u"frm_DialogKeyboardTerm",
         .make = makeLibraryForm<frm_DialogKeyboardTerm>,
         .design = &dialog_keyboard_term_design::Design,
         .pairs = {u"Bitte geben Sie den Wert ein:|Please enter the value:", u"Abbrechen|Cancel"},
         .data = {u"\u2715"},
         .aborts = true},
        {.name = u"frm_DialogMiniHTML",
         .make = makeLibraryForm<frm_DialogMiniHTML>,
         .design = &dialog_mini_html_design::Design,
         .pairs = {u"Fett|Bold", u"Kursiv|Italic", u"Tief|Lower", u"Hoch|Raise"},
         .data = {},
         .aborts = true},
        {.name = u"frm_DialogNumericTouch",
         .make = makeLibraryForm<frm_DialogNumericTouch>,
         .design = &dialog_numeric_touch_design::Design,
         .pairs = {u"Bitte geben Sie den Wert ein:|Please enter the value:", u"Abbrechen|Cancel"},
         .data = {u"\u2715", u"0"},
         .aborts = true},
        {.name = u"frm_DialogSound",
         .make = makePraise,
         .design = &dialog_sound_design::Design,
         .pairs = {u"Richtig|Right"},
         .data = {u"Bravo"},
         .aborts = true},
        {.name = u"frm_DialogUser",
         .make = makeLibraryForm<frm_DialogUser>,
         .design = &dialog_user_design::Design,
         .pairs = {},
         .data = {u"pupil", u"Maxi"},
         .aborts = true},
        {.name = u"frm_Fade", .make = makeLibraryForm<frm_Fade>, .pairs = {}, .data = {u"Form1"}},
        {.name = u"frm_NetMonitor",
         .make = makeNetMonitor,
         .design = &net_monitor_design::Design,
         .pairs = {u"verbunden|connected",
                   u"09:00:00  •  127.0.0.1:10049  verbunden|09:00:00  •  127.0.0.1:10049  connected"},
         .data = {},
         .aborts = true},
        {.name = u"frm_Resource",
         .make = makeLibraryForm<frm_Resource>,
         .pairs = {},
         .data = {},
         .shown = false},
        {.name = u"frm_ToolCalc",
         .make = makeCalculator,
         .design = &tool_calc_design::Design,
         .pairs = {u"Speicher 1|Memory 1", u"Speicher 2|Memory 2", u"Speicher 3|Memory 3",
                   u"Speicher 4|Memory 4"},
         .data = {u"0", u"M1", u"M2", u"M3", u"M4"},
         .aborts = true},
    };
}

} // namespace phial::test
