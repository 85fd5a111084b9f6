#pragma once

#include "visual/ControlArray.h"
#include "visual/DesignedForm.h"
#include "visual/Label.h"
#include "visual/PictureBox.h"

namespace phial
{

/// The sheet of groups: names of ions, acids and simple compounds beside their formulas. It only shows;
/// cls_AppTools::GROUPNAMES opens it.
class frm_ToolGroupNames
{
public:
    frm_ToolGroupNames();

    /// Modal: returns when it has been closed.
    void Show();
    /// Puts all texts in the language in force.
    void TRANSLATE();

    Form& form() { return *form_; }

private:
    static void paint(PictureBox& box, std::int32_t row);

    DesignedForm form_;
    ControlArray<Label> names_;
    ControlArray<PictureBox> formulas_;
};

} // namespace phial
