#pragma once

#include "dialogs/TermPad.h"
#include "visual/DesignedForm.h"

#include <memory>
#include <utility>

namespace phial
{

/// The keyboard for terms: letters, digits and signs beside each other, and a field that shows the term as it
/// is printed. A plain tap on a letter types its capital, and with SHIFT the small letter. What it does with
/// its keys and how it ends is told at TermPad. An object serves for one dialog, which cls_AppDialog opens.
class frm_DialogKeyboardTerm
{
public:
    frm_DialogKeyboardTerm();

    /// Set before it is shown: the control whose term is edited, held weakly, and what is asked for; the
    /// usual words where that is empty.
    void TargetControl(const ObjectPtr& value) { window_.target(value); }
    ObjectPtr TargetControl() const { return window_.target().target(); }
    void TitleText(String value) { window_.title(std::move(value)); }
    const String& TitleText() const { return window_.title(); }
    /// Read after closing: whether the user has confirmed.
    bool Accepted() const { return window_.isAccepted(); }

    /// Modal: returns when the user has confirmed or given up.
    void Show();
    /// Puts all texts in the language in force.
    void TRANSLATE();

    Form& form() { return *form_; }

private:
    DesignedForm form_;
    KeyboardWindow window_;
    TermPad pad_;
};

} // namespace phial
