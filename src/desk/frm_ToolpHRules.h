#pragma once

#include "visual/DesignedForm.h"
#include "visual/ctl_Label.h"

#include <memory>

namespace phial
{

/// The sheet of acids: some with their bases and pKs, and how pH values are worked out. It only shows;
/// cls_AppTools::pHRules opens it.
class frm_ToolpHRules
{
public:
    frm_ToolpHRules();

    /// Modal: returns when it has been closed.
    void Show();
    /// Puts all texts in the language in force.
    void TRANSLATE();

    Form& form() { return *form_; }

private:
    DesignedForm form_;
    std::shared_ptr<ctl_Label> table_;
};

} // namespace phial
