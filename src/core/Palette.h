#pragma once

#include "core/Colour.h"

#include <array>

/// The colours of the system's windows by what they are for. Like the desktop's colours they stay symbolic
/// until they are painted, so a form names its roles once, in its design, and another set of colours (dark,
/// or of high contrast) reaches all that is shown.
namespace phial::Palette
{

inline constexpr Colour Ground{0x80000100U};  ///< of windows and pages
inline constexpr Colour Surface{0x80000101U}; ///< of cards, tables, fields
inline constexpr Colour Ink{0x80000102U};     ///< text on either
inline constexpr Colour Muted{0x80000103U};   ///< text that matters less
inline constexpr Colour ControlBorder{0x80000104U};
inline constexpr Colour Divider{0x80000105U};    ///< lines and tracks that only part or adorn
inline constexpr Colour Accent{0x80000106U};     ///< what one presses, links, headers
inline constexpr Colour AccentDeep{0x80000107U}; ///< the far end of a header; titles
inline constexpr Colour OnAccent{0x80000108U};
inline constexpr Colour Right{0x80000109U}; ///< verdicts, as text
inline constexpr Colour TryAgain{0x8000010AU};
inline constexpr Colour Failure{0x8000010BU};
inline constexpr Colour Band{0x8000010CU}; ///< every second row of a table
inline constexpr Colour Footer{0x8000010DU};
inline constexpr Colour Connected{0x8000010EU}; ///< signs of a connection
inline constexpr Colour Unconnected{0x8000010FU};

/// The colours by daylight, in the order of the roles.
inline constexpr std::array<Colour, 16> Light = {
    RGB(246, 249, 252), // ground
    RGB(255, 255, 255), // surface
    RGB(28, 40, 54),    // ink
    RGB(84, 100, 118),  // muted
    RGB(107, 127, 147), // border of controls
    RGB(196, 212, 226), // divider
    RGB(0, 106, 181),   // accent
    RGB(0, 64, 118),    // deep accent
    RGB(255, 255, 255), // on accent
    RGB(0, 112, 60),    // right
    RGB(122, 70, 0),    // try again
    RGB(176, 32, 32),   // failure
    RGB(232, 240, 247), // band
    RGB(234, 241, 247), // footer
    RGB(0, 150, 80),    // connected
    RGB(150, 160, 170), // unconnected
};

/// Whether a symbolic colour is a role of the palette and no slot of the desktop.
constexpr bool has(Colour colour)
{
    return colour.value >= Ground.value && colour.value < Ground.value + Light.size();
}

/// The colour that a role stands for now.
constexpr Colour resolved(Colour role)
{
    return Light[role.value - Ground.value];
}

} // namespace phial::Palette
