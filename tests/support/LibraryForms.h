#pragma once

#include "app/cls_App.h"
#include "app/cls_AppURL.h"
#include "app/frm_DialogUser.h"
#include "app/screen/frm_AppAbout.h"
#include "app/screen/frm_Fade.h"
#include "app/screen/frm_Resource.h"
#include "app/sys_Global.h"
#include "chem/formula/FormulaPrinter.h"
#include "chem/formula/FormulaReader.h"
#include "chem/formula/FormulaSpeech.h"
#include "chem/formula/OxidationNumbers.h"
#include "core/NativePath.h"
#include "desk/AcidTable.h"
#include "desk/CalculatorDesign.h"
#include "desk/GroupNames.h"
#include "desk/GroupNamesDesign.h"
#include "desk/LookUpDesign.h"
#include "desk/OlderNotation.h"
#include "desk/OxValuesDesign.h"
#include "desk/OxidationExamples.h"
#include "desk/PeriodicSheetDesign.h"
#include "desk/QuizDesign.h"
#include "desk/frm_ToolCalc.h"
#include "desk/frm_ToolGroupNames.h"
#include "desk/frm_ToolLookUp.h"
#include "desk/frm_ToolOxValues.h"
#include "desk/frm_ToolPeriodensystem.h"
#include "desk/frm_ToolQuiz.h"
#include "desk/frm_ToolpHRules.h"
#include "desk/pHRulesDesign.h"
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
    std::vector<String> madePairs{};    ///< likewise, worked out
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

/// The sheet of the periodic table with the installed elements.
inline MadeForm makePeriodicSheet()
{
    QVAPP()->URL()->ROOT(systemPath(treeFolder()) + u"\\");
    return makeLibraryForm<frm_ToolPeriodensystem>();
}

/// The table of all sheets while nothing is found.
inline MadeForm makeLookUp()
{
    const auto made = std::make_shared<frm_ToolLookUp>();
    made->form().control<TextBox>(u"txt_Sought")->Text(u"???");
    return {made, &made->form()};
}

/// A round of a single question.
inline MadeForm makeQuizForm()
{
    const auto made = std::make_shared<frm_ToolQuiz>([] {
        const QuizQuestion question{
            .question = u"A?", .choices = {{u"a", {}}, {u"b", {}}, {u"c", {}}, {u"d", {}}}, .right = 0};
        return std::vector{question};
    });
    return {made, &made->form()};
}

/// How a formula is spoken, "German|English".
inline String spokenPair(StringView term)
{
    const FormulaReading reading = readFormula(term);
    return reading ? spokenInGerman(reading.tree) + u"|" + spokenInEnglish(reading.tree)
                   : String(term) + u"|" + String(term);
}

/// The lines of the sheet of groups, and how their formulas are spoken.
inline std::vector<String> groupPairs()
{
    std::vector<String> pairs;
    for (const GroupName& group : groupNames()) {
        pairs.emplace_back(group.name);
        pairs.push_back(spokenPair(termOfOlderNotation(group.formula)));
    }
    return pairs;
}

/// The rules for oxidation numbers and how their examples are spoken.
inline std::vector<String> oxidationPairs()
{
    std::vector<String> pairs;
    for (const OxidationLine& line : oxidationLines()) {
        pairs.push_back(germanSentence(line.rule) + u"|" + englishSentence(line.rule));
        String halves[2];
        String shown;
        for (const OxidationExample& example : line.examples) {
            const String both = spokenPair(example.formula);
            const std::size_t bar = both.find(u'|');
            const String number = u": " + String(example.symbol) + u" " + String(example.number);
            shown +=
                (shown.empty() ? u"" : u",   ") + formulaMarkup(readFormula(example.formula).tree) + number;
            halves[0] += (halves[0].empty() ? u"" : u"; ") + both.substr(0, bar) + number;
            halves[1] += (halves[1].empty() ? u"" : u"; ") + both.substr(bar + 1) + number;
        }
        pairs.push_back(halves[0] + u"|" + halves[1]);
        pairs.push_back(shown + u"|" + shown);
    }
    return pairs;
}

inline std::vector<String> acidPairs()
{
    const FontSpec font{.name = u"Tahoma", .size = 12};
    return {acidTable(u"Säure               Base           pKs", font) + u"|" +
            acidTable(u"Acid                Base           pKa", font)};
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
        {.name = u"frm_ToolGroupNames",
         .make = makeLibraryForm<frm_ToolGroupNames>,
         .design = &tool_group_names_design::Design,
         .pairs = {},
         .madePairs = groupPairs(),
         .data = {},
         .aborts = true},
        {.name = u"frm_ToolLookUp",
         .make = makeLookUp,
         .design = &tool_look_up_design::Design,
         .pairs = {u"0 Einträge|0 entries", u"Alle Blätter|All sheets", u"Eintrag|Entry", u"Angabe|Details",
                   u"Blatt|Sheet", u"Periodensystem|Periodic table", u"Namen von Gruppen|Names of groups",
                   u"Oxidationszahlen|Oxidation numbers", u"Säuren und pH-Wert|Acids and pH"},
         .data = {u"???"},
         .aborts = true},
        {.name = u"frm_ToolOxValues",
         .make = makeLibraryForm<frm_ToolOxValues>,
         .design = &tool_ox_values_design::Design,
         .pairs = {},
         .madePairs = oxidationPairs(),
         .data = {},
         .aborts = true},
        {.name = u"frm_ToolPeriodensystem",
         .make = makePeriodicSheet,
         .design = &tool_periodic_design::Design,
         .pairs = {u"Bild|Picture", u"Namen|Names"},
         .data = {},
         .aborts = true},
        {.name = u"frm_ToolQuiz",
         .make = makeQuizForm,
         .design = &tool_quiz_design::Design,
         .pairs = {u"Frage 1 von 1|Question 1 of 1"},
         .data = {u"A?", u"a", u"b", u"c", u"d"},
         .aborts = true},
        {.name = u"frm_ToolpHRules",
         .make = makeLibraryForm<frm_ToolpHRules>,
         .design = &tool_ph_rules_design::Design,
         .pairs = {},
         .madePairs = acidPairs(),
         .data = {},
         .aborts = true},
    };
}

} // namespace phial::test
