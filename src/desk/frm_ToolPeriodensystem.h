#pragma once

#include "visual/DesignedForm.h"
#include "visual/PictureBox.h"
#include "visual/ctl_Button.h"

#include <memory>

namespace phial
{

class ctl_PSE;

/// The sheet of the periodic table: a table of symbols, whose elements tell about themselves, one of names,
/// and a printed one with the rows of electron states. It only shows; cls_AppTools::PERIODICSYSTEM opens it.
///
/// At first the symbols are seen. `but_Change` shows the picture, and then the table again that was seen
/// last.
class frm_ToolPeriodensystem
{
public:
    frm_ToolPeriodensystem();

    /// Beside the program's windows, or in front when it is there already. Where a modal form is shown, which
    /// would block it, it is modal, too, and this returns when it has been closed.
    void Show();
    /// Puts all texts in the language in force.
    void TRANSLATE();

    Form& form() { return *form_; }

private:
    void load();
    void showParts();

    bool showsPicture_ = false;
    bool showsNames_ = false;

    DesignedForm form_;
    std::shared_ptr<Control> holder_;
    std::shared_ptr<PictureBox> picture_;
    std::shared_ptr<ctl_PSE> symbols_;
    std::shared_ptr<ctl_PSE> names_;
    std::shared_ptr<ctl_Button> change_;
    std::shared_ptr<ctl_Button> namesOrSymbols_;
};

} // namespace phial
