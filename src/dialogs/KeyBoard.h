#pragma once

#include "core/String.h"

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace phial
{

/// A key of a keyboard's layout. Places are twips from the corner of the keyboard's form.
struct KeyDesign {
    std::int32_t index = 0; ///< 0 to 1000, unique in its layout
    StringView caption;     ///< as long as no level says otherwise; "German|English" where they differ
    StringView tag{};       ///< its name, where that is not what it shows
    double left = 0;
    double top = 0;
    double width = 720;
    double height = 720;
    double notch = 0; ///< what the lower half lacks at its left, for a key around another one
};

/// What keys show: normally, shifted, and with symbols, a character each. A level that is missing is empty.
struct KeyLevels {
    StringView base; ///< the key's name at first
    StringView faces;
};

/// The same for keys that show more than a character; texts are "German|English" where they differ.
struct NamedFaces {
    StringView name;
    StringView normal;
    StringView shifted;
    StringView symbol;
    bool areSigns = false; ///< they are signs, see KeyFace
};

/// A keyboard, as data.
struct KeyLayout {
    std::span<const KeyDesign> keys;
    std::span<const KeyLevels> levels;
    std::span<const NamedFaces> named;
    /// A key with a letter types its capital, and the small letter with Shift, as its levels show.
    bool capitalsFirst = false;
};

/// What a key shows now.
struct KeyFace {
    String text;          ///< "German|English" where they differ
    bool isSign = false;  ///< its characters are drawings (arrows, check mark); see KeySigns.h
    bool isEmpty = false; ///< the level in force has no character: what the key shows at first, in grey
    bool isTerm = false;  ///< it is drawn as a term

    friend bool operator==(const KeyFace&, const KeyFace&) = default;
};

/// How a modifier stands; other keys are always off.
enum class KeyState : std::int32_t {
    Off = 0,
    Once = 1, ///< for the next key
    Locked = 2,
};

enum class Modifier : std::uint8_t { Shift, Ctrl, Alt, Sym };

/// What a struck key asks for.
struct KeyDeed {
    enum class Kind : std::uint8_t {
        Nothing,
        Send,    ///< keystrokes go to the field
        Clear,   ///< the field's text goes
        Accept,  ///< the text goes back to where it came from
        AddLine, ///< a new line, where the field has several
        Abort,   ///< the keyboard closes at once
    };

    Kind kind = Kind::Nothing;
    String strokes{}; ///< in the notation of KeyNotation.h

    /// It deletes something.
    bool takesAway() const { return kind == Kind::Clear || strokes.find(u"{bs}") != String::npos; }

    friend bool operator==(const KeyDeed&, const KeyDeed&) = default;
};

/// The rules of a keyboard: names, faces, modifiers, and what keys send. It knows no form and no pointer.
///
/// Modifiers stay: pressed, one is on for the next key; pressed again it is locked; pressed a third time it
/// is off. Ctrl and Alt together are AltGr and show the symbols as Sym does; but their states are compared
/// bit by bit, so where one is on once and the other is locked, there are no symbols.
///
/// One that a finger still holds serves all keys that are struck meanwhile, and falls back when it is let go.
///
/// A key of one character types exactly what it shows. Ctrl alone or Alt alone make a command of it. A key of
/// several characters types them whatever modifiers are on.
class KeyBoard
{
public:
    static constexpr std::int32_t LastIndex = 1000;

    /// The layout's tables outlive the keyboard. Raises 9 for an index outside 0 to LastIndex.
    explicit KeyBoard(const KeyLayout& layout);

    std::span<const KeyDesign> keys() const { return keys_; }
    /// Another caption and tag, for keys that a program gives a meaning of its own. Like all that name a key,
    /// it raises 9 for an index that the layout does not have.
    void rename(std::int32_t index, StringView caption, StringView tag = {});

    /// The tag in upper case, or else what the key shows.
    String name(std::int32_t index) const;
    /// Its name at first.
    const String& base(std::int32_t index) const { return at(index).base; }
    KeyFace face(std::int32_t index) const;
    KeyState state(std::int32_t index) const;
    KeyState state(Modifier modifier) const;
    std::optional<Modifier> modifier(std::int32_t index) const;
    bool isOn(Modifier modifier) const { return state(modifier) != KeyState::Off; }

    /// The key has gone down: a modifier's state passes on. Gives whether faces may have changed.
    bool press(std::int32_t index);
    /// Undoes that: a drag was meant.
    void state(Modifier modifier, KeyState value);
    /// A finger holds the modifier from now on, or has let it go. Gives whether faces may have changed.
    bool hold(Modifier modifier, bool isHeld);
    /// The key was struck: what it asks for. Modifiers that are on once then fall back, except behind a
    /// modifier.
    KeyDeed click(std::int32_t index);
    /// The same for a text that stands for a key, such as a variant of it: it is typed as it is.
    KeyDeed type(StringView text);

private:
    static constexpr std::size_t NoKey = static_cast<std::size_t>(-1);

    struct KeyRow {
        String base;
        std::optional<Modifier> modifier;
        const KeyLevels* levels = nullptr;
        const NamedFaces* named = nullptr;
    };

    const KeyRow& at(std::int32_t index) const { return rows_[position(index)]; }
    std::size_t position(std::int32_t index) const;
    bool showsSymbols() const;
    KeyDeed deed(std::int32_t index) const;
    String prefixed(String strokes) const;
    String prefixed(String strokes, bool isShifted) const;
    void fallBack();

    KeyLayout layout_;
    std::vector<KeyDesign> keys_;
    std::vector<KeyRow> rows_;
    std::vector<std::size_t> positions_; ///< by index; NoKey where there is none
    struct Stand {
        KeyState state = KeyState::Off;
        bool isHeld = false;
        bool hasServed = false; ///< while it is held
    };
    std::array<Stand, 4> modifiers_{};
};

} // namespace phial
