#pragma once

#include "desk/SheetQuiz.h"
#include "visual/ControlArray.h"
#include "visual/DesignedForm.h"
#include "visual/ctl_Button.h"
#include "visual/ctl_Label.h"

#include <functional>
#include <memory>

namespace phial
{

/// Practice with the reference sheets: one question after the other, each with four answers to choose from,
/// by a press or by the keys 1 to 4. Nothing is kept of it.
class frm_ToolQuiz
{
public:
    /// `make` gives the questions of a round, one at least.
    explicit frm_ToolQuiz(std::function<std::vector<QuizQuestion>()> make);

    /// Modal: returns when it has been closed.
    void Show();
    /// Puts all texts in the language in force. A question that has been asked stays as it was asked.
    void TRANSLATE();

    Form& form() { return *form_; }
    /// What is asked now.
    const QuizQuestion& question() const { return questions_[at_]; }
    /// Right answers of the round.
    std::size_t right() const { return right_; }

private:
    void keyDown(KeyEvent& event);
    void begin();
    void choose(std::size_t choice);
    void goOn();
    bool isOver() const;
    void show();
    void showEnd();
    void showQuestion();

    std::function<std::vector<QuizQuestion>()> make_;
    std::vector<QuizQuestion> questions_;
    std::size_t at_ = 0;
    std::size_t right_ = 0;
    std::optional<std::size_t> chosen_; ///< none while the question is open

    DesignedForm form_;
    ControlArray<ctl_Button> choices_;
    std::shared_ptr<ctl_Label> progress_;
    std::shared_ptr<ctl_Label> asked_;
    std::shared_ptr<ctl_Label> verdict_;
    std::shared_ptr<ctl_CmdBar> bar_;
};

} // namespace phial
