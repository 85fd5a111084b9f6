#pragma once

#include "visual/Control.h"

class QKeyEvent;

namespace phial::qt
{

/// Ways of keys and focus from a control's widget to the model: through its form, which has the first word,
/// or, in a window of plain Qt, straight to the control.

/// A key went down, with the character that it types if it is one. False: the key goes no further.
/// `rCharacter` is what a handler has made of the character; 0 for none.
bool keyPressed(Control& control, const QKeyEvent& event, char16_t& rCharacter);
bool keyPressed(Control& control, const QKeyEvent& event);
bool keyReleased(Control& control, const QKeyEvent& event);
/// The control's widget has got the focus, or lost it.
void focusEntered(Control& control);
void focusLeft(Control& control);
/// Whether keys are for a control that stands in this one, whose widget is only asked since that control's
/// own has let them pass.
bool isKeyForInner(const Control& control);

} // namespace phial::qt
