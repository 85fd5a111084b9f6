#include "core/CoreTokenList.h"
#include "desk/frm_ToolCalc.h"
#include "desk/frm_ToolGroupNames.h"
#include "desk/frm_ToolLookUp.h"
#include "desk/frm_ToolOxValues.h"
#include "desk/frm_ToolPeriodensystem.h"
#include "desk/frm_ToolQuiz.h"
#include "desk/frm_ToolpHRules.h"
#include "gallery/ActionExhibit.h"
#include "gallery/Catalogue.h"
#include "visual/TextBox.h"
#include "visual/ctl_Button.h"

#include <initializer_list>
#include <memory>
#include <vector>

namespace gallery
{

using namespace phial;

namespace
{

// Keys of the calculator, by their index.
constexpr std::int32_t Times = 12;
constexpr std::int32_t Equals = 19;
constexpr std::int32_t Table = 20;
constexpr std::int32_t Open = 10;
constexpr std::int32_t Close = 11;
constexpr std::int32_t Comma = 16;
constexpr std::int32_t FirstStore = 40;

ObjectPtr buildCalculator(Stage& stage)
{
    putNote(stage, {24, 4, stage.size().width - 48, 68},
            u"Der Knopf unten öffnet den Taschenrechner mit einer Aufgabe.|"
            u"The button below opens the pocket calculator with a task.");
    const auto made = std::make_shared<frm_ToolCalc>();
    CoreTokenList variables;
    variables.Add(u"n", {0.25, u"mol"});
    variables.Add(u"M", {58.5, u"g/mol"});
    variables.Add(u"V", {2, u"l"});
    made->Variables(variables);
    made->Parameters().Set(u"TASK", say(u"Wie viel wiegen 0,25 mol Natriumchlorid?|"
                                        u"How much do 0.25 mol of sodium chloride weigh?"));
    stage.atEnd([made] { made->form().discard(); });
    return made->form().shared_from_this();
}

/// Opens it and strikes keys one after the other.
Sample struckKeys(StringView name, std::initializer_list<std::int32_t> keys)
{
    return sample<Form>(name, [keys = std::vector(keys)](Form& form) {
        form.Show();
        for (const std::int32_t key : keys) {
            form.control<ctl_Button>(u"but_Key", key)->click();
        }
    });
}

/// A sheet without its modal wait, so that the gallery goes on.
template <typename Sheet>
ObjectPtr buildSheet(Stage& stage)
{
    putNote(stage, {24, 4, stage.size().width - 48, 68},
            u"Der Knopf unten öffnet das Blatt.|The button below opens the sheet.");
    const auto made = std::make_shared<Sheet>();
    stage.atEnd([made] { made->form().discard(); });
    return made->form().shared_from_this();
}

/// Practice whose questions are the same each time.
ObjectPtr buildQuiz(Stage& stage)
{
    putNote(stage, {24, 4, stage.size().width - 48, 68},
            u"Der Knopf unten beginnt eine Runde.|The button below begins a round.");
    const auto made = std::make_shared<frm_ToolQuiz>([] {
        const std::vector<SheetEntry> entries = sheetEntries();
        const auto sulphates = entriesFound(entries, u"sulfat", ReferenceSheet::Groups);
        QuizQuestion question{.question = sulphates.front().question, .choices = {}, .right = 1};
        for (const StringView other : {u"sulfid", u"sulfat", u"sulfit", u"nitrat"}) {
            question.choices.push_back(
                {entriesFound(entries, other, ReferenceSheet::Groups).front().answer, {}});
        }
        return std::vector{question, question};
    });
    stage.atEnd([made] { made->form().discard(); });
    return made->form().shared_from_this();
}

/// Presses answers one after the other, and goes on behind each.
Sample answered(StringView name, std::initializer_list<std::int32_t> answers, bool goesOn)
{
    return sample<Form>(name, [answers = std::vector(answers), goesOn](Form& form) {
        form.Show();
        for (const std::int32_t answer : answers) {
            form.control<ctl_Button>(u"but_Choice", answer)->click();
            if (goesOn) {
                form.control<CommandBar>(u"bar_Buttons")->inputButton(1);
            }
        }
    });
}

/// Looks something up.
Sample sought(StringView name, StringView text)
{
    return sample<Form>(name, [text](Form& form) {
        form.Show();
        form.control<TextBox>(u"txt_Sought")->Text(String(text));
    });
}

/// Opens a sheet and presses a button on it.
Sample pressed(StringView name, StringView button)
{
    return sample<Form>(name, [button](Form& form) {
        form.Show();
        form.control<ctl_Button>(button)->click();
    });
}

} // namespace

std::vector<Exhibit> deskExhibits()
{
    const auto sheet = [](StringView title, StringView about, auto build, std::vector<Sample>&& samples) {
        return Exhibit{.group = Group::Windows,
                       .title = title,
                       .about = about,
                       .build = build,
                       .samples = std::move(samples),
                       .editable = false,
                       .everyLook = true};
    };
    const std::vector<Sample> shown{sample<Form>(u"Zeigen|Show", [](Form& form) { form.Show(); })};
    return {
        sheet(u"frm_ToolPeriodensystem", u"Das Periodensystem als Blatt.|The sheet of the periodic table.",
              buildSheet<frm_ToolPeriodensystem>,
              {shown.front(), pressed(u"Namen|Names", u"but_NamSymb"),
               pressed(u"Bild|Picture", u"but_Change")}),
        sheet(u"frm_ToolGroupNames", u"Namen und Formeln von Gruppen.|Names and formulas of groups.",
              buildSheet<frm_ToolGroupNames>, std::vector(shown)),
        sheet(u"frm_ToolOxValues", u"Regeln für Oxidationszahlen.|Rules for oxidation numbers.",
              buildSheet<frm_ToolOxValues>, std::vector(shown)),
        sheet(u"frm_ToolpHRules", u"Säuren und Regeln zum pH-Wert.|Acids and rules of pH.",
              buildSheet<frm_ToolpHRules>, std::vector(shown)),
        sheet(u"frm_ToolLookUp", u"Alle Blätter zum Durchsuchen.|All sheets to search.",
              buildSheet<frm_ToolLookUp>,
              {shown.front(), sought(u"Gesucht|Sought", u"sulf"), sought(u"Nichts|Nothing", u"xyz")}),
        sheet(u"frm_ToolQuiz", u"Üben mit den Blättern.|Practice with the sheets.", buildQuiz,
              {shown.front(), answered(u"Richtig|Right", {1}, false), answered(u"Falsch|Wrong", {2}, false),
               answered(u"Ende|End", {1, 2}, true)}),
        Exhibit{
            .group = Group::Windows,
            .title = u"frm_ToolCalc",
            .about = u"Der Taschenrechner.|The pocket calculator.",
            .build = buildCalculator,
            .samples = {struckKeys(u"Zeigen|Show", {}),
                        struckKeys(u"Gerechnet|Worked out", {3, Times, 1, 8, Equals, FirstStore, Comma, 5}),
                        struckKeys(u"Fehler|Error", {Open, 2, Close, 3, Close, Equals}),
                        struckKeys(u"Periodensystem|Periodic table", {Table, 3, Times, 1, 8})},
            .editable = false,
            .everyLook = true}};
}

} // namespace gallery
