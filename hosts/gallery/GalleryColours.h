#pragma once

#include "core/Palette.h"

/// The colours of the exhibits: those of the palette as plain colours, which the property editor shows as
/// such.
namespace gallery::colours
{

inline constexpr phial::Colour Blue = phial::Palette::resolved(phial::Palette::Accent);
inline constexpr phial::Colour DarkBlue = phial::Palette::resolved(phial::Palette::AccentDeep);
inline constexpr phial::Colour Paper = phial::Palette::resolved(phial::Palette::Ground);
inline constexpr phial::Colour White = phial::Palette::resolved(phial::Palette::Surface);
inline constexpr phial::Colour Line = phial::Palette::resolved(phial::Palette::Divider);
inline constexpr phial::Colour Ink = phial::Palette::resolved(phial::Palette::Ink);
inline constexpr phial::Colour Quiet = phial::Palette::resolved(phial::Palette::Muted);
inline constexpr phial::Colour Good = phial::Palette::resolved(phial::Palette::Right);
inline constexpr phial::Colour Bad = phial::Palette::resolved(phial::Palette::Failure);

} // namespace gallery::colours
