#pragma once

#include "dialogs/KeyBoard.h"

#include <array>

/// What the keys of the keyboards for terms show: capitals first, since most letters in a term are those of
/// an element's symbol.
namespace phial::term_keys
{

// clang-format off
inline constexpr auto Levels = std::to_array<KeyLevels>({
    {u"q", u"Qq@"}, {u"w", u"Ww"}, {u"e", u"Ee€"}, {u"r", u"Rr"}, {u"t", u"Tt"}, {u"z", u"Zz"},
    {u"u", u"Uu"}, {u"i", u"Ii"}, {u"o", u"Oo"}, {u"p", u"Pp"}, {u"ü", u"Üü"}, {u"a", u"Aa"},
    {u"s", u"Ss"}, {u"d", u"Dd"}, {u"f", u"Ff"}, {u"g", u"Gg"}, {u"h", u"Hh"}, {u"j", u"Jj"},
    {u"k", u"Kk"}, {u"l", u"Ll"}, {u"ö", u"Öö"}, {u"ä", u"Ää"}, {u"y", u"Yy"}, {u"x", u"Xx"},
    {u"c", u"Cc"}, {u"v", u"Vv"}, {u"b", u"Bb"}, {u"n", u"Nn"}, {u"m", u"Mmµ"}, {u"+", u"+*~"},
    {u",", u",;"}, {u".", u".:"}, {u"-", u"-_"},
});

inline constexpr auto Named = std::to_array<NamedFaces>({
    {u"ESC", u"ESC", u"ESC", u"Menü|Menu"},
    {u"UP", u"á", u"é", u"á", true},
    {u"LEFT", u"ß", u"ç", u"ß", true},
    {u"DOWN", u"â", u"ê", u"â", true},
    {u"RIGHT", u"à", u"è", u"à", true},
    {u"BACKSPACE", u"ï", u"ï", u"ï", true},
    {u"SHIFT", u"ñ", u"ñ", u"ñ", true},
    {u"www.", u"www.", u"http://", u"www."},
});
// clang-format on

} // namespace phial::term_keys
