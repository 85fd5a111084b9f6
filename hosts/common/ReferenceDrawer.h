#pragma once

#include "common/ctl_Reference.h"
#include "visual/Form.h"
#include "visual/ctl_Button.h"

namespace learning
{

/// The drawer of the page of tasks with what may be looked up for nothing, and the button that opens it. It
/// covers how far the round has come and nothing of the task, and the focus stays in the answer.
///
/// The controls are those of the window's design.
class ReferenceDrawer
{
public:
    explicit ReferenceDrawer(phial::Form& form);
    ReferenceDrawer(const ReferenceDrawer&) = delete;
    ReferenceDrawer& operator=(const ReferenceDrawer&) = delete;

    /// Shows these from now on, in a drawer that is open as in one that is opened next; without any there is
    /// no button. `title` is what the button says.
    void fill(std::vector<ReferenceEntry> entries, const phial::String& title);
    /// What each press does: opens the drawer, goes on to its next page, closes it behind the last one.
    void turn();
    /// Whether it was open.
    bool close();

private:
    std::shared_ptr<phial::ctl_Button> button_;
    std::shared_ptr<ctl_Reference> drawer_;
    phial::Connections connections_;
};

} // namespace learning
