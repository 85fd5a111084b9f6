#include "qt/desktop/FormKeys.h"

#include "qt/desktop/ControlWidget.h"
#include "qt/desktop/InputCodes.h"
#include "qt/desktop/WindowHandles.h"
#include "visual/Form.h"

#include <QApplication>

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

bool belongsToControl(const QWidget& widget)
{
    for (const QWidget* holder = &widget; holder; holder = holder->parentWidget()) {
        if (qobject_cast<const ControlWidget*>(holder)) {
            return true;
        }
    }
    return false;
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
    if (event.isAutoRepeat()) {
        return true; // a held key is let go once, at the end
    }
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
    const ControlPtr self = control.shared_from_this();
    const auto parent = control.frame().Parent();
    if (const std::shared_ptr<Form> form = control.frame().form()) {
        form->inputFocus(self);
    } else if (KeyboardFocus* focus = parent ? parent->keyboardFocus() : nullptr) {
        focus->moveTo(self);
    }
}

// A form's control keeps the focus until another one of the form takes it, and so does a control in a foreign
// window while the focus goes to another one there.
void focusLeft(Control& control)
{
    const auto parent = control.frame().Parent();
    KeyboardFocus* focus = parent && !control.frame().form() ? parent->keyboardFocus() : nullptr;
    const QWidget* left = widgetOf(control.hWnd());
    const QWidget* next = QApplication::focusWidget();
    if (!focus || (next && left && next->window() == left->window() && belongsToControl(*next))) {
        return;
    }
    focus->moveTo(nullptr);
}

bool isKeyForInner(const Control& control)
{
    const auto parent = control.frame().Parent();
    const KeyboardFocus* focus = parent ? parent->keyboardFocus() : nullptr;
    return focus && focus->isInside(control);
}

} // namespace phial::qt
