#pragma once

#include "core/Colour.h"

/// The colours of the gallery's window, the same as the trainer's.
namespace gallery::colours
{

inline constexpr phial::Colour Blue = phial::RGB(0, 106, 181);
inline constexpr phial::Colour DarkBlue = phial::RGB(0, 64, 118);
inline constexpr phial::Colour Paper = phial::RGB(246, 249, 252);
inline constexpr phial::Colour White = phial::RGB(255, 255, 255);
inline constexpr phial::Colour Line = phial::RGB(196, 212, 226);
inline constexpr phial::Colour Ink = phial::RGB(28, 40, 54);
inline constexpr phial::Colour Quiet = phial::RGB(84, 100, 118);
inline constexpr phial::Colour Good = phial::RGB(0, 112, 60);
inline constexpr phial::Colour Bad = phial::RGB(176, 32, 32);

} // namespace gallery::colours
