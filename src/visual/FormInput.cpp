#include "core/RuntimeError.h"
#include "visual/Form.h"
#include "visual/VisualHost.h"
#include "visual/ctl_Button.h"

#include <algorithm>

/// The part of a form that deals with what the user does: activation, focus, keys.
namespace phial
{

namespace
{

/// Whether the key presses the default or the cancel control.
bool isPressKey(const KeyEvent& event)
{
    return event.Shift == 0 && (event.is(Key::Return) || event.is(Key::Escape));
}

} // namespace

void Form::inputActivate()
{
    if (isActive_ || !Visible()) {
        return;
    }
    const auto self = shared_from_this();
    Forms& forms = visualHost().forms();
    if (backdrop_) {
        forms.bringBack();
        return;
    }
    if (const auto previous = forms.ActiveForm(); previous && previous != self) {
        previous->inputDeactivate();
    }
    isActive_ = true;
    forms.activated(self);
    if (!activateTold_) {
        activateTold_ = true;
        Activate.raise();
    }
}

void Form::inputDeactivate()
{
    if (!isActive_) {
        return;
    }
    const auto self = shared_from_this();
    isActive_ = false;
    visualHost().forms().deactivated(*this);
    if (activateTold_ && !closing_ && !aborting_ && ownDialogs_ == 0) {
        activateTold_ = false;
        Deactivate.raise();
    }
}

void Form::inputGeometry(double left, double top, double width, double height)
{
    hasPlace_ = hasPlace_ || left != left_ || top != top_;
    if (place(left, top, width, height)) {
        Resize.raise();
    }
}

void Form::inputWindowState(phial::WindowState value)
{
    state_ = value;
}

std::vector<ControlPtr> Form::tabOrder() const
{
    std::vector<ControlPtr> controls;
    for (const ObjectPtr& object : objects_) {
        if (auto control = std::dynamic_pointer_cast<Control>(object)) {
            controls.push_back(std::move(control));
        }
    }
    return tabStops(std::move(controls));
}

void Form::focus(const ControlPtr& control)
{
    if (control && !focus_.fieldOf(control)) {
        throw RuntimeError(ErrorNumber::InvalidArgument);
    }
    inputFocus(control);
}

void Form::inputFocus(const ControlPtr& control)
{
    if (Visible()) {
        focus_.moveTo(control);
    } else {
        focus_.choose(control); // told when the form is shown
    }
}

bool Form::inputKeyDown(KeyEvent& event)
{
    if (event.isRepeat && isPressKey(event) && !isWanted(event)) {
        event.KeyCode = 0;
        return false;
    }
    const auto self = shared_from_this();
    if (keyPreview_) {
        KeyDown.raise(event);
    }
    const ControlPtr active = focus_.field();
    if (active && event.KeyCode != 0 && active->frame().Enabled()) {
        active->keyDown(event);
    }
    return event.KeyCode != 0 && !pressDefault(event);
}

/// Whether the control that has the focus, or one that holds it privately, has a use for the key.
bool Form::isWanted(const KeyEvent& event) const
{
    for (const Control* asked = focus_.field().get(); asked; asked = asked->frame().privateHolder()) {
        if (asked->wantsKey(static_cast<Key>(event.KeyCode))) {
            return true;
        }
    }
    return false;
}

bool Form::pressDefault(const KeyEvent& event)
{
    if (!isPressKey(event) || isWanted(event)) {
        return false;
    }
    const bool isReturn = event.is(Key::Return);
    const ControlPtr active = focus_.field();
    ControlPtr pressed = isReturn ? default_.lock() : cancel_.lock();
    if (isReturn && std::dynamic_pointer_cast<ctl_Button>(active)) {
        pressed = active; // a button that has the focus takes Return itself
    }
    if (!pressed || !pressed->frame().Enabled()) {
        return false;
    }
    pressed->click();
    return true;
}

bool Form::inputKeyPress(KeyPressEvent& event)
{
    const auto self = shared_from_this();
    if (keyPreview_) {
        KeyPress.raise(event);
    }
    const ControlPtr active = focus_.field();
    if (active && event.KeyAscii != 0 && active->frame().Enabled()) {
        active->keyPress(event);
    }
    return event.KeyAscii != 0;
}

bool Form::inputKeyUp(KeyEvent& event)
{
    const auto self = shared_from_this();
    if (keyPreview_) {
        KeyUp.raise(event);
    }
    const ControlPtr active = focus_.field();
    if (active && event.KeyCode != 0 && active->frame().Enabled()) {
        active->keyUp(event);
    }
    return event.KeyCode != 0;
}

} // namespace phial
