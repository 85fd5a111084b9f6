#pragma once

#include "visual/DesignedForm.h"

#include <optional>

namespace learning
{

/// Asks whether a round is to end before its last task. Return and Escape go on practising. An object serves
/// for one dialog.
class frm_LeaveRound
{
public:
    /// `points` are those that would be lost; none in a round for practice, whose points count nowhere.
    explicit frm_LeaveRound(std::optional<int> points);

    /// Modal. Gives whether the round is to end.
    bool Show();
    phial::Form& form() { return *form_; }

private:
    void TRANSLATE();

    phial::String question() const;

    std::optional<int> points_;
    bool leaves_ = false;
    phial::DesignedForm form_;
};

} // namespace learning
