#pragma once

#include "dialogs/KeyRows.h"
#include "dialogs/TermKeyLevels.h"

/// The keys beside the periodic table: digits and signs.
namespace phial::periodic_key_layout
{

namespace rows
{
inline constexpr double Signs = 660;
inline constexpr double First = 1560;
inline constexpr double Second = First + key_rows::Key;
inline constexpr double Third = Second + key_rows::Key;
inline constexpr double Fourth = Third + key_rows::Key;
inline constexpr double Caret = 4680;
} // namespace rows

/// Where the digits begin, and the column of keys behind them.
inline constexpr double Digits = 9300;
inline constexpr double Edge = 11520;

// clang-format off
inline constexpr auto Keys = key_rows::joined(
    key_rows::row(rows::Signs, 8640, std::to_array<KeyDesign>({
        {0, u"(", u"{(}"}, {25, u"^", u"{^}"}, {13, u"x", u"*"}, {24, u")", u"{)}"}})),
    key_rows::row(rows::First, Digits, std::to_array<KeyDesign>({{7, u"7"}, {8, u"8"}, {9, u"9"}})),
    key_rows::row(rows::First, Edge, std::to_array<KeyDesign>({{12, u"ï", u"BACKSPACE"}})),
    key_rows::row(rows::Second, Digits, std::to_array<KeyDesign>({{4, u"4"}, {5, u"5"}, {6, u"6"}})),
    key_rows::row(rows::Second, Edge, std::to_array<KeyDesign>({{59, u"C", u"CLEAR"}})),
    key_rows::row(rows::Third, Digits, std::to_array<KeyDesign>({{1, u"1"}, {2, u"2"}, {3, u"3"}})),
    key_rows::row(rows::Third, Edge, std::to_array<KeyDesign>({
        {.index = 11, .caption = u"OK", .tag = u"OK", .height = 2 * key_rows::Key}})),
    key_rows::row(rows::Fourth, Digits, std::to_array<KeyDesign>({
        {49, u"+", u"{+}"}, {10, u"0"}, {47, u"-"}})),
    key_rows::row(rows::Caret, 10020, std::to_array<KeyDesign>({{56, u"à", u"RIGHT"}})));
// clang-format on

inline constexpr KeyLayout Layout{Keys, term_keys::Levels, term_keys::Named, true};

} // namespace phial::periodic_key_layout
