#include "visual/Typing.h"

namespace phial
{

namespace
{

bool isTypedControl(char16_t character)
{
    switch (static_cast<Key>(character)) {
    case Key::Backspace:
    case Key::Tab:
    case Key::Return:
    case Key::Escape:
        return true;
    default:
        return false;
    }
}

} // namespace

std::int32_t keyCodeOf(char16_t character)
{
    constexpr std::int32_t SignsOfNamedKeys = 0x10000; // more than any character
    const std::int32_t code = upperCase(character);
    const auto within = [code](Key first, Key last) {
        return code >= static_cast<std::int32_t>(first) && code <= static_cast<std::int32_t>(last);
    };
    const bool isNamedKeys = within(Key::PageUp, Key::Delete) || within(Key::F1, Key::F12);
    return isNamedKeys ? SignsOfNamedKeys + code : code;
}

bool isCommand(std::int32_t shift)
{
    return ((shift & ShiftMask::Control) != 0) != ((shift & ShiftMask::Alt) != 0);
}

char16_t sentCharacter(const KeyStroke& stroke)
{
    return (stroke.Shift & ShiftMask::Shift) != 0 ? upperCase(stroke.character) : stroke.character;
}

char16_t typedCharacter(const KeyStroke& stroke)
{
    if (isCommand(stroke.Shift)) {
        return 0;
    }
    if (stroke.character != 0) {
        return isPrintable(stroke.character) || isTypedControl(stroke.character) ? stroke.character : u'\0';
    }
    const auto code = static_cast<char16_t>(stroke.key);
    const bool hasControl = (stroke.Shift & ShiftMask::Control) != 0;
    return !hasControl && (stroke.key == Key::Space || isTypedControl(code)) ? code : u'\0';
}

} // namespace phial
