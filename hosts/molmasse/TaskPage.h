#pragma once

#include "chem/cls_DataElements.h"
#include "molmasse/Round.h"
#include "visual/ControlArray.h"
#include "visual/Form.h"
#include "visual/TextBox.h"
#include "visual/ctl_Button.h"

#include <memory>
#include <optional>

namespace molmasse
{

/// The page of the tasks: formula, answer, number pad, verdict and hint. The coloured button checks the
/// answer and goes on to the next task.
///
/// The controls are those of the window's design; the page belongs to the window and ends with it.
class TaskPage
{
public:
    /// Finishes the controls of the page; `elements` count the atoms for the hint.
    TaskPage(phial::Form& form, std::shared_ptr<phial::cls_DataElements> elements);
    TaskPage(const TaskPage&) = delete;
    TaskPage& operator=(const TaskPage&) = delete;

    /// Takes a round and shows its first task.
    void begin(Round round);
    /// Forgets the round; its points leave the header.
    void end();
    /// The round under way or just finished; null without one.
    const Round* round() const { return round_ ? &*round_ : nullptr; }
    /// Tells the atoms, once a task. Without a round nothing happens.
    void giveHint();
    /// Puts all texts that are not of the design in the language in force.
    void TRANSLATE();

    /// The last task is decided and the pupil wants the result.
    phial::Event<> Finished;

private:
    void buildPad();
    void connect();
    void showTask();
    void showRoundTexts();
    void showCheckCaption();
    void showProgress();
    void check();
    void goOn();
    void selectAnswer();
    void showVerdict(Verdict verdict);
    void pressPad(std::int32_t index);

    template <typename Class>
    std::shared_ptr<Class> get(phial::StringView name) const
    {
        return form_.control<Class>(name);
    }

    phial::Form& form_;
    std::shared_ptr<phial::cls_DataElements> elements_;
    std::shared_ptr<phial::TextBox> answer_;
    phial::ControlArray<phial::ctl_Button> pad_;
    phial::Connections connections_;
    std::optional<Round> round_;
    std::optional<Verdict> verdict_; ///< what the present task shows
    bool hintShown_ = false;
};

} // namespace molmasse
