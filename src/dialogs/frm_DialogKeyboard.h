#pragma once

#include "dialogs/KeyboardWindow.h"
#include "dialogs/ctl_Keys.h"
#include "visual/DesignedForm.h"
#include "visual/TextBox.h"

#include <memory>

namespace phial
{

/// The keyboard for texts: a window with a field of its own, into which its keys and those of a keyboard on
/// the desk type. OK, Return and the key ENTER write the text back to the control that was named (see
/// TargetText); Escape, the key ESC and the cross give up. An object serves for one dialog, which
/// cls_AppDialog opens.
class frm_DialogKeyboard
{
public:
    frm_DialogKeyboard();

    /// Set before it is shown: the control whose text is edited, held weakly, and what is asked for; the
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
    void previewKey(KeyEvent& event);
    void load();
    void readTarget();
    void showLines();
    void edited();
    void replaceText(const String& text, std::size_t caret);
    bool hasRoomFor(std::size_t length) const;
    void perform(const KeyDeed& deed);
    void send(StringView strokes);
    void clear();
    void addLine();
    void accept();
    void writeBack();

    DesignedForm form_;
    KeyboardWindow window_;
    std::shared_ptr<TextBox> input_;
    std::shared_ptr<ctl_Keys> keys_;
    bool takesLines_ = true;
    String text_; ///< as it was before the last change
    String written_;
};

} // namespace phial
