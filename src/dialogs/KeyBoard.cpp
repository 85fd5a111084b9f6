#include "dialogs/KeyBoard.h"

#include "core/RuntimeError.h"

#include <algorithm>
#include <utility>

namespace phial
{

namespace
{

struct ModifierName {
    StringView name;
    Modifier modifier;
    StringView prefix; ///< in the notation of keyboard emulation
};
constexpr auto Modifiers = std::to_array<ModifierName>({
    {u"SHIFT", Modifier::Shift, u"+"},
    {u"CTRL", Modifier::Ctrl, u"^"},
    {u"ALT", Modifier::Alt, u"%"},
    {u"SYM", Modifier::Sym, u"^%"},
});

/// Keys that move the caret, which no modifier changes but Shift.
struct CaretKey {
    StringView name;
    StringView strokes;
    StringView shifted;
};
constexpr auto CaretKeys = std::to_array<CaretKey>({
    {u"UP", u"{up}", u"{pgup}"},
    {u"LEFT", u"{left}", u"{home}"},
    {u"DOWN", u"{down}", u"{pgdn}"},
    {u"RIGHT", u"{right}", u"{end}"},
});

struct KeyStrokes {
    StringView name;
    StringView strokes;
};
constexpr auto NamedStrokes = std::to_array<KeyStrokes>({
    {u"TAB", u"{tab}"},
    {u"BACKSPACE", u"{bs}"},
    {u"ESC", u"{esc}"},
});

constexpr StringView NotationSigns = u"+*^%{}()~[]"; // signs that mean something in the notation

String inNotation(StringView text)
{
    String strokes;
    for (const char16_t unit : text) {
        if (NotationSigns.find(unit) == StringView::npos) {
            strokes += unit;
        } else {
            strokes += {u'{', unit, u'}'};
        }
    }
    return strokes;
}

/// A letter of German keyboards.
bool isKeyLetter(char16_t character)
{
    const char16_t capital = upperCase(character);
    return (capital >= u'A' && capital <= u'Z') || StringView(u"ÄÖÜ").find(capital) != StringView::npos;
}

template <typename Table>
auto rowOf(const Table& table, StringView name)
{
    const auto row = std::ranges::find(table, name, [](const auto& each) { return each.name; });
    return row == std::ranges::end(table) ? nullptr : &*row;
}

std::size_t place(Modifier modifier)
{
    return static_cast<std::size_t>(modifier);
}

String nameOf(const KeyDesign& key)
{
    return key.tag.empty() ? String(key.caption) : upperCase(key.tag);
}

} // namespace

KeyBoard::KeyBoard(const KeyLayout& layout)
    : layout_(layout), keys_(layout.keys.begin(), layout.keys.end()), rows_(keys_.size())
{
    for (std::size_t at = 0; at < keys_.size(); ++at) {
        const KeyDesign& key = keys_[at];
        if (key.index < 0 || key.index > LastIndex) {
            throw RuntimeError(ErrorNumber::IndexOutOfBounds);
        }
        const auto index = static_cast<std::size_t>(key.index);
        positions_.resize(std::max(positions_.size(), index + 1), NoKey);
        positions_[index] = at;
        rename(key.index, key.caption, key.tag);
    }
}

void KeyBoard::rename(std::int32_t index, StringView caption, StringView tag)
{
    const std::size_t place = position(index);
    KeyDesign& key = keys_[place];
    key.caption = caption;
    key.tag = tag;
    KeyRow& row = rows_[place];
    row.base = nameOf(key);
    const auto levels = std::ranges::find(layout_.levels, row.base, &KeyLevels::base);
    row.levels = levels == layout_.levels.end() ? nullptr : &*levels;
    row.named = rowOf(layout_.named, row.base);
    const ModifierName* modifier = rowOf(Modifiers, row.base);
    row.modifier = modifier ? std::optional(modifier->modifier) : std::nullopt;
}

std::size_t KeyBoard::position(std::int32_t index) const
{
    const auto at = static_cast<std::size_t>(index); // a negative one is beyond all
    if (at >= positions_.size() || positions_[at] == NoKey) {
        throw RuntimeError(ErrorNumber::IndexOutOfBounds);
    }
    return positions_[at];
}

String KeyBoard::name(std::int32_t index) const
{
    const KeyDesign& key = keys_[position(index)];
    return key.tag.empty() ? face(index).text : upperCase(key.tag);
}

KeyFace KeyBoard::face(std::int32_t index) const
{
    const std::size_t place = position(index);
    const KeyRow& row = rows_[place];
    if (row.levels) {
        const std::size_t level = isOn(Modifier::Shift) ? 1 : showsSymbols() ? 2 : 0;
        const StringView faces = row.levels->faces;
        return level < faces.size() ? KeyFace{String(1, faces[level])}
                                    : KeyFace{.text = row.base, .isEmpty = true};
    }
    if (row.named) {
        const NamedFaces& named = *row.named;
        const bool isShifted = isOn(Modifier::Shift) && named.shifted != named.normal;
        const StringView text = isShifted ? named.shifted : isOn(Modifier::Sym) ? named.symbol : named.normal;
        return {.text = String(text), .isSign = named.areSigns};
    }
    return {.text = String(keys_[place].caption)};
}

/// Ctrl and Alt make symbols where their states have a bit in common.
bool KeyBoard::showsSymbols() const
{
    const auto bits = [this](Modifier modifier) { return static_cast<std::int32_t>(state(modifier)); };
    return ((bits(Modifier::Alt) & bits(Modifier::Ctrl)) | bits(Modifier::Sym)) != 0;
}

std::optional<Modifier> KeyBoard::modifier(std::int32_t index) const
{
    return at(index).modifier;
}

KeyState KeyBoard::state(Modifier modifier) const
{
    return modifiers_[place(modifier)].state;
}

KeyState KeyBoard::state(std::int32_t index) const
{
    const auto which = modifier(index);
    return which ? state(*which) : KeyState::Off;
}

void KeyBoard::state(Modifier modifier, KeyState value)
{
    modifiers_[place(modifier)].state = value;
}

bool KeyBoard::press(std::int32_t index)
{
    const auto which = modifier(index);
    if (which) {
        constexpr std::int32_t States = 3;
        const auto now = static_cast<std::int32_t>(state(*which));
        state(*which, static_cast<KeyState>((now + 1) % States));
    }
    return which.has_value();
}

KeyDeed KeyBoard::click(std::int32_t index)
{
    if (modifier(index)) {
        return {};
    }
    KeyDeed asked = deed(index);
    fallBack();
    return asked;
}

KeyDeed KeyBoard::type(StringView text)
{
    fallBack();
    return {KeyDeed::Kind::Send, inNotation(text)};
}

KeyDeed KeyBoard::deed(std::int32_t index) const
{
    using Kind = KeyDeed::Kind;
    const String name = this->name(index);
    if (name == u"CLEAR") {
        return {Kind::Clear};
    }
    if (name == u"OK") {
        return {Kind::Accept};
    }
    if (name == u"ENTER") {
        return {isOn(Modifier::Sym) ? Kind::AddLine : Kind::Accept};
    }
    if (name == u"ESC" && isOn(Modifier::Sym)) {
        return {Kind::Abort};
    }
    if (const CaretKey* caret = rowOf(CaretKeys, name)) {
        return {Kind::Send, String(isOn(Modifier::Shift) ? caret->shifted : caret->strokes)};
    }
    if (const KeyStrokes* named = rowOf(NamedStrokes, name)) {
        return {Kind::Send, prefixed(String(named->strokes))};
    }
    if (name.size() == 1 && layout_.capitalsFirst && isKeyLetter(name.front())) {
        return {Kind::Send, prefixed(lowerCase(name), !isOn(Modifier::Shift))};
    }
    if (name.size() == 1) {
        return {Kind::Send, prefixed(inNotation(name))};
    }
    // A tag in braces is a key in the notation already. Several characters are typed as they are: modifiers
    // have chosen what the key shows, and would change its first character alone.
    const bool isNotation = name.starts_with(u'{') && name.ends_with(u'}');
    return {Kind::Send, isNotation ? prefixed(name) : inNotation(name)};
}

/// Each modifier in front of what stands there.
String KeyBoard::prefixed(String strokes) const
{
    return prefixed(std::move(strokes), isOn(Modifier::Shift));
}

/// With Shift as it is told, whatever its key says.
String KeyBoard::prefixed(String strokes, bool isShifted) const
{
    for (const ModifierName& row : Modifiers) {
        if (row.modifier == Modifier::Shift ? isShifted : isOn(row.modifier)) {
            strokes.insert(0, row.prefix);
        }
    }
    return strokes;
}

void KeyBoard::fallBack()
{
    for (Stand& modifier : modifiers_) {
        modifier.hasServed = modifier.isHeld;
        if (modifier.state == KeyState::Once && !modifier.isHeld) {
            modifier.state = KeyState::Off;
        }
    }
}

bool KeyBoard::hold(Modifier modifier, bool isHeld)
{
    Stand& stand = modifiers_[place(modifier)];
    const bool fallsBack = !isHeld && stand.hasServed && stand.state == KeyState::Once;
    if (fallsBack) {
        stand.state = KeyState::Off;
    }
    stand.isHeld = isHeld;
    stand.hasServed = false;
    return fallsBack;
}

} // namespace phial
