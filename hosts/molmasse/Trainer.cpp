#include "molmasse/Trainer.h"

#include "common/FrameTexts.h"
#include "common/TermFit.h"
#include "molmasse/MassJudge.h"
#include "molmasse/Mistakes.h"
#include "molmasse/TrainerDesign.h"
#include "molmasse/Working.h"

namespace molmasse
{

using learning::Judgement;
using learning::translate;
using phial::String;

namespace
{

constexpr learning::AppTexts Texts{
    .title = u"Molmassen-Trainer|Molar mass trainer",
    .question = u"Was wiegt ein Mol davon?|What does a mole of it weigh?",
    .introduction =
        u"Bestimme zu jeder Formel die molare Masse in g/mol und tippe sie ein, mit Komma oder Punkt. "
        u"Wähle, wie schwer es werden soll:|"
        u"Work out the molar mass of each formula in g/mol and type it, with a comma or a point. "
        u"Choose how hard it shall be:",
    .note =
        u"Gerundete Atommassen zählen so gut wie genaue: ±0,1 g/mol, bei großen Massen ±0,2 % und höchstens "
        u"±0,5 g/mol.|"
        u"Rounded atomic masses count as well as exact ones: ±0.1 g/mol, for large masses ±0.2 % and at "
        u"most ±0.5 g/mol.",
    .reference = u"Atommassen|Atomic masses",
    .waiting = u"Sobald deine Lehrkraft den Molmassen-Trainer freigibt, geht es hier von selbst weiter.|"
               u"As soon as your teacher opens the molar mass trainer for you, it goes on here by itself.",
    .solved = u"{1} von {2} Formeln gelöst|{1} of {2} formulas solved",
    .diploma = u"Molmassen-Diplom|Molar Mass Diploma",
    .certificate =
        u"hat zu {1} von {2} Formeln (Schwierigkeit: {3}) die molare Masse bestimmt und dabei {4} von {5} "
        u"Punkten erreicht.\r\nNote: {6}|"
        u"has worked out the molar mass of {1} of {2} formulas (difficulty: {3}) and reached {4} of {5} "
        u"points.\r\nMark: {6}",
};

} // namespace

const learning::AppTexts& Trainer::texts() const
{
    return Texts;
}

String Trainer::missing() const
{
    if (data_.missingFile.empty()) {
        return {};
    }
    return data_.elements ? translate(u"Die Datei mit den Formeln fehlt oder enthält keine Aufgabe:<br>{1}",
                                      u"The file of the formulas is missing or holds no task:<br>{1}",
                                      {data_.missingFile})
                          : translate(u"Die Datei mit den Elementen fehlt oder ist leer:<br>{1}<br>"
                                      u"Bitte installiere QV Phial neu.",
                                      u"The file of the elements is missing or empty:<br>{1}<br>"
                                      u"Please install QV Phial again.",
                                      {data_.missingFile});
}

std::span<const phial::ControlDesign> Trainer::controls() const
{
    return trainer_design::Controls;
}

void Trainer::attach(phial::Form& form)
{
    form_ = &form;
    formula_ = form.control<phial::ctl_TermLabel>(u"trm_Formula");
    answer_.emplace(form);
}

void Trainer::TRANSLATE()
{
    answer_->TRANSLATE();
    showName();
}

void Trainer::showName()
{
    learning::caption(*form_, u"lab_Name", translate(task_.germanName, task_.englishName));
}

int Trainer::begin(std::size_t level, const learning::TaskChoice& choice)
{
    level_ = level;
    tasks_ = drawRound(data_.tasks.levels.at(level), choice);
    return static_cast<int>(tasks_.size());
}

void Trainer::show(int position)
{
    task_ = tasks_.at(static_cast<std::size_t>(position - 1));
    mass_ = data_.elements->MOL(task_.text);
    exactMass_ = exactMass(data_.exactMasses, task_.text).value_or(mass_);
    learning::showFitting(*formula_, task_.text);
    showName();
    answer_->open();
}

String Trainer::spoken() const
{
    return translate(task_.germanName, task_.englishName) + u", " + task_.text;
}

Judgement Trainer::judge()
{
    judged_ = answer_->value();
    return judgeMass(judged_, mass_, exactMass_);
}

String Trainer::solution() const
{
    return massText(mass_) + u" g/mol";
}

String Trainer::unreadable() const
{
    return translate(u"Bitte gib eine Zahl ein, zum Beispiel 12,5.",
                     u"Please type a number, for example 12.5.");
}

String Trainer::hint() const
{
    return atomsCounted(*data_.elements, task_.text, AtomMasses::Shown);
}

String Trainer::remark() const
{
    const MassSource source{[this](const String& formula) { return data_.elements->MOL(formula); },
                            [this](const String& symbol) {
                                return data_.elements->EXISTS(symbol)
                                           ? data_.elements->ITEM(symbol, false)->PROTONS()
                                           : 0;
                            }};
    const auto diagnosis = mistakeOf(task_.text, judged_.value_or(0), source);
    return diagnosis ? explained(*diagnosis) : String();
}

String Trainer::support() const
{
    return atomsCounted(*data_.elements, task_.text, AtomMasses::Hidden);
}

String Trainer::working() const
{
    return workedLine(*data_.elements, task_.text);
}

std::vector<learning::ReferenceEntry> Trainer::reference() const
{
    return massesOfElements(*data_.elements, data_.tasks.levels.at(level_).tasks);
}

void Trainer::fillWrong()
{
    const String typical = massOfFirstElement(*data_.elements, task_.text);
    const auto before = answer_->value();
    answer_->field()->Text(before && before == learning::typedNumber(typical) ? massText(*before + 1000)
                           : before                                           ? massText(*before + 1)
                                                                              : typical);
}

void Trainer::fill(Sample sample)
{
    switch (sample) {
    case Sample::Right:
        answer_->field()->Text(massText(mass_));
        return;
    case Sample::Wrong:
        fillWrong();
        return;
    case Sample::Unreadable:
        answer_->field()->Text(translate(u"viel", u"much"));
        return;
    }
}

} // namespace molmasse
