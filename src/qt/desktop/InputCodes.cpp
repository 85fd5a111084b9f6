#include "qt/desktop/InputCodes.h"

#include "visual/Typing.h"

#include <QChar>

#include <array>
#include <iterator>

namespace phial::qt
{

namespace
{

struct KeyPair {
    Qt::Key toolkit;
    Key code;
};

constexpr KeyPair KeyPairs[] = {
    {Qt::Key_Backspace, Key::Backspace},
    {Qt::Key_Tab, Key::Tab},
    {Qt::Key_Backtab, Key::Tab},
    {Qt::Key_Return, Key::Return},
    {Qt::Key_Enter, Key::Return},
    {Qt::Key_Escape, Key::Escape},
    {Qt::Key_Space, Key::Space},
    {Qt::Key_PageUp, Key::PageUp},
    {Qt::Key_PageDown, Key::PageDown},
    {Qt::Key_End, Key::End},
    {Qt::Key_Home, Key::Home},
    {Qt::Key_Left, Key::Left},
    {Qt::Key_Up, Key::Up},
    {Qt::Key_Right, Key::Right},
    {Qt::Key_Down, Key::Down},
    {Qt::Key_Insert, Key::Insert},
    {Qt::Key_Delete, Key::Delete},
};

constexpr int FirstFunctionKey = static_cast<int>(Key::F1);
constexpr int FunctionKeys = 12;

// Where nobody composes it a dead circumflex counts as the sign, which formulas need.
std::int32_t codeOf(int toolkitKey)
{
    if (toolkitKey == Qt::Key_Dead_Circumflex) {
        return Qt::Key_AsciiCircum;
    }
    for (const KeyPair& pair : KeyPairs) {
        if (pair.toolkit == toolkitKey) {
            return static_cast<std::int32_t>(pair.code);
        }
    }
    if (toolkitKey >= Qt::Key_F1 && toolkitKey < Qt::Key_F1 + FunctionKeys) {
        return FirstFunctionKey + toolkitKey - Qt::Key_F1;
    }
    if (toolkitKey >= Qt::Key_Escape) {
        return 0;
    }
    constexpr int LastOfOneUnit = 0xFFFF;
    return toolkitKey <= LastOfOneUnit ? keyCodeOf(static_cast<char16_t>(toolkitKey)) : toolkitKey;
}

int toolkitCode(Key code)
{
    const int number = static_cast<int>(code);
    for (const KeyPair& pair : KeyPairs) {
        if (pair.code == code) {
            return pair.toolkit;
        }
    }
    if (number >= FirstFunctionKey && number < FirstFunctionKey + FunctionKeys) {
        return Qt::Key_F1 + number - FirstFunctionKey;
    }
    return number;
}

Qt::KeyboardModifiers modifiersOf(std::int32_t shift)
{
    Qt::KeyboardModifiers modifiers;
    modifiers.setFlag(Qt::ShiftModifier, (shift & ShiftMask::Shift) != 0);
    modifiers.setFlag(Qt::ControlModifier, (shift & ShiftMask::Control) != 0);
    modifiers.setFlag(Qt::AltModifier, (shift & ShiftMask::Alt) != 0);
    return modifiers;
}

} // namespace

std::int32_t shiftBits(Qt::KeyboardModifiers modifiers)
{
    return (modifiers.testFlag(Qt::ShiftModifier) ? ShiftMask::Shift : 0) |
           (modifiers.testFlag(Qt::ControlModifier) ? ShiftMask::Control : 0) |
           (modifiers.testFlag(Qt::AltModifier) ? ShiftMask::Alt : 0);
}

PointerButton pointerButton(Qt::MouseButton button)
{
    switch (button) {
    case Qt::LeftButton:
        return PointerButton::Left;
    case Qt::RightButton:
        return PointerButton::Right;
    case Qt::MiddleButton:
        return PointerButton::Middle;
    default:
        return PointerButton::None;
    }
}

PointerEvent pointerEvent(const QMouseEvent& event, double zoom)
{
    PointerEvent pointer;
    if (event.type() == QEvent::MouseMove) {
        std::int32_t down = 0;
        for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton}) {
            if (event.buttons().testFlag(button)) {
                down |= static_cast<std::int32_t>(pointerButton(button));
            }
        }
        pointer.Button = static_cast<PointerButton>(down);
    } else {
        pointer.Button = pointerButton(event.button());
    }
    pointer.Shift = shiftBits(event.modifiers());
    pointer.X = event.position().x() / zoom;
    pointer.Y = event.position().y() / zoom;
    return pointer;
}

KeyEvent keyEvent(const QKeyEvent& event)
{
    KeyEvent key;
    key.KeyCode = codeOf(event.key());
    key.Shift = shiftBits(event.modifiers());
    key.isRepeat = event.isAutoRepeat();
    key.isSent = !event.spontaneous();
    return key;
}

char16_t typedCharacter(const QKeyEvent& event)
{
    if (event.modifiers().testFlag(Qt::MetaModifier)) {
        return 0;
    }
    KeyStroke stroke{0, static_cast<Key>(codeOf(event.key())), shiftBits(event.modifiers())};
    if (event.text().size() == 1 && phial::typedCharacter({0, stroke.key, 0}) == 0) {
        stroke.character = event.text().front().unicode();
    } else if (event.key() == Qt::Key_Dead_Circumflex && event.text().isEmpty()) {
        stroke.character = u'^';
    }
#ifdef Q_OS_MACOS
    stroke.Shift &= ~ShiftMask::Alt; // the key that types further characters there
#endif
    return phial::typedCharacter(stroke);
}

QKeyEvent toolkitKey(QEvent::Type type, const KeyStroke& stroke)
{
    const QChar character(sentCharacter(stroke));
    const int code = character.isNull() ? toolkitCode(stroke.key) : character.toUpper().unicode();
    const QChar typed(phial::typedCharacter({character.unicode(), stroke.key, stroke.Shift}));
    return {type, code, modifiersOf(stroke.Shift), typed.isNull() ? QString() : QString(typed)};
}

} // namespace phial::qt
