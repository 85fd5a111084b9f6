#include "dialogs/KeySpeech.h"

#include "app/cls_Language.h"
#include "app/sys_Global.h"
#include "core/ScriptCharacters.h"

#include <algorithm>
#include <array>

namespace phial
{

namespace
{

struct SpokenWords {
    StringView what;
    StringView german;
    StringView english;
};

/// Keys by their names, and with Shift (+) or Sym (^) where they do something else then.
constexpr auto SpokenKeys = std::to_array<SpokenWords>({
    {u"SHIFT", u"Umschalttaste", u"Shift"},
    {u"CTRL", u"Steuerung", u"Control"},
    {u"ALT", u"Alt", u"Alt"},
    {u"SYM", u"Symbole", u"Symbols"},
    {u"BACKSPACE", u"Zeichen löschen", u"Delete character"},
    {u"TAB", u"Tabulator", u"Tab"},
    {u"CLEAR", u"Alles löschen", u"Clear all"},
    {u"OK", u"Übernehmen", u"Accept"},
    {u"ENTER", u"Übernehmen", u"Accept"},
    {u"^ENTER", u"Neue Zeile", u"New line"},
    {u"ESC", u"Abbrechen", u"Cancel"},
    {u"^ESC", u"Tastatur schließen", u"Close keyboard"},
    {u"->", u"Reaktionspfeil", u"Reaction arrow"},
    {u"{(}{)}/{(}{)}{LEFT 4}", u"Bruch", u"Fraction"},
    {u"SWAP", u"Vorzeichen wechseln", u"Change sign"},
    {u"UP", u"Nach oben", u"Up"},
    {u"+UP", u"Seite nach oben", u"Page up"},
    {u"LEFT", u"Nach links", u"Left"},
    {u"+LEFT", u"Zum Anfang", u"To the start"},
    {u"DOWN", u"Nach unten", u"Down"},
    {u"+DOWN", u"Seite nach unten", u"Page down"},
    {u"RIGHT", u"Nach rechts", u"Right"},
    {u"+RIGHT", u"Zum Ende", u"To the end"},
});

/// Signs that a screen reader may pass over in silence.
constexpr auto SpokenSigns = std::to_array<SpokenWords>({
    {u" ", u"Leertaste", u"Space"},
    {u"!", u"Ausrufezeichen", u"Exclamation mark"},
    {u"\"", u"Anführungszeichen", u"Quotation mark"},
    {u"§", u"Paragraf", u"Section sign"},
    {u"$", u"Dollar", u"Dollar"},
    {u"%", u"Prozent", u"Percent"},
    {u"&", u"Und-Zeichen", u"Ampersand"},
    {u"/", u"Schrägstrich", u"Slash"},
    {u"{", u"Geschweifte Klammer auf", u"Left brace"},
    {u"}", u"Geschweifte Klammer zu", u"Right brace"},
    {u"(", u"Klammer auf", u"Left parenthesis"},
    {u")", u"Klammer zu", u"Right parenthesis"},
    {u"[", u"Eckige Klammer auf", u"Left bracket"},
    {u"]", u"Eckige Klammer zu", u"Right bracket"},
    {u"=", u"Gleich", u"Equals"},
    {u"?", u"Fragezeichen", u"Question mark"},
    {u"\\", u"Rückstrich", u"Backslash"},
    {u"+", u"Plus", u"Plus"},
    {u"*", u"Stern", u"Asterisk"},
    {u"~", u"Tilde", u"Tilde"},
    {u"@", u"At-Zeichen", u"At sign"},
    {u"€", u"Euro", u"Euro"},
    {u"µ", u"Mikro", u"Micro"},
    {u",", u"Komma", u"Comma"},
    {u";", u"Semikolon", u"Semicolon"},
    {u".", u"Punkt", u"Full stop"},
    {u":", u"Doppelpunkt", u"Colon"},
    {u"-", u"Minus", u"Minus"},
    {u"_", u"Unterstrich", u"Underscore"},
    {u"^", u"Hochgestellt", u"Raised"},
    {u"°", u"Grad", u"Degree"},
    {u"½", u"Ein halb", u"One half"},
    {u"⁺", u"Hoch plus", u"Raised plus"},
    {u"⁻", u"Hoch minus", u"Raised minus"},
    {u"±", u"Plus minus", u"Plus or minus"},
    {u"–", u"Gedankenstrich", u"Dash"},
    {u"→", u"Pfeil nach rechts", u"Arrow to the right"},
    {u"…", u"Auslassungspunkte", u"Ellipsis"},
    {u"·", u"Malpunkt", u"Middle dot"},
    {u"÷", u"Geteilt", u"Divided by"},
    {u"×", u"Mal", u"Times"},
    {u"≈", u"Ungefähr gleich", u"About equal"},
    {u"≠", u"Ungleich", u"Not equal"},
    {u"„", u"Anführung unten", u"Low opening quotation mark"},
    {u"“", u"Abführung oben", u"High closing quotation mark"},
    {u"‚", u"Halbe Anführung unten", u"Low single quotation mark"},
    {u"‘", u"Halbe Abführung oben", u"High single quotation mark"},
    {u"¿", u"Umgekehrtes Fragezeichen", u"Inverted question mark"},
    {u"¡", u"Umgekehrtes Ausrufezeichen", u"Inverted exclamation mark"},
    {u"‰", u"Promille", u"Per mille"},
    {u"£", u"Pfund", u"Pound"},
});

template <typename Table>
const SpokenWords* wordsOf(const Table& table, StringView what)
{
    const auto row = std::ranges::find(table, what, &SpokenWords::what);
    return row == table.end() ? nullptr : &*row;
}

String said(const SpokenWords& words)
{
    return LNG()->TRANSLATE(words.german, words.english);
}

const SpokenWords* wordsOfKey(const KeyBoard& board, const String& name)
{
    const SpokenWords* changed = board.isOn(Modifier::Sym) ? wordsOf(SpokenKeys, u"^" + name) : nullptr;
    if (!changed && board.isOn(Modifier::Shift)) {
        changed = wordsOf(SpokenKeys, u"+" + name);
    }
    return changed ? changed : wordsOf(SpokenKeys, name);
}

/// What a key types that is named in the notation of keyboard emulation; of the star that shows a
/// multiplication sign, that.
String signOf(const KeyBoard& board, std::int32_t index, const String& name)
{
    constexpr std::size_t Quoted = 3; // such as "{+}"
    if (name.size() == Quoted && name.front() == u'{' && name.back() == u'}') {
        return name.substr(1, 1);
    }
    return name == u"*" && board.face(index).text == u"x" ? String(u"×") : name;
}

} // namespace

String spokenCharacter(StringView character)
{
    const auto script = character.size() == 1 ? scriptOf(character.front()) : std::nullopt;
    if (script && isDigit(script->plain)) {
        const String digit(1, script->plain);
        return script->level == ScriptLevel::Superscript
                   ? LNG()->TRANSLATE(u"Hoch {1}", u"Raised {1}", {digit})
                   : LNG()->TRANSLATE(u"Tief {1}", u"Lowered {1}", {digit});
    }
    const SpokenWords* words = wordsOf(SpokenSigns, character);
    return words ? said(*words) : String(character);
}

String spokenKey(const KeyBoard& board, std::int32_t index)
{
    const String name = board.name(index);
    const SpokenWords* words = wordsOfKey(board, name);
    if (!words) {
        return spokenCharacter(signOf(board, index, name));
    }
    const String what = said(*words);
    return board.state(index) == KeyState::Locked
               ? LNG()->TRANSLATE(u"{1}, festgestellt", u"{1}, locked", {what})
               : what;
}

} // namespace phial
