#pragma once

#include "core/String.h"

#include <cstdint>

namespace phial
{

/// Pointer buttons, as bits.
enum class PointerButton : std::int32_t { None = 0, Left = 1, Right = 2, Middle = 4 };

/// Modifier keys, as bits of `Shift`.
namespace ShiftMask
{
inline constexpr std::int32_t Shift = 1;
inline constexpr std::int32_t Control = 2;
inline constexpr std::int32_t Alt = 4;
} // namespace ShiftMask

/// A press, a move or a release of the pointer. X and Y are pixels from the control's or form's corner,
/// whatever its scale mode. During a move Button holds the buttons that are down. Where a control takes
/// touch, each point of it is a press of its own, with the left button and with its number from press to
/// release; points that are down together have different ones.
struct PointerEvent {
    PointerButton Button = PointerButton::Left;
    std::int32_t Shift = 0;
    double X = 0;
    double Y = 0;
    std::int32_t Touch = 0; ///< from 1; 0 for the mouse
    /// Of the end of a touch: the desktop has taken it for a gesture of its own, and it was no press.
    bool isCancelled = false;
};

/// The wheel was turned over a control. Notches are positive away from the user, that is, towards the start;
/// a touchpad brings parts of one. A handler that uses the turn says so; otherwise what holds the control is
/// asked.
struct WheelEvent {
    double Notches = 0;
    bool used = false;
};

/// Codes of keys that are not known by their character. Letters have the code of their capital, digits that
/// of their sign; for other signs see keyCodeOf in Typing.h.
enum class Key : std::int32_t {
    None = 0,
    Backspace = 8,
    Tab = 9,
    Return = 13,
    Escape = 27,
    Space = 32,
    PageUp = 33,
    PageDown = 34,
    End = 35,
    Home = 36,
    Left = 37,
    Up = 38,
    Right = 39,
    Down = 40,
    Insert = 45,
    Delete = 46,
    F1 = 112,
    F12 = 123,
};

/// A key going down or up. A handler that sets KeyCode to 0 keeps the key from going further. While a key is
/// held it goes down again and again; a form hears the repeats of Return and Escape only where the control
/// that has the focus wants these keys, as they press what one press was meant for.
struct KeyEvent {
    std::int32_t KeyCode = 0;
    std::int32_t Shift = 0;
    bool isRepeat = false; ///< the key has gone down before, perhaps in another window, and is held
    bool isSent = false;   ///< by the program, not by the user's hand

    bool is(Key key) const { return KeyCode == static_cast<std::int32_t>(key); }
};

/// Whether a unit is (a part of) a printable character, the blank among them, and no control character.
constexpr bool isPrintable(char16_t unit)
{
    constexpr char16_t Delete = 127;
    constexpr char16_t LastControl = 159;
    return unit >= u' ' && (unit < Delete || unit > LastControl);
}

/// A character typed (Backspace 8, Tab 9, Return 13, Escape 27 among them). A handler may change it; 0 drops
/// it.
struct KeyPressEvent {
    char16_t KeyAscii = 0;
};

/// The cursor's shape over a form or control. Values outside the named ones show the default.
enum class MousePointer : std::int32_t {
    Default = 0,
    Arrow = 1,
    Cross = 2,
    Text = 3,
    SizeAll = 5,
    Hourglass = 11,
    Forbidden = 12,
    Custom = 99, ///< the picture in MouseIcon
};

/// What an accessible part is, for screen readers.
enum class PartRole : std::int32_t {
    StaticText,
    Graphic,
    Button,
    Cell,
    Grouping,
    Editable,
    Table,      ///< a control whose parts are cells
    Decoration, ///< only looks; screen readers pass it over
};

/// How an accessible part stands.
struct PartState {
    bool pressed = false;   ///< held down, or on for what comes next, as a shift key
    bool checkable = false; ///< can be locked in, ticked or chosen
    bool checked = false;   ///< is so

    friend bool operator==(const PartState&, const PartState&) = default;
};

} // namespace phial
