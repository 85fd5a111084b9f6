#pragma once

#include "visual/KeyNotation.h"

namespace phial
{

/// What keys type, for every adapter alike.

/// Whether the modifiers (ShiftMask bits) make a command of a character: Ctrl alone or Alt alone. Both
/// together are the key AltGr, with which keyboards type further characters.
bool isCommand(std::int32_t shift);

/// The KeyCode of a key that gives this character: that of its capital, and for a sign whose own code is that
/// of a named key ("." is 46, as Delete is) one that no key has.
std::int32_t keyCodeOf(char16_t character);

/// The character of a stroke that was sent: its capital with Shift.
char16_t sentCharacter(const KeyStroke& stroke);

/// What KeyPress brings of a stroke whose character is already what the keyboard gives with its modifiers:
/// printable characters, and of the keys Backspace 8, Tab 9, Return 13 and Escape 27. 0 for all others and
/// for commands, of which only KeyDown tells.
char16_t typedCharacter(const KeyStroke& stroke);

} // namespace phial
