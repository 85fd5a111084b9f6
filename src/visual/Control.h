#pragma once

#include "visual/ControlFrame.h"

#include <optional>

namespace phial
{

class KeyboardFocus;
class UserControl;

/// Anything that has a place on a form: interface, without state. The frame holds what controls have in
/// common; the functions below pass its most used members on, so that callers write `txt_Input->Left(120)`.
///
/// The functions of the second half are called by whoever brings the user's input, an adapter or a test; they
/// raise the control's events. A control overrides what concerns it.
class Control : public Object, public std::enable_shared_from_this<Control>
{
public:
    virtual ControlFrame& frame() = 0;
    const ControlFrame& frame() const { return const_cast<Control&>(*this).frame(); }

    String NAME() const { return frame().NAME(); }
    std::int32_t Index() const { return frame().Index(); }
    String Tag() const { return frame().Tag(); }
    void Tag(String value) { frame().Tag(std::move(value)); }
    double Left() const { return frame().Left(); }
    void Left(double value) { frame().Left(value); }
    double Top() const { return frame().Top(); }
    void Top(double value) { frame().Top(value); }
    double Width() const { return frame().Width(); }
    void Width(double value) { frame().Width(value); }
    double Height() const { return frame().Height(); }
    void Height(double value) { frame().Height(value); }
    void Move(double left, double top) { frame().Move(left, top); }
    void Move(double left, double top, double width, double height)
    {
        frame().Move(left, top, width, height);
    }
    bool Visible() const { return frame().Visible(); }
    void Visible(bool value) { frame().Visible(value); }
    bool Enabled() const { return frame().Enabled(); }
    void Enabled(bool value) { frame().Enabled(value); }
    void SetFocus() { frame().SetFocus(); }
    WindowHandle hWnd() const { return frame().hWnd(); }

    /// What holds other controls within this one; null for most.
    virtual Container* container() { return nullptr; }
    /// The same, but null while nothing has been put into it.
    virtual Container* containerInUse() { return container(); }
    /// The control as one that paints itself; null for the toolkit's own widgets.
    virtual UserControl* painted() { return nullptr; }
    /// What a screen reader says when the frame's AccessibleName is empty.
    virtual String accessibleText() const { return {}; }

    /// Called by the frame when the size has changed.
    virtual void resized() {}

    // Input. A disabled control is never called.
    virtual void pointerDown(const PointerEvent&) {}
    virtual void pointerMove(const PointerEvent&) {}
    virtual void pointerUp(const PointerEvent&) {}
    /// The pointer has left the control.
    virtual void pointerLeave() {}
    virtual void click() {}
    virtual void doubleClick() {}
    virtual void wheel(WheelEvent&) {}
    virtual void keyDown(KeyEvent&) {}
    virtual void keyPress(KeyPressEvent&) {}
    virtual void keyUp(KeyEvent&) {}
    /// The frame's composition has changed.
    virtual void composing() {}
    virtual void gotFocus() {}
    virtual void lostFocus() {}
    /// Whether a Return or Escape is the control's own and not for the form's default or cancel button.
    virtual bool wantsKey(Key) const { return false; }
    /// A control of the program was dropped here; X and Y in pixels.
    virtual void dragDrop(Control& /*source*/, double /*x*/, double /*y*/) {}
    /// Text was dropped from outside.
    virtual void textDropped(const String& /*text*/) {}
    /// The text that a drag out of this control carries; none when it gives none.
    virtual std::optional<String> dragText() { return std::nullopt; }
};

using ControlPtr = std::shared_ptr<Control>;

/// What gives a control its siblings: a form, or an adapter's stand-in for a foreign window.
class ControlParent : public Object
{
public:
    virtual ScaleUnit ScaleMode() const = 0;
    /// Everything on it that has a name, counted from 0, in the order in which it was added.
    virtual std::size_t controlCount() const = 0;
    /// Raises 9 outside.
    virtual ObjectPtr controlAt(std::size_t index) const = 0;
    /// Where typing goes; null when it knows of no keyboard.
    virtual KeyboardFocus* keyboardFocus() { return nullptr; }
};

} // namespace phial
