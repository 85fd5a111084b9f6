#pragma once

#include <cstdint>

/// Indices of the text keyboard's keys that tests press.
namespace phial::test::keys
{

inline constexpr std::int32_t Escape = 0;
inline constexpr std::int32_t Two = 2;
inline constexpr std::int32_t Eight = 8;
inline constexpr std::int32_t Backspace = 12;
inline constexpr std::int32_t LetterQ = 14;
inline constexpr std::int32_t LetterW = 15;
inline constexpr std::int32_t LetterE = 16;
inline constexpr std::int32_t LetterA = 26;
inline constexpr std::int32_t Shift = 37;
inline constexpr std::int32_t Ctrl = 50;
inline constexpr std::int32_t Alt = 51;
inline constexpr std::int32_t Sym = 52;
inline constexpr std::int32_t Left = 53;
inline constexpr std::int32_t Up = 54;
inline constexpr std::int32_t Enter = 58;
inline constexpr std::int32_t Clear = 59;

} // namespace phial::test::keys
