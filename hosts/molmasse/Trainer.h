#pragma once

#include "common/FormulaCard.h"
#include "common/LearningApp.h"
#include "common/NumberAnswer.h"
#include "molmasse/Praise.h"
#include "molmasse/TrainerData.h"
#include "molmasse/Working.h"

#include <optional>

namespace molmasse
{

/// The molar-mass trainer: a formula on a card, and the mass of a mole of it as the answer.
class Trainer final : public learning::LearningApp
{
public:
    explicit Trainer(TrainerData data) : data_(std::move(data)) {}

    const learning::AppTexts& texts() const override;
    phial::String missing() const override;
    std::vector<learning::LevelTitle> levels() const override { return data_.tasks.titles(); }
    phial::String complaint() const override { return data_.tasks.complaint(); }
    std::span<const phial::ControlDesign> controls() const override;
    void attach(phial::Form& form) override;
    void TRANSLATE() override;
    bool hasTask(phial::StringView name) const override { return data_.tasks.holds(name); }
    int begin(std::size_t level, const learning::TaskChoice& choice) override
    {
        return data_.tasks.begin(level, choice);
    }
    void show(int position) override;
    phial::String taskName() const override { return task_.text; }
    phial::String spoken() const override { return card_->spoken(); }
    phial::String taskTitle() const override { return learning::formulaLine(task_.text); }
    phial::String answer() const override { return answer_->text(); }
    learning::Judgement judge() override;
    void calculate() override { answer_->calculate(taskTitle()); }
    void retry() override { answer_->retry(); }
    void close() override { answer_->close(); }
    phial::ControlPtr field() const override { return answer_->field(); }
    phial::String solution() const override;
    phial::String unreadable() const override { return learning::NumberAnswer::unreadable(); }
    phial::String hint() const override;
    phial::String remark() const override;
    std::vector<phial::StringView> mastered() const override { return masteredIn(task_.text); }
    phial::String support() const override;
    phial::String working() const override;
    phial::StringView helpChapter() const override;
    std::vector<learning::ReferenceEntry> reference() const override;
    void fill(Sample sample) override;

private:
    void fillWrong();

    TrainerData data_;
    learning::ListedTask task_;
    phial::String counted_;        ///< its formula without dots
    double mass_ = 0;              ///< its molar mass by the table, one decimal an element, in g/mol
    double exactMass_ = 0;         ///< the same with all digits
    std::optional<double> judged_; ///< the last answer, in g/mol
    std::optional<learning::FormulaCard> card_;
    std::optional<learning::NumberAnswer> answer_;
    phial::Connection calculating_;
};

} // namespace molmasse
