#pragma once

#include "visual/Input.h"
#include "visual/KeyNotation.h"

#include <QKeyEvent>
#include <QMouseEvent>

namespace phial::qt
{

/// The toolkit's keys and buttons in the system's codes and back.

std::int32_t shiftBits(Qt::KeyboardModifiers modifiers);
PointerButton pointerButton(Qt::MouseButton button);
/// The place is that in the widget, in pixels. During a move the buttons are those that are down.
/// `zoom`: how many of the window's pixels one of the form takes.
PointerEvent pointerEvent(const QMouseEvent& event, double zoom);

KeyEvent keyEvent(const QKeyEvent& event);
/// The character that a key types, as Typing.h has it; 0 for none.
char16_t typedCharacter(const QKeyEvent& event);

/// The event of a key going down (QEvent::KeyPress) or up that a stroke stands for.
QKeyEvent toolkitKey(QEvent::Type type, const KeyStroke& stroke);

} // namespace phial::qt
