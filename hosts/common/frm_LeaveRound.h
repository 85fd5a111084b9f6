#pragma once

#include "visual/DesignedForm.h"

namespace learning
{

/// Asks whether a round is to end before its last task. Return and Escape go on practising. An object serves
/// for one dialog.
class frm_LeaveRound
{
public:
    /// `points` are those that would be lost.
    explicit frm_LeaveRound(int points);

    /// Modal. Gives whether the round is to end.
    bool Show();
    phial::Form& form() { return *form_; }

private:
    void TRANSLATE();

    int points_;
    bool leaves_ = false;
    phial::DesignedForm form_;
};

} // namespace learning
