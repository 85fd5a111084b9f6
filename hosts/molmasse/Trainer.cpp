#include "molmasse/Trainer.h"

#include "common/FrameTexts.h"
#include "molmasse/MassJudge.h"
#include "molmasse/Mistakes.h"
#include "molmasse/SaltParts.h"
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
    .note = u"Gerundete Atommassen zählen so gut wie genaue:<br>"
            u"±0,1\u00A0g/mol, bei großen Massen ±0,2\u00A0% und höchstens ±0,5\u00A0g/mol.|"
            u"Rounded atomic masses count as well as exact ones:<br>"
            u"±0.1\u00A0g/mol, for large masses ±0.2\u00A0% and at most ±0.5\u00A0g/mol.",
    .reference = u"Atommassen|Atomic masses",
    .waiting = u"Sobald deine Lehrkraft den Molmassen-Trainer freigibt, geht es hier von selbst weiter.|"
               u"As soon as your teacher opens the molar mass trainer for you, it goes on here by itself.",
    .solved = u"{1} von {2} Formeln gelöst|{1} of {2} formulas solved",
    .oneMore = u", eine mehr als zuletzt|, one more than last time",
    .more = u", {1} mehr als zuletzt|, {1} more than last time",
    .diploma = u"Molmassen-Diplom|Molar Mass Diploma",
    .certificate =
        u"hat zu {1} von {2} Formeln (Schwierigkeit: {3}) die molare Masse bestimmt und dabei {4} von {5} "
        u"Punkten erreicht.\r\nNote: {6}|"
        u"has worked out the molar mass of {1} of {2} formulas (difficulty: {3}) and reached {4} of {5} "
        u"points.\r\nMark: {6}",
};

constexpr phial::ControlDesign Controls[] = {
    learning::FormulaCard::card(),
    learning::FormulaCard::formula(),
    learning::FormulaCard::name(),
    learning::NumberAnswer::row(u"Molare Masse in g/mol|Molar mass in g/mol"),
    learning::NumberAnswer::unit(u"g/mol|g/mol"),
    learning::NumberAnswer::pad(),
    learning::NumberAnswer::calculator(),
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
    return Controls;
}

void Trainer::attach(phial::Form& form)
{
    card_.emplace(form);
    answer_.emplace(form, card_->panel());
    calculating_ = form.control<phial::ctl_Button>(u"but_Calculator")->CLICK.connect([this] { calculate(); });
}

void Trainer::TRANSLATE()
{
    answer_->TRANSLATE();
    card_->TRANSLATE();
}

void Trainer::show(int position)
{
    task_ = data_.tasks.at(position);
    counted_ = withoutDots(task_.text);
    mass_ = data_.elements->MOL(counted_);
    exactMass_ = data_.elements->exactMass(counted_).value_or(mass_);
    card_->show(task_);
    answer_->open();
}

Judgement Trainer::judge()
{
    judged_ = answer_->value();
    return judgeMass(judged_, massesOf(counted_, mass_, exactMass_));
}

String Trainer::solution() const
{
    return massText(mass_) + u"\u00A0g/mol";
}

String Trainer::hint() const
{
    return atomsCounted(*data_.elements, counted_, AtomMasses::Shown);
}

String Trainer::remark() const
{
    const MassSource source{
        [this](const String& formula) { return data_.elements->MOL(formula); },
        [this](const String& formula) {
            return data_.elements->exactMass(formula).value_or(data_.elements->MOL(formula));
        },
        [this](const String& symbol) {
            return data_.elements->EXISTS(symbol) ? data_.elements->ITEM(symbol, false)->PROTONS() : 0;
        }};
    const auto diagnosis = mistakeOf(task_.text, judged_.value_or(0), source);
    return diagnosis ? explained(*diagnosis) : String();
}

String Trainer::support() const
{
    return atomsCounted(*data_.elements, counted_, AtomMasses::Hidden);
}

String Trainer::working() const
{
    return workedLine(*data_.elements, task_.text);
}

phial::StringView Trainer::helpChapter() const
{
    constexpr phial::StringView MolarMass = u"K2";
    constexpr phial::StringView Brackets = u"K3";
    return counted_.find(u'(') == String::npos ? MolarMass : Brackets;
}

std::vector<learning::ReferenceEntry> Trainer::reference() const
{
    return massesOfElements(*data_.elements, data_.tasks.tasks());
}

void Trainer::fillWrong()
{
    const String typical = massOfFirstElement(*data_.elements, task_.text);
    const auto before = answer_->value();
    answer_->type(before && before == learning::typedNumber(typical) ? massText(*before + 1000)
                  : before                                           ? massText(*before + 1)
                                                                     : typical);
}

void Trainer::fill(Sample sample)
{
    switch (sample) {
    case Sample::Right:
        answer_->type(massText(mass_));
        return;
    case Sample::Wrong:
        fillWrong();
        return;
    case Sample::Unreadable:
        answer_->type(translate(u"viel", u"much"));
        return;
    }
}

} // namespace molmasse
