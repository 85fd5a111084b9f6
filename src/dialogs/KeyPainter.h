#pragma once

#include "dialogs/KeyBoard.h"
#include "visual/DrawDevice.h"

namespace phial
{

/// What a key is for, which its ground shows.
enum class KeyKind : std::uint8_t {
    Character,
    Function,
    Accept, ///< the one that ends the input
};

/// A key as it is painted. Places are pixels.
struct KeyLook {
    PixelRectangle area; ///< with half of the gaps to its neighbours
    double notch = 0;    ///< what the lower half lacks at its left
    double scale = 1;    ///< 1 where a key of the usual width has 48 pixels
    KeyKind kind = KeyKind::Character;
    KeyFace face;
    KeyState state = KeyState::Off;
    bool isPressed = false;

    friend bool operator==(const KeyLook&, const KeyLook&) = default;
};

/// The key without its face, on the ground that is there. Pressed keys and modifiers that are on have the
/// accent's colour, locked ones a small lamp at their left.
void paintCap(DrawDevice& device, const KeyLook& look);
/// What stands on it.
void paintFace(DrawDevice& device, const KeyLook& look);

/// Paints keys; caps of the same look are drawn once (see KeyPictures).
class KeyPainter
{
public:
    void paint(DrawDevice& device, const KeyLook& look) const;
};

} // namespace phial
