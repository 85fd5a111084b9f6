#pragma once

#include "chem/FormulaAnalysis.h"
#include "common/FormulaCard.h"
#include "common/FrameTexts.h"
#include "common/LearningApp.h"
#include "common/NumberAnswer.h"
#include "common/TaskList.h"
#include "core/NumberText.h"

#include <optional>

namespace atoms
{

inline constexpr learning::AppTexts Texts{
    .title = u"Atome zählen|Counting atoms",
    .question = u"Wie viele Atome sind das?|How many atoms are these?",
    .introduction = u"Zähle die Atome jeder Formel. Wähle, wie schwer es werden soll:|"
                    u"Count the atoms of each formula. Choose how hard it shall be:",
    .note = u"Ein Index hinter einer Klammer gilt für alles darin.|"
            u"An index behind a bracket counts for all within.",
    .waiting = u"Sobald deine Lehrkraft das Programm freigibt, geht es hier weiter.|"
               u"As soon as your teacher opens the program for you, it goes on here.",
    .solved = u"{1} von {2} Formeln gelöst|{1} of {2} formulas solved",
    .oneMore = u", eine mehr als zuletzt|, one more than last time",
    .more = u", {1} mehr als zuletzt|, {1} more than last time",
    .diploma = u"Zähl-Diplom|Counting Diploma",
    .certificate = u"hat die Atome von {1} der {2} Formeln gezählt ({3}): {4} von {5} Punkten.\r\nNote: {6}|"
                   u"has counted the atoms of {1} of {2} formulas ({3}): {4} of {5} points.\r\nMark: {6}",
};

inline constexpr phial::ControlDesign Controls[] = {
    learning::FormulaCard::card(),
    learning::FormulaCard::formula(),
    learning::FormulaCard::name(),
    learning::NumberAnswer::row(u"Zahl der Atome|Number of atoms"),
    learning::NumberAnswer::unit(u"Atome|atoms"),
    learning::NumberAnswer::pad(),
};

/// Counting atoms: a formula on a card, and the number of its atoms as the answer.
class AtomCounting final : public learning::LearningApp
{
public:
    const learning::AppTexts& texts() const override { return Texts; }
    phial::String missing() const override
    {
        return tasks_.isEmpty()
                   ? learning::translate(u"Diese Datei fehlt oder enthält keine Formel:<br>{1}",
                                         u"This file is missing or holds no formula:<br>{1}", {tasks_.path()})
                   : phial::String();
    }
    phial::String complaint() const override { return tasks_.complaint(); }
    std::vector<learning::LevelTitle> levels() const override { return tasks_.titles(); }
    std::span<const phial::ControlDesign> controls() const override { return Controls; }
    void attach(phial::Form& form) override
    {
        card_.emplace(form);
        answer_.emplace(form, card_->panel());
    }
    void TRANSLATE() override
    {
        card_->TRANSLATE();
        answer_->TRANSLATE();
    }

    bool hasTask(phial::StringView name) const override { return tasks_.holds(name); }
    int begin(std::size_t level, const learning::TaskChoice& choice) override
    {
        return tasks_.begin(level, choice);
    }
    void show(int position) override
    {
        task_ = tasks_.at(position);
        card_->show(task_);
        answer_->open();
    }
    phial::String taskName() const override { return task_.text; }
    phial::String spoken() const override { return card_->spoken(); }
    phial::String taskTitle() const override { return learning::formulaLine(task_.text); }
    phial::String answer() const override { return answer_->text(); }
    learning::Judgement judge() override
    {
        const auto value = answer_->value();
        return !value                            ? learning::Judgement::Unreadable
               : *value == countedIn(task_.text) ? learning::Judgement::Right
                                                 : learning::Judgement::Wrong;
    }
    void retry() override { answer_->retry(); }
    void close() override { answer_->close(); }
    phial::ControlPtr field() const override { return answer_->field(); }

    phial::String solution() const override { return phial::plainText(countedIn(task_.text), u','); }
    phial::String unreadable() const override { return learning::NumberAnswer::unreadable(); }
    phial::String hint() const override
    {
        const auto elements = static_cast<int>(phial::AtomCounts(task_.text).size());
        return learning::translate(u"Elemente: {1}", u"Elements: {1}", {learning::number(elements)});
    }

    void fill(Sample sample) override
    {
        const double off = sample == Sample::Wrong ? 1 : 0;
        answer_->type(sample == Sample::Unreadable ? phial::String(u"?")
                                                   : phial::plainText(countedIn(task_.text) + off, u','));
    }

private:
    static double countedIn(phial::StringView formula)
    {
        double sum = 0;
        for (const phial::AtomCount& atoms : phial::AtomCounts(formula)) {
            sum += atoms.count;
        }
        return sum;
    }

    learning::TaskList tasks_{u"formeln.txt",
                              [](const phial::String& text) { return learning::FormulaCard::faultOf(text); }};
    learning::ListedTask task_;
    std::optional<learning::FormulaCard> card_;
    std::optional<learning::NumberAnswer> answer_;
};

} // namespace atoms
