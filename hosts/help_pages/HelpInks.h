#pragma once

#include "core/Colour.h"
#include "visual/DrawDevice.h"
#include "visual/Font.h"
#include "visual/RoundedOutline.h"

/// What pages and their pictures are drawn with: the light colours of the learning apps, since a printed page
/// is white as well.
namespace help_pages
{

namespace inks
{
inline constexpr phial::Colour Paper = phial::RGB(255, 255, 255);
inline constexpr phial::Colour Ink = phial::RGB(28, 40, 54);
inline constexpr phial::Colour Muted = phial::RGB(84, 100, 118);
inline constexpr phial::Colour Edge = phial::RGB(107, 127, 147);
inline constexpr phial::Colour Divider = phial::RGB(196, 212, 226);
inline constexpr phial::Colour Ground = phial::RGB(246, 249, 252);
inline constexpr phial::Colour Accent = phial::RGB(0, 106, 181);
inline constexpr phial::Colour AccentSoft = phial::RGB(225, 239, 250);
inline constexpr phial::Colour Right = phial::RGB(0, 112, 60);
inline constexpr phial::Colour RightSoft = phial::RGB(227, 244, 234);
inline constexpr phial::Colour Note = phial::RGB(122, 70, 0);
inline constexpr phial::Colour NoteSoft = phial::RGB(255, 241, 214);
inline constexpr phial::Colour Gap = phial::RGB(192, 192, 192);
} // namespace inks

/// Of `size` points.
inline phial::FontSpec helpFont(double size, bool bold = false)
{
    return {.name = u"Tahoma", .size = size, .bold = bold};
}

inline void fillRound(phial::DrawDevice& device, const phial::PixelRectangle& area, double radius,
                      phial::Colour ground, phial::Colour edge)
{
    device.FillStyle(phial::FillStyle::Solid);
    device.FillColor(ground);
    device.ForeColor(edge);
    device.Polygon(phial::roundedOutline(area, radius));
}

inline void fillDisc(phial::DrawDevice& device, phial::PixelPoint middle, double radius, phial::Colour ground,
                     phial::Colour edge)
{
    device.FillStyle(phial::FillStyle::Solid);
    device.FillColor(ground);
    device.Circle(middle.x, middle.y, radius, edge);
}

} // namespace help_pages
