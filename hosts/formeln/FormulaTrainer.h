#pragma once

#include "common/AnswerLock.h"
#include "common/LearningApp.h"
#include "formeln/EquationCard.h"
#include "formeln/FormulaJudge.h"
#include "formeln/FormulaTasks.h"
#include "formeln/TermAnswer.h"
#include "visual/ctl_Button.h"

#include <functional>
#include <optional>
#include <vector>

namespace formeln
{

/// The formula trainer: the formula of a substance, the name of one, or the factors of an equation. Three
/// pages, of which a task has one.
class FormulaTrainer final : public learning::LearningApp
{
public:
    explicit FormulaTrainer(FormulaData data) : data_(std::move(data)) {}

    const learning::AppTexts& texts() const override;
    phial::String missing() const override;
    std::vector<learning::LevelTitle> levels() const override { return data_.tasks.list().titles(); }
    phial::StringView highscore() const override { return u"FORMELN"; }
    phial::String complaint() const override { return data_.tasks.list().complaint(); }
    std::span<const phial::ControlDesign> controls() const override;
    void attach(phial::Form& form) override;
    void TRANSLATE() override;

    bool hasTask(phial::StringView name) const override { return data_.tasks.holds(name); }
    int begin(std::size_t level, const learning::TaskChoice& choice) override
    {
        return data_.tasks.begin(level, choice);
    }
    void show(int position) override;
    phial::String taskName() const override { return task_.name(); }
    phial::String spoken() const override;
    phial::String taskTitle() const override;
    phial::String answer() const override;
    learning::Judgement judge() override;
    void retry() override;
    void close() override { close(true); }
    phial::ControlPtr field() const override;

    phial::String solution() const override;
    phial::String unreadable() const override { return remark(); }
    phial::String hint() const override;
    phial::String remark() const override { return opinion_ ? opinion_().remark : phial::String(); }
    phial::String support() const override;
    phial::String working() const override;
    std::vector<phial::StringView> mastered() const override;
    phial::StringView helpChapter() const override;
    void fill(Sample sample) override;

private:
    bool asks(Asked what) const { return task_.asked == what; }
    void close(bool isClosed);
    void openKeyboard();
    phial::String firstName() const;
    phial::String question() const;
    phial::String typedName() const;
    void type(const phial::String& answer);
    FormulaOpinion opinionOfName(const phial::String& name) const;
    FormulaOpinion opinionOfFactors(const std::optional<std::vector<int>>& factors) const;
    phial::String otherSubstance(const phial::String& name) const;

    FormulaData data_;
    FormulaTask task_;
    Equation equation_;         ///< of a task that asks for factors
    std::vector<int> solution_; ///< its factors
    /// Of the answer that was judged last, in the language in force.
    std::function<FormulaOpinion()> opinion_;
    phial::Form* form_ = nullptr;
    std::optional<EquationCard> card_;
    std::optional<TermAnswer> term_;
    std::shared_ptr<phial::ctl_QVInput> name_;
    std::shared_ptr<phial::TextBox> nameField_; ///< within it
    std::optional<learning::AnswerLock> lock_;
    phial::Connections connections_;
};

} // namespace formeln
