#pragma once

#include "Quiz.h"
#include "term/ctl_TermLabel.h"
#include "visual/ControlArray.h"
#include "visual/DesignedForm.h"
#include "visual/ctl_Button.h"
#include "visual/ctl_Label.h"

/// The window: a formula, four names to choose from, and what came of it.
class frm_Quiz
{
public:
    frm_Quiz();

    phial::Form& form() { return *form_; }
    /// What is asked now.
    const quiz::Question& question() const { return questions_[at_]; }

private:
    void TRANSLATE();
    void begin();
    void choose(std::size_t choice);
    void show();

    std::vector<quiz::Question> questions_;
    std::size_t at_ = 0;
    std::size_t right_ = 0;
    phial::String remark_;

    phial::DesignedForm form_;
    phial::ControlArray<phial::ctl_Button> names_;
    std::shared_ptr<phial::ctl_TermLabel> formula_;
    std::shared_ptr<phial::ctl_Label> said_;
};
