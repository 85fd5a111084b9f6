#pragma once

#include "core/String.h"

/// The signs on keys, by the characters that they have in the symbol font "Wingdings". They are drawn, so
/// that they look alike where that font is missing.
namespace phial::KeySigns
{

inline constexpr char16_t Left = u'ß';
inline constexpr char16_t Right = u'à';
inline constexpr char16_t Up = u'á';
inline constexpr char16_t Down = u'â';
inline constexpr char16_t HeavyLeft = u'ç';
inline constexpr char16_t HeavyRight = u'è';
inline constexpr char16_t HeavyUp = u'é';
inline constexpr char16_t HeavyDown = u'ê';
inline constexpr char16_t OutlinedLeft = u'ï';
inline constexpr char16_t OutlinedUp = u'ñ';
inline constexpr char16_t BothWays = u'ó';
inline constexpr char16_t Check = u'ü';
inline constexpr char16_t NewLine = u'å';

} // namespace phial::KeySigns
