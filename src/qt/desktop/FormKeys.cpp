#include "qt/desktop/FormKeys.h"

#include "qt/desktop/InputCodes.h"
#include "visual/Form.h"

namespace phial::qt
{

namespace
{

bool keyDown(Control& control, Form* form, KeyEvent& key)
{
    if (form) {
        return form->inputKeyDown(key);
    }
    control.keyDown(key);
    return key.KeyCode != 0;
}

bool keyPress(Control& control, Form* form, KeyPressEvent& key)
{
    if (form) {
        return form->inputKeyPress(key);
    }
    control.keyPress(key);
    return key.KeyAscii != 0;
}

} // namespace

bool keyPressed(Control& control, const QKeyEvent& event, char16_t& rCharacter)
{
    const auto self = control.shared_from_this(); // a handler may take it away
    const std::shared_ptr<Form> form = control.frame().form();
    KeyEvent key = keyEvent(event);
    rCharacter = 0;
    if (!keyDown(control, form.get(), key)) {
        return false;
    }
    KeyPressEvent typed{typedCharacter(event)};
    if (typed.KeyAscii == 0) {
        return true;
    }
    if ((form && !form->Visible()) || !keyPress(control, form.get(), typed)) {
        return false;
    }
    rCharacter = typed.KeyAscii;
    return true;
}

bool keyPressed(Control& control, const QKeyEvent& event)
{
    char16_t character = 0;
    return keyPressed(control, event, character);
}

bool keyReleased(Control& control, const QKeyEvent& event)
{
    const auto self = control.shared_from_this();
    KeyEvent key = keyEvent(event);
    if (const std::shared_ptr<Form> form = control.frame().form()) {
        return form->inputKeyUp(key);
    }
    control.keyUp(key);
    return key.KeyCode != 0;
}

void focusEntered(Control& control)
{
    if (const std::shared_ptr<Form> form = control.frame().form()) {
        form->inputFocus(control.shared_from_this());
    } else {
        control.frame().focusChanged(true);
    }
}

} // namespace phial::qt
