#pragma once

#include "core/Palette.h"

/// The colours of the exhibits, by what they are for.
namespace gallery::colours
{

inline constexpr phial::Colour Blue = phial::Palette::Header;
inline constexpr phial::Colour OnBlue = phial::Palette::OnHeader;
inline constexpr phial::Colour Link = phial::Palette::Accent;
inline constexpr phial::Colour DarkBlue = phial::Palette::HeaderDeep;
inline constexpr phial::Colour Paper = phial::Palette::Ground;
inline constexpr phial::Colour White = phial::Palette::Surface;
inline constexpr phial::Colour Line = phial::Palette::Divider;
inline constexpr phial::Colour Ink = phial::Palette::Ink;
inline constexpr phial::Colour Quiet = phial::Palette::Muted;
inline constexpr phial::Colour Good = phial::Palette::Right;
inline constexpr phial::Colour Bad = phial::Palette::Failure;

} // namespace gallery::colours
