#pragma once

#include "dialogs/KeyRows.h"
#include "dialogs/TermKeyLevels.h"

/// The keyboard for terms: letters at the left, digits and signs at the right.
namespace phial::term_key_layout
{

/// The two keys whose meaning a program chooses.
inline constexpr std::int32_t FirstFreeKey = 35;
inline constexpr std::int32_t SecondFreeKey = 36;

namespace rows
{
inline constexpr double Free = 660;
inline constexpr double Signs = 1020;
inline constexpr double First = 1860;
inline constexpr double Second = First + key_rows::Key;
inline constexpr double Third = Second + key_rows::Key;
inline constexpr double Fourth = Third + key_rows::Key;
} // namespace rows

/// Where the digits begin, and the column of keys behind them.
inline constexpr double Digits = 7800;
inline constexpr double Edge = 10260;

// clang-format off
inline constexpr auto Keys = key_rows::joined(
    key_rows::row(rows::Free, 720, std::to_array<KeyDesign>({
        {FirstFreeKey, u"xx"}, {SecondFreeKey, u"xx"}})),
    key_rows::row(rows::Signs, 7440, std::to_array<KeyDesign>({
        {0, u"(", u"{(}"}, {25, u"^", u"{^}"}, {13, u"x", u"*"}, {24, u")", u"{)}"}})),
    key_rows::row(rows::First, 360, std::to_array<KeyDesign>({
        {14, u"q"}, {15, u"w"}, {16, u"e"}, {17, u"r"}, {18, u"t"}, {19, u"z"}, {20, u"u"}, {21, u"i"},
        {22, u"o"}, {23, u"p"}})),
    key_rows::row(rows::First, Digits, std::to_array<KeyDesign>({{7, u"7"}, {8, u"8"}, {9, u"9"}})),
    key_rows::row(rows::First, Edge, std::to_array<KeyDesign>({{12, u"ï", u"BACKSPACE"}})),
    key_rows::row(rows::Second, 600, std::to_array<KeyDesign>({
        {26, u"a"}, {27, u"s"}, {28, u"d"}, {29, u"f"}, {30, u"g"}, {31, u"h"}, {32, u"j"}, {33, u"k"},
        {34, u"l"}})),
    key_rows::row(rows::Second, Digits, std::to_array<KeyDesign>({{4, u"4"}, {5, u"5"}, {6, u"6"}})),
    key_rows::row(rows::Second, Edge, std::to_array<KeyDesign>({{59, u"C", u"CLEAR"}})),
    key_rows::row(rows::Third, 360, std::to_array<KeyDesign>({
        {37, u"ñ", u"SHIFT"},
        {38, u"y"}, {39, u"x"}, {40, u"c"}, {41, u"v"}, {42, u"b"}, {43, u"n"}, {44, u"m"}, {45, u","},
        {46, u"."}})),
    key_rows::row(rows::Third, Digits, std::to_array<KeyDesign>({{1, u"1"}, {2, u"2"}, {3, u"3"}})),
    key_rows::row(rows::Third, Edge, std::to_array<KeyDesign>({
        {.index = 11, .caption = u"OK", .tag = u"OK", .height = 2 * key_rows::Key}})),
    key_rows::row(rows::Fourth, 1800, std::to_array<KeyDesign>({
        {.index = 48, .caption = u" ", .width = 4320}})),
    key_rows::row(rows::Fourth, Digits, std::to_array<KeyDesign>({
        {49, u"+", u"{+}"}, {10, u"0"}, {47, u"-"}})));
// clang-format on

inline constexpr KeyLayout Layout{Keys, term_keys::Levels, term_keys::Named, true};

} // namespace phial::term_key_layout
