#pragma once

#include "molmasse/Round.h"
#include "molmasse/TrainerData.h"
#include "term/ctl_TermLabel.h"
#include "visual/ControlArray.h"
#include "visual/Form.h"
#include "visual/TextBox.h"
#include "visual/ctl_Button.h"
#include "visual/ctl_Label.h"
#include "visual/ctl_Pannel.h"

#include <optional>

namespace molmasse
{

/// The trainer's window: choice of the level, ten tasks, the summary; or what is missing. The header shows
/// who works here, and changes it when it is pressed. Return does what the coloured button says, F1 gives the
/// hint, Escape ends; everything can be touched as well.
class frm_Molmasse
{
public:
    explicit frm_Molmasse(TrainerData data);
    ~frm_Molmasse();
    frm_Molmasse(const frm_Molmasse&) = delete;
    frm_Molmasse& operator=(const frm_Molmasse&) = delete;

    phial::Form& form() { return *form_; }
    void Show();
    /// For the moment in which the window stands: asks who works here when no name is known yet.
    void welcome();
    /// Puts all texts in the language in force.
    void TRANSLATE();

    /// The round under way; null before the first.
    const Round* round() const { return round_ ? &*round_ : nullptr; }

private:
    enum class Page { Start, Task, Summary, Missing };

    void build();
    void buildLevels();
    void buildPad();
    void connect();

    void askForUser();
    void nameUser();
    void show(Page page);
    void startRound(std::size_t level);
    void showTask();
    void showRoundTexts();
    void showCheckCaption();
    void showProgress();
    void check();
    void selectAnswer();
    void goOn();
    void showVerdict(Verdict verdict);
    void giveHint();
    void pressPad(std::int32_t index);
    void showSummary();
    void showSummaryTexts();
    void keyDown(phial::KeyEvent& event);

    phial::String missingText() const;
    template <typename Class>
    std::shared_ptr<Class> get(phial::StringView name) const
    {
        return form_->control<Class>(name);
    }
    void caption(phial::StringView label, phial::String text) const;

    TrainerData data_;
    std::shared_ptr<phial::Form> form_;
    phial::ControlArray<phial::ctl_Button> levels_;
    phial::ControlArray<phial::ctl_Button> pad_;
    phial::Connections connections_;
    Page page_ = Page::Start;
    std::size_t level_ = 0;
    std::optional<Round> round_;
    std::optional<Verdict> verdict_; ///< what the present task shows
    bool hintShown_ = false;
};

} // namespace molmasse
