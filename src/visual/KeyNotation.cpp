#include "visual/KeyNotation.h"

#include "core/RuntimeError.h"

#include <algorithm>
#include <array>
#include <optional>

namespace phial
{

namespace
{

struct NamedKey {
    StringView name;
    Key key;
};

constexpr auto NamedKeys = std::to_array<NamedKey>({
    {u"BS", Key::Backspace},
    {u"BACKSPACE", Key::Backspace},
    {u"BKSP", Key::Backspace},
    {u"TAB", Key::Tab},
    {u"ENTER", Key::Return},
    {u"ESC", Key::Escape},
    {u"UP", Key::Up},
    {u"DOWN", Key::Down},
    {u"LEFT", Key::Left},
    {u"RIGHT", Key::Right},
    {u"HOME", Key::Home},
    {u"END", Key::End},
    {u"PGUP", Key::PageUp},
    {u"PGDN", Key::PageDown},
    {u"INS", Key::Insert},
    {u"INSERT", Key::Insert},
    {u"DEL", Key::Delete},
    {u"DELETE", Key::Delete},
});

constexpr std::size_t GreatestCount = 1000;

[[noreturn]] void refuseNotation()
{
    throw RuntimeError(ErrorNumber::InvalidArgument);
}

/// "F1" to "F12".
std::optional<Key> functionKey(StringView name)
{
    if (name.size() < 2 || name.size() > 3 || upperCase(name.front()) != u'F') {
        return std::nullopt;
    }
    std::int32_t number = 0;
    for (const char16_t digit : name.substr(1)) {
        if (digit < u'0' || digit > u'9') {
            return std::nullopt;
        }
        number = number * 10 + (digit - u'0');
    }
    constexpr std::int32_t Last = 12;
    if (number < 1 || number > Last) {
        return std::nullopt;
    }
    return static_cast<Key>(static_cast<std::int32_t>(Key::F1) + number - 1);
}

std::size_t readCount(StringView digits)
{
    std::size_t count = 0;
    for (const char16_t digit : digits) {
        if (digit < u'0' || digit > u'9') {
            refuseNotation();
        }
        count = count * 10 + static_cast<std::size_t>(digit - u'0');
        if (count > GreatestCount) {
            refuseNotation();
        }
    }
    return count;
}

/// Reads the notation from left to right. Modifiers wait for the next key; those in front of a group stay for
/// all of its keys.
class NotationReader
{
public:
    explicit NotationReader(StringView notation) : rest_(notation) {}

    std::vector<KeyStroke> read()
    {
        while (!rest_.empty()) {
            readSign();
        }
        if (!groups_.empty()) {
            refuseNotation();
        }
        return std::move(strokes_);
    }

private:
    void readSign()
    {
        const char16_t sign = rest_.front();
        rest_.remove_prefix(1);
        switch (sign) {
        case u'+':
            waiting_ |= ShiftMask::Shift;
            break;
        case u'^':
            waiting_ |= ShiftMask::Control;
            break;
        case u'%':
            waiting_ |= ShiftMask::Alt;
            break;
        case u'(':
            groups_.push_back(held_);
            held_ |= waiting_;
            waiting_ = 0;
            break;
        case u')':
            endGroup();
            break;
        case u'{':
            readBrace();
            break;
        case u'}':
            refuseNotation();
        case u'~':
        case u'\r':
            strike({0, Key::Return, 0});
            if (sign == u'\r' && rest_.starts_with(u'\n')) {
                rest_.remove_prefix(1);
            }
            break;
        case u'\n':
            strike({0, Key::Return, 0});
            break;
        default:
            strike({sign, Key::None, 0});
        }
    }

    void endGroup()
    {
        if (groups_.empty()) {
            refuseNotation();
        }
        held_ = groups_.back();
        groups_.pop_back();
    }

    /// Behind "{": a sign or a name, perhaps a blank and a count, and "}". "{}}" quotes the closing brace.
    void readBrace()
    {
        const auto end = rest_.find(u'}', 1);
        if (end == StringView::npos) {
            refuseNotation();
        }
        StringView inside = rest_.substr(0, end);
        rest_.remove_prefix(end + 1);
        std::size_t count = 1;
        if (const auto blank = inside.find(u' ', 1); blank != StringView::npos) {
            count = readCount(inside.substr(blank + 1));
            inside = inside.substr(0, blank);
        }
        const KeyStroke stroke = quoted(inside);
        const std::int32_t modifiers = waiting_;
        for (std::size_t times = 0; times < count; ++times) {
            waiting_ = modifiers;
            strike(stroke);
        }
        waiting_ = 0;
    }

    static KeyStroke quoted(StringView name)
    {
        if (name.size() == 1) {
            return {name.front(), Key::None, 0};
        }
        const auto known = std::ranges::find_if(
            NamedKeys, [name](const NamedKey& entry) { return equalsIgnoringCase(entry.name, name); });
        if (known != NamedKeys.end()) {
            return {0, known->key, 0};
        }
        if (const auto function = functionKey(name)) {
            return {0, *function, 0};
        }
        refuseNotation();
    }

    void strike(KeyStroke stroke)
    {
        stroke.Shift = held_ | waiting_;
        waiting_ = 0;
        strokes_.push_back(stroke);
    }

    StringView rest_;
    std::int32_t waiting_ = 0;
    std::int32_t held_ = 0;
    std::vector<std::int32_t> groups_;
    std::vector<KeyStroke> strokes_;
};

} // namespace

std::vector<KeyStroke> parseKeyNotation(StringView notation)
{
    return NotationReader(notation).read();
}

} // namespace phial
