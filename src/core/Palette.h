#pragma once

#include "core/Colour.h"

#include <array>
#include <cstddef>

/// The colours of the system's windows by what they are for. Like the desktop's colours they stay symbolic
/// until they are painted, so a form names its roles once, in its design, and another set of colours reaches
/// all that is shown. Which set is shown is the theme's (`CoreTheme::Colours`).
namespace phial::Palette
{

inline constexpr Colour Ground{0x80000100U};  ///< of windows and pages
inline constexpr Colour Surface{0x80000101U}; ///< of cards, tables, fields
inline constexpr Colour Ink{0x80000102U};     ///< text on either
inline constexpr Colour Muted{0x80000103U};   ///< text that matters less
inline constexpr Colour ControlBorder{0x80000104U};
inline constexpr Colour Divider{0x80000105U};    ///< lines that only part or adorn
inline constexpr Colour Accent{0x80000106U};     ///< what one presses, links
inline constexpr Colour AccentDeep{0x80000107U}; ///< titles
inline constexpr Colour OnAccent{0x80000108U};
inline constexpr Colour Right{0x80000109U}; ///< verdicts, as text and signs; OnAccent can be read on them
inline constexpr Colour TryAgain{0x8000010AU};
inline constexpr Colour Failure{0x8000010BU};
inline constexpr Colour Band{0x8000010CU}; ///< every second row of a table
inline constexpr Colour Footer{0x8000010DU};
inline constexpr Colour Connected{0x8000010EU}; ///< signs of a connection
inline constexpr Colour Unconnected{0x8000010FU};
inline constexpr Colour AccentHover{0x80000110U}; ///< grounds of what is pointed at and pressed
inline constexpr Colour AccentPressed{0x80000111U};
inline constexpr Colour AccentSoft{0x80000112U}; ///< calm grounds for Ink and for the colour of that name
inline constexpr Colour RightSoft{0x80000113U};
inline constexpr Colour TryAgainSoft{0x80000114U};
inline constexpr Colour FailureSoft{0x80000115U};
inline constexpr Colour Track{0x80000116U}; ///< of progress and scroll bars
inline constexpr Colour DisabledText{0x80000117U};
inline constexpr Colour DisabledGround{0x80000118U};
inline constexpr Colour Star{0x80000119U}; ///< a sign on Surface
inline constexpr Colour FocusRing{0x8000011AU};
inline constexpr Colour FocusGap{0x8000011BU};
inline constexpr Colour Header{0x8000011CU}; ///< the near end of a header, and the far one
inline constexpr Colour HeaderDeep{0x8000011DU};
inline constexpr Colour OnHeader{0x8000011EU};
inline constexpr Colour Field{0x8000011FU}; ///< where a pupil is to type
inline constexpr Colour SurfaceHover{0x80000120U};
inline constexpr Colour SurfacePressed{0x80000121U};

/// A role's colour in each set.
struct Shades {
    Colour light;
    Colour dark;
    Colour highContrast;
};

/// 0xRRGGBB.
constexpr Colour shade(std::uint32_t rgb)
{
    return RGB(static_cast<int>(rgb >> 16U), static_cast<int>((rgb >> 8U) & 0xFFU),
               static_cast<int>(rgb & 0xFFU));
}

/// In the order of the roles.
inline constexpr auto Table = std::to_array<Shades>({
    {shade(0xF6F9FC), shade(0x0F1C29), shade(0x000000)}, // ground
    {shade(0xFFFFFF), shade(0x182938), shade(0x000000)}, // surface
    {shade(0x1C2836), shade(0xEDF3F8), shade(0xFFFFFF)}, // ink
    {shade(0x546476), shade(0xA9BACB), shade(0xFFFFFF)}, // muted
    {shade(0x6B7F93), shade(0x7E95AA), shade(0xFFFFFF)}, // border of controls
    {shade(0xC4D4E2), shade(0x2B4054), shade(0xFFFFFF)}, // divider
    {shade(0x006AB5), shade(0x6BBBF7), shade(0xFFE600)}, // accent
    {shade(0x004076), shade(0x9CD2FB), shade(0xFFE600)}, // deep accent
    {shade(0xFFFFFF), shade(0x06192A), shade(0x000000)}, // on accent
    {shade(0x00703C), shade(0x72DB9C), shade(0x7CFF9B)}, // right
    {shade(0x7A4600), shade(0xFFC768), shade(0xFFC24D)}, // try again
    {shade(0xB02020), shade(0xFF9C96), shade(0xFFA3A3)}, // failure
    {shade(0xE8F0F7), shade(0x1E3142), shade(0x1C1C1C)}, // band
    {shade(0xEAF1F7), shade(0x0B151F), shade(0x000000)}, // footer
    {shade(0x00703C), shade(0x72DB9C), shade(0x7CFF9B)}, // connected
    {shade(0x6B7F93), shade(0x8699AB), shade(0xFFFFFF)}, // unconnected
    {shade(0x005795), shade(0x8CCBFA), shade(0xFFF27A)}, // accent, pointed at
    {shade(0x00477B), shade(0x4FA3E3), shade(0xD6C100)}, // accent, pressed
    {shade(0xE1EFFA), shade(0x15395A), shade(0x333300)}, // soft accent
    {shade(0xE3F4EA), shade(0x123528), shade(0x000000)}, // soft right
    {shade(0xFFF1D6), shade(0x3A2B0C), shade(0x000000)}, // soft try again
    {shade(0xFBE9E9), shade(0x451B1E), shade(0x000000)}, // soft failure
    {shade(0x7C90A4), shade(0x66809A), shade(0xFFFFFF)}, // track
    {shade(0x5F6F80), shade(0x8699AB), shade(0xB8B8B8)}, // disabled text
    {shade(0xE6ECF2), shade(0x1E3142), shade(0x000000)}, // disabled ground
    {shade(0xB86E00), shade(0xFFC768), shade(0xFFE600)}, // star
    {shade(0x1C2836), shade(0xFFFFFF), shade(0xFFE600)}, // focus ring
    {shade(0xFFFFFF), shade(0x0F1C29), shade(0x000000)}, // its gap
    {shade(0x006AB5), shade(0x15395A), shade(0x333300)}, // header
    {shade(0x004076), shade(0x0B2238), shade(0x333300)}, // its far end
    {shade(0xFFFFFF), shade(0xEDF3F8), shade(0xFFFFFF)}, // on the header
    {shade(0xCCE1F0), shade(0x223B50), shade(0x000000)}, // field
    {shade(0xE6EBF1), shade(0x22384A), shade(0x333300)}, // surface, pointed at
    {shade(0xD5DDE6), shade(0x2C475D), shade(0x4D4D00)}, // surface, pressed
});

/// Whether a symbolic colour is a role of the palette and no slot of the desktop.
constexpr bool has(Colour colour)
{
    return colour.value >= Ground.value && colour.value < Ground.value + Table.size();
}

/// The colour that a role stands for in a set.
constexpr Colour resolved(Colour role, ColourSet set)
{
    const Shades& shades = Table[role.value - Ground.value];
    switch (set) {
    case ColourSet::Light:
        break;
    case ColourSet::Dark:
        return shades.dark;
    case ColourSet::HighContrast:
        return shades.highContrast;
    }
    return shades.light;
}

} // namespace phial::Palette
