#pragma once

#include "visual/ControlArray.h"
#include "visual/DesignedForm.h"
#include "visual/ctl_Label.h"

namespace phial
{

/// The sheet of oxidation numbers: the rules that give them, in their order, with examples. It only shows;
/// cls_AppTools::OxValues opens it.
class frm_ToolOxValues
{
public:
    frm_ToolOxValues();

    /// Modal: returns when it has been closed.
    void Show();
    /// Puts all texts in the language in force.
    void TRANSLATE();

    Form& form() { return *form_; }

private:
    DesignedForm form_;
    ControlArray<ctl_Label> rules_;
    ControlArray<ctl_Label> examples_;
};

} // namespace phial
