#pragma once

#include "dialogs/KeyboardWindow.h"
#include "dialogs/NumberPadText.h"
#include "dialogs/ctl_Keys.h"
#include "visual/DesignedForm.h"
#include "visual/TextBox.h"

#include <memory>

namespace phial
{

/// The pad for numbers: a window with a field of its own, into which its keys and a keyboard on the desk
/// type. OK, Return and leaving the window confirm: the number goes, as a plain text, to the control that was
/// named (see TargetText). As long as nothing was pressed or typed the control keeps its text, which can say
/// more than the pad shows. Escape and the cross give up. An object serves for one dialog, which
/// cls_AppDialog opens.
class frm_DialogNumericTouch
{
public:
    frm_DialogNumericTouch();

    /// Set before it is shown: the control whose number is edited, held weakly, and what is asked for; the
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
    void connect();
    void load();
    void readTarget();
    void edited();
    void strike(const String& key);
    bool hasRoomFor(const String& text) const;
    void show();
    void accept();

    DesignedForm form_;
    KeyboardWindow window_;
    std::shared_ptr<TextBox> input_;
    std::shared_ptr<ctl_Keys> keys_;
    NumberPadText number_;
};

} // namespace phial
