#pragma once

#include "dialogs/KeyRows.h"

/// The German keyboard for texts.
namespace phial::text_layout
{

namespace rows
{
inline constexpr double First = 1020;
inline constexpr double Second = First + key_rows::Key;
inline constexpr double Third = Second + key_rows::Key;
inline constexpr double Fourth = Third + key_rows::Key;
inline constexpr double Fifth = Fourth + key_rows::Key;
} // namespace rows

// clang-format off
inline constexpr auto Keys = key_rows::joined(
    key_rows::row(rows::First, std::to_array<KeyDesign>({
        {.index = 0, .caption = u"ESC", .tag = u"ESC", .width = 1020},
        {1, u"1"}, {2, u"2"}, {3, u"3"}, {4, u"4"}, {5, u"5"}, {6, u"6"}, {7, u"7"}, {8, u"8"}, {9, u"9"},
        {10, u"0"}, {11, u"ß"},
        {.index = 12, .caption = u"ï", .tag = u"BACKSPACE", .width = 1860}})),
    key_rows::row(rows::Second, std::to_array<KeyDesign>({
        {.index = 13, .caption = u"ó", .tag = u"TAB", .width = 1440},
        {14, u"q"}, {15, u"w"}, {16, u"e"}, {17, u"r"}, {18, u"t"}, {19, u"z"}, {20, u"u"}, {21, u"i"},
        {22, u"o"}, {23, u"p"}, {24, u"ü"}, {49, u"+"}, {59, u"C", u"CLEAR"}})),
    key_rows::row(rows::Third, std::to_array<KeyDesign>({
        {.index = 25, .caption = u"www.", .width = 1680},
        {26, u"a"}, {27, u"s"}, {28, u"d"}, {29, u"f"}, {30, u"g"}, {31, u"h"}, {32, u"j"}, {33, u"k"},
        {34, u"l"}, {35, u"ö"}, {36, u"ä"},
        {.index = 58, .caption = u"ü", .tag = u"ENTER", .width = 1200, .height = 2 * key_rows::Key,
         .notch = 480}})), // around the key UP
    key_rows::row(rows::Fourth, std::to_array<KeyDesign>({
        {.index = 37, .caption = u"ñ", .tag = u"SHIFT", .width = 1440},
        {57, u"/"}, {38, u"y"}, {39, u"x"}, {40, u"c"}, {41, u"v"}, {42, u"b"}, {43, u"n"}, {44, u"m"},
        {45, u","}, {46, u"."}, {47, u"-"}, {54, u"á", u"UP"}})),
    key_rows::row(rows::Fifth, std::to_array<KeyDesign>({
        {.index = 50, .caption = u"Strg|Ctrl", .tag = u"CTRL", .width = 1440},
        {.index = 51, .caption = u"Alt", .tag = u"ALT", .width = 1440},
        {.index = 48, .caption = u" ", .width = 4320},
        {.index = 52, .caption = u"Sym", .tag = u"SYM", .width = 1440},
        {53, u"ß", u"LEFT"}, {55, u"â", u"DOWN"}, {56, u"à", u"RIGHT"}})));

inline constexpr auto Levels = std::to_array<KeyLevels>({
    {u"1", u"1!"}, {u"2", u"2\"²"}, {u"3", u"3§³"}, {u"4", u"4$"}, {u"5", u"5%"}, {u"6", u"6&"},
    {u"7", u"7/{"}, {u"8", u"8(["}, {u"9", u"9)]"}, {u"0", u"0=}"}, {u"ß", u"ß?\\"}, {u"+", u"+*~"},
    {u"q", u"qQ@"}, {u"w", u"wW"}, {u"e", u"eE€"}, {u"r", u"rR"}, {u"t", u"tT"}, {u"z", u"zZ"},
    {u"u", u"uU"}, {u"i", u"iI"}, {u"o", u"oO"}, {u"p", u"pP"}, {u"ü", u"üÜ"}, {u"a", u"aA"},
    {u"s", u"sS"}, {u"d", u"dD"}, {u"f", u"fF"}, {u"g", u"gG"}, {u"h", u"hH"}, {u"j", u"jJ"},
    {u"k", u"kK"}, {u"l", u"lL"}, {u"ö", u"öÖ"}, {u"ä", u"äÄ"}, {u"y", u"yY"}, {u"x", u"xX"},
    {u"c", u"cC"}, {u"v", u"vV"}, {u"b", u"bB"}, {u"n", u"nN"}, {u"m", u"mMµ"}, {u",", u",;"},
    {u".", u".:"}, {u"-", u"-_"},
});

inline constexpr auto Named = std::to_array<NamedFaces>({
    {u"ESC", u"ESC", u"ESC", u"Menü|Menu"},
    {u"UP", u"á", u"é", u"á", true},
    {u"LEFT", u"ß", u"ç", u"ß", true},
    {u"DOWN", u"â", u"ê", u"â", true},
    {u"RIGHT", u"à", u"è", u"à", true},
    {u"ENTER", u"ü", u"ü", u"å", true},
    {u"BACKSPACE", u"ï", u"ï", u"ï", true},
    {u"TAB", u"ó", u"ó", u"ó", true},
    {u"SHIFT", u"ñ", u"ñ", u"ñ", true},
    {u"www.", u"www.", u"http://", u"www."},
});
// clang-format on

inline constexpr KeyLayout Layout{Keys, Levels, Named};

} // namespace phial::text_layout
