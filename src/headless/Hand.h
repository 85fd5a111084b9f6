#pragma once

#include "core/String.h"
#include "visual/Geometry.h"
#include "visual/KeyNotation.h"

#include <memory>

namespace phial
{
class Control;
class Form;
} // namespace phial

namespace phial::headless
{

/// The user's hand: what it does goes to the models as an adapter would bring it. Nothing happens to a
/// control that cannot be reached.

/// Presses and lets go on a place of the control (in pixels, its middle without one). What cannot be hit
/// there, since the control is see-through at that place, goes to what lies below in the same container.
void click(Control& control);
void click(Control& control, double x, double y);
void doubleClick(Control& control);
/// Presses at one place of the control, moves to another and lets go there; both are pixels of where the
/// control was when it was pressed.
void drag(Control& control, PixelPoint from, PixelPoint to);
/// Turns the wheel over the control; what holds it is asked when it has no use for that. Positive notches are
/// away from the user.
void turnWheel(Control& control, double notches);
/// Presses a command bar's button by its key.
void clickButton(Control& bar, StringView key);

/// What a press at that place of the control meets: the control, or what lies below its holes; null for
/// nothing. `rAt` is then a place of that.
std::shared_ptr<Control> controlHit(Control& control, PixelPoint& rAt);
/// Gives the focus to a control that is pressed, where it can have it.
void focusByPress(Control& control);

/// A key that goes down for the form's control that has the focus: for the first time, since it is held, or
/// sent by the program.
enum class KeyDown : std::uint8_t { First, Repeat, Sent };
void press(Form& form, const KeyStroke& stroke, KeyDown down = KeyDown::First);
/// The key goes up.
void letGo(Form& form, const KeyStroke& stroke);
/// The key goes down, is held for some repeats and let go, unless the form closes meanwhile.
void hold(Form& form, const KeyStroke& stroke);
/// The key goes down and up.
void strike(Form& form, const KeyStroke& stroke);
/// The same by the program.
void send(Form& form, const KeyStroke& stroke);
/// Keys in the notation of keyboard emulation, at once.
void type(Form& form, StringView notation);
/// Composes a text, as dead keys and input methods do, for the form's control that has the focus, where that
/// is a painted one that takes text: it shows the text until it is committed.
void compose(Form& form, StringView text);
/// The composed text goes in: unit by unit, without keys.
void commit(Form& form, StringView text);
/// The Tab key, or with Shift.
void tab(Form& form, bool backward = false);

} // namespace phial::headless
