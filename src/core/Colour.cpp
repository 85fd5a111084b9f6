#include "core/Colour.h"

#include "core/Palette.h"
#include "core/SessionState.h"

#include <array>
#include <cstddef>

namespace phial
{

namespace
{

constexpr std::uint32_t SlotMask = 0xFF;

/// The desktop's colours by daylight, as they were when they were numbered.
Colour slotByDaylight(std::size_t slot)
{
    static constexpr std::array<Colour, 25> Slots = {
        RGB(200, 200, 200), // scroll bar
        RGB(0, 0, 0),       // desktop
        RGB(153, 180, 209), // title bar of the active window
        RGB(191, 205, 219), // title bar of other windows
        RGB(240, 240, 240), // menu
        RGB(255, 255, 255), // window
        RGB(100, 100, 100), // window frame
        RGB(0, 0, 0),       // menu text
        RGB(0, 0, 0),       // window text
        RGB(0, 0, 0),       // text of the active title bar
        RGB(180, 180, 180), // border of the active window
        RGB(244, 247, 252), // border of other windows
        RGB(171, 171, 171), // ground behind inner windows
        RGB(0, 120, 215),   // highlight
        RGB(255, 255, 255), // highlighted text
        RGB(240, 240, 240), // button face
        RGB(160, 160, 160), // button shadow
        RGB(109, 109, 109), // grey text
        RGB(0, 0, 0),       // button text
        RGB(0, 0, 0),       // text of other title bars
        RGB(255, 255, 255), // button light
        RGB(105, 105, 105), // deep shadow
        RGB(227, 227, 227), // soft light
        RGB(0, 0, 0),       // text of tool tips
        RGB(255, 255, 225), // ground of tool tips
    };
    return slot < Slots.size() ? Slots[slot] : Colour();
}

struct SlotRole {
    std::uint32_t slot;
    Colour role;
};

/// What the slots are when the palette shows another set.
constexpr auto SlotRoles = std::to_array<SlotRole>({
    {0, Palette::Track},           // scroll bar
    {1, Palette::Ground},          // desktop
    {4, Palette::Surface},         // menu
    {5, Palette::Surface},         // window
    {6, Palette::ControlBorder},   // window frame
    {7, Palette::Ink},             // menu text
    {8, Palette::Ink},             // window text
    {13, Palette::Accent},         // highlight
    {14, Palette::OnAccent},       // highlighted text
    {15, Palette::Ground},         // button face
    {16, Palette::ControlBorder},  // button shadow
    {17, Palette::DisabledText},   // grey text
    {18, Palette::Ink},            // button text
    {20, Palette::SurfacePressed}, // button light
    {21, Palette::ControlBorder},  // deep shadow
    {22, Palette::SurfaceHover},   // soft light
    {23, Palette::Ink},            // text of tool tips
    {24, Palette::Surface},        // ground of tool tips
});

Colour slotColour(std::uint32_t slot, ColourSet set)
{
    if (set != ColourSet::Light) {
        for (const SlotRole& entry : SlotRoles) {
            if (entry.slot == slot) {
                return Palette::resolved(entry.role, set);
            }
        }
    }
    return slotByDaylight(slot);
}

/// Whether dark letters can be read on it better than light ones.
bool isLight(Colour colour)
{
    constexpr int Middle = 128'000; // of 255,000
    return 299 * colour.red() + 587 * colour.green() + 114 * colour.blue() > Middle;
}

} // namespace

Colour defaultColour(Colour colour, ColourSet set)
{
    if (!colour.isSystem()) {
        return colour;
    }
    return Palette::has(colour) ? Palette::resolved(colour, set) : slotColour(colour.value & SlotMask, set);
}

Colour defaultColour(Colour colour)
{
    return defaultColour(colour, SessionState::isOpen() ? coreTheme().Colours() : ColourSet::Light);
}

Colour inkOn(Colour ground, Colour ink)
{
    if (ground.isSystem() || !ink.isSystem()) {
        return ink;
    }
    return defaultColour(ink, isLight(ground) ? ColourSet::Light : ColourSet::Dark);
}

} // namespace phial
