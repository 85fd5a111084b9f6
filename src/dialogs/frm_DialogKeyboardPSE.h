#pragma once

#include "dialogs/TermPad.h"
#include "visual/DesignedForm.h"

#include <memory>
#include <utility>

namespace phial
{

class cls_DataElement;
class ctl_PSE;

/// The keyboard for formulas: the periodic table, whose elements are tapped, with digits and signs beside it,
/// and a field that shows the formula as it is printed. A tap on the element at the end of the formula counts
/// it up. What it does with its keys and how it ends is told at TermPad. An object serves for one dialog,
/// which cls_AppDialog opens.
class frm_DialogKeyboardPSE
{
public:
    frm_DialogKeyboardPSE();

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
    void load();
    void loadTable();
    void sizeBubble();
    void take(const cls_DataElement& element);
    bool offerIons(const cls_DataElement& element);

    DesignedForm form_;
    KeyboardWindow window_;
    TermPad pad_;
    std::shared_ptr<ctl_PSE> table_;
    bool isKeyDown_ = false; ///< with which the table's cursor presses an element
};

} // namespace phial
