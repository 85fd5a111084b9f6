#pragma once

#include "core/RuntimeError.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace phial
{

/// A colour: 0x00BBGGRR, or 0x800000nn for slot nn of the desktop's colours, or one of Palette.h; these two
/// stay symbolic until they are painted.
struct Colour {
    std::uint32_t value = 0;

    constexpr Colour() = default;
    constexpr explicit Colour(std::uint32_t packed) : value(packed) {}

    constexpr bool isSystem() const { return (value & 0x80000000U) != 0; }
    constexpr std::uint8_t red() const { return static_cast<std::uint8_t>(value & 0xFFU); }
    constexpr std::uint8_t green() const { return static_cast<std::uint8_t>((value >> 8U) & 0xFFU); }
    constexpr std::uint8_t blue() const { return static_cast<std::uint8_t>((value >> 16U) & 0xFFU); }

    friend constexpr bool operator==(Colour, Colour) = default;
};

/// The sets of colours in which windows are shown, see Palette.h.
enum class ColourSet : std::uint8_t { Light, Dark, HighContrast };

/// Colour slots of the desktop that the system uses.
namespace SystemColour
{
inline constexpr Colour ScrollBar{0x80000000U};
inline constexpr Colour Desktop{0x80000001U};
inline constexpr Colour Window{0x80000005U};
inline constexpr Colour WindowText{0x80000008U};
inline constexpr Colour Highlight{0x8000000DU};
inline constexpr Colour HighlightText{0x8000000EU};
inline constexpr Colour ButtonFace{0x8000000FU};
inline constexpr Colour ButtonShadow{0x80000010U};
inline constexpr Colour GrayText{0x80000011U};
inline constexpr Colour ButtonText{0x80000012U};
} // namespace SystemColour

/// Red, green and blue, each 0 to 255; values outside are clamped.
constexpr Colour RGB(int red, int green, int blue)
{
    const auto clamp = [](int part) {
        return static_cast<std::uint32_t>(part < 0 ? 0 : part > 255 ? 255 : part);
    };
    return Colour{clamp(red) | (clamp(green) << 8U) | (clamp(blue) << 16U)};
}

/// The classic table of 16 colours; raises 5 for an index outside 0 to 15.
constexpr Colour QBColor(int index)
{
    constexpr std::array<Colour, 16> Table = {
        RGB(0, 0, 0),       RGB(0, 0, 128),   RGB(0, 128, 0),   RGB(0, 128, 128),
        RGB(128, 0, 0),     RGB(128, 0, 128), RGB(128, 128, 0), RGB(192, 192, 192),
        RGB(128, 128, 128), RGB(0, 0, 255),   RGB(0, 255, 0),   RGB(0, 255, 255),
        RGB(255, 0, 0),     RGB(255, 0, 255), RGB(255, 255, 0), RGB(255, 255, 255)};
    if (index < 0 || index >= static_cast<int>(Table.size())) {
        throw RuntimeError(ErrorNumber::InvalidArgument);
    }
    return Table[static_cast<std::size_t>(index)];
}

/// What a symbolic colour stands for: a role of the palette, or a slot of the desktop when no desktop is
/// asked (headless, tests). A plain colour gives itself. In the set of the session's theme, or by daylight
/// when no session is open.
Colour defaultColour(Colour colour);
Colour defaultColour(Colour colour, ColourSet set);

/// A symbolic ink on a ground that is a plain colour, whatever set is shown: in the set that can be read
/// there. Any other ink stays what it is.
Colour inkOn(Colour ground, Colour ink);

} // namespace phial
