#include "core/Colour.h"

#include "core/Palette.h"

#include <array>
#include <cstddef>

namespace phial
{

Colour defaultColour(Colour colour)
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
    if (!colour.isSystem()) {
        return colour;
    }
    if (Palette::has(colour)) {
        return Palette::resolved(colour);
    }
    const std::size_t slot = colour.value & 0xFFU;
    return slot < Slots.size() ? Slots[slot] : Colour();
}

} // namespace phial
