#pragma once

#include "dialogs/KeyRows.h"

/// The pad for numbers.
namespace phial::number_layout
{

/// The key of the decimal sign, whose face is that of the locale.
inline constexpr std::int32_t DecimalSignKey = 45;

namespace rows
{
inline constexpr double First = 1740;
inline constexpr double Second = First + key_rows::Key;
inline constexpr double Third = Second + key_rows::Key;
inline constexpr double Fourth = Third + key_rows::Key;
} // namespace rows

// clang-format off
inline constexpr auto Keys = key_rows::joined(
    key_rows::row(rows::First, std::to_array<KeyDesign>({
        {7, u"7"}, {8, u"8"}, {9, u"9"}, {12, u"ï", u"BACKSPACE"}})),
    key_rows::row(rows::Second, std::to_array<KeyDesign>({
        {4, u"4"}, {5, u"5"}, {6, u"6"}, {13, u"C", u"CLEAR"}})),
    key_rows::row(rows::Third, std::to_array<KeyDesign>({
        {1, u"1"}, {2, u"2"}, {3, u"3"},
        {.index = 11, .caption = u"OK", .tag = u"OK", .height = 2 * key_rows::Key}})),
    key_rows::row(rows::Fourth, std::to_array<KeyDesign>({
        {10, u"0"}, {DecimalSignKey, u","}, {0, u"+/-", u"SWAP"}})));
// clang-format on

inline constexpr auto Named = std::to_array<NamedFaces>({
    {u"BACKSPACE", u"ï", u"ï", u"ï", true},
});

inline constexpr KeyLayout Layout{.keys = Keys, .levels = {}, .named = Named};

} // namespace phial::number_layout
