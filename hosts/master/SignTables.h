#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

// What is known of signs: which cannot be seen, which are wide, which look like which.

namespace phial::master::signs
{

/// Code points from the first to the last.
struct Range {
    char32_t first;
    char32_t last;

    constexpr bool holds(char32_t point) const { return first <= point && point <= last; }
};

template <std::size_t Count>
constexpr bool isIn(const std::array<Range, Count>& ranges, char32_t point)
{
    return std::ranges::any_of(ranges, [point](const Range& range) { return range.holds(point); });
}

/// What Unicode lets programs leave out when they draw (Default_Ignorable_Code_Point), the controls, the
/// signs of writing direction, and the blank pattern of Braille.
inline constexpr auto Hidden = std::to_array<Range>({
    {0x0000, 0x001F},   {0x007F, 0x009F}, {0x00AD, 0x00AD}, {0x034F, 0x034F},   {0x061C, 0x061C},
    {0x115F, 0x1160},   {0x17B4, 0x17B5}, {0x180B, 0x180F}, {0x200B, 0x200F},   {0x2028, 0x202E},
    {0x2060, 0x206F},   {0x2800, 0x2800}, {0x3164, 0x3164}, {0xD800, 0xDFFF},   {0xFE00, 0xFE0F},
    {0xFEFF, 0xFEFF},   {0xFFA0, 0xFFA0}, {0xFFF0, 0xFFFB}, {0x1BCA0, 0x1BCA3}, {0x1D173, 0x1D17A},
    {0xE0000, 0xE0FFF},
});

inline constexpr auto Blanks = std::to_array<Range>({
    {0x00A0, 0x00A0},
    {0x1680, 0x1680},
    {0x2000, 0x200A},
    {0x202F, 0x202F},
    {0x205F, 0x205F},
    {0x3000, 0x3000},
});

inline constexpr auto Marks = std::to_array<Range>({
    {0x0300, 0x036F},
    {0x0483, 0x0489},
    {0x0591, 0x05BD},
    {0x064B, 0x065F},
    {0x1AB0, 0x1AFF},
    {0x1DC0, 0x1DFF},
    {0x20D0, 0x20FF},
    {0xFE20, 0xFE2F},
});

inline constexpr auto RightToLeft = std::to_array<Range>({
    {0x05BE, 0x061B},
    {0x061D, 0x064A},
    {0x066D, 0x08FF},
    {0xFB1D, 0xFDFF},
    {0xFE70, 0xFEFE},
    {0x10800, 0x10FFF},
    {0x1E800, 0x1EFFF},
});

inline constexpr auto Wide = std::to_array<Range>({
    {0x1100, 0x115F},
    {0x2E80, 0x303E},
    {0x3041, 0xA4CF},
    {0xAC00, 0xD7A3},
    {0xF900, 0xFAFF},
    {0xFE30, 0xFE6F},
    {0xFF01, 0xFF60},
    {0xFFE0, 0xFFE6},
    {0x1F300, 0x1F64F},
    {0x1F680, 0x1F6FF},
    {0x1F900, 0x1FAFF},
    {0x20000, 0x3FFFD},
});

/// Alphabets whose letters are taken for one another.
enum class Alphabet { None, Latin, Greek, Cyrillic, Armenian, Cherokee, Disguise };

struct AlphabetRange {
    Range range;
    Alphabet alphabet;
};

inline constexpr auto Alphabets = std::to_array<AlphabetRange>({
    {{'A', 'Z'}, Alphabet::Latin},
    {{'a', 'z'}, Alphabet::Latin},
    {{0x00C0, 0x00D6}, Alphabet::Latin},
    {{0x00D8, 0x00F6}, Alphabet::Latin},
    {{0x00F8, 0x024F}, Alphabet::Latin},
    {{0x1E00, 0x1EFF}, Alphabet::Latin},
    {{0x0370, 0x03FF}, Alphabet::Greek},
    {{0x1F00, 0x1FFF}, Alphabet::Greek},
    {{0x0400, 0x052F}, Alphabet::Cyrillic},
    {{0x0531, 0x0587}, Alphabet::Armenian},
    {{0x13A0, 0x13FD}, Alphabet::Cherokee},
    {{0xAB70, 0xABBF}, Alphabet::Cherokee},
    // Letters drawn in another way: as symbols, in the width of Asian signs, in circles, as small capitals.
    {{0x0250, 0x02AF}, Alphabet::Disguise},
    {{0x1D00, 0x1D7F}, Alphabet::Disguise},
    {{0x2100, 0x214F}, Alphabet::Disguise},
    {{0x2160, 0x2188}, Alphabet::Disguise},
    {{0x249C, 0x24E9}, Alphabet::Disguise},
    {{0xA4D0, 0xA4FF}, Alphabet::Disguise},
    {{0xFF10, 0xFF5A}, Alphabet::Disguise},
    {{0x1D400, 0x1D7FF}, Alphabet::Disguise},
    {{0x1F130, 0x1F189}, Alphabet::Disguise},
});

/// Each sign of the first text looks like the one below it.
inline constexpr std::u32string_view Alike =
    U"АВЕЅІЈКМНОРСТУХЗаеіјорсухѕԁһԛԜԝΑΒΕΖΗΙΚΜΝΟΡΤΥΧονՕօոսᎪᎬᎳᎷᎻᏟᏚᎢᏢᎠᎡᏙᏞᏴıI1|0";
inline constexpr std::u32string_view Looks =
    U"ABESlJKMHOPCTYX3aeijopcyxsdhqWwABEZHlKMNOPTYXovOonuAEWMHCSTPDRVLBilllO";
static_assert(Alike.size() == Looks.size());

/// Letters of U+00C0 to U+00FF without their mark, and that mark; a blank where there is none.
inline constexpr std::u32string_view MarkedLetters =
    U"AAAAAA CEEEEIIII NOOOOO  UUUUY  aaaaaa ceeeeiiii nooooo  uuuuy y";
inline constexpr std::u32string_view TheirMarks =
    U"\u0300\u0301\u0302\u0303\u0308\u030A \u0327\u0300\u0301\u0302\u0308\u0300\u0301\u0302\u0308 "
    U"\u0303\u0300"
    U"\u0301\u0302\u0303\u0308  \u0300\u0301\u0302\u0308\u0301  \u0300\u0301\u0302\u0303\u0308\u030A \u0327"
    U"\u0300\u0301\u0302\u0308\u0300\u0301\u0302\u0308 \u0303\u0300\u0301\u0302\u0303\u0308  "
    U"\u0300\u0301\u0302"
    U"\u0308\u0301 \u0308";
static_assert(MarkedLetters.size() == 64 && TheirMarks.size() == 64);

} // namespace phial::master::signs
