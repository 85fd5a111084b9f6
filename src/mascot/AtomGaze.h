#pragma once

#include "visual/Geometry.h"

#include <cstdint>
#include <optional>

namespace phial
{

class RandomSource;

/// How the eyes move.
enum class enm_DrAtomEyeMove : std::int32_t {
    ID_DrAtomEyeMove_None = 0,          ///< they look where EYEDIRECTION says
    ID_DrAtomEyeMove_MouseTracking = 1, ///< they follow the pointer; straight ahead where none is told
    ID_DrAtomEyeMove_RollingRight = 2,
    ID_DrAtomEyeMove_RollingLeft = 3,
    ID_DrAtomEyeMove_Insane = 4, ///< each for itself anywhere, in every frame
    ID_DrAtomEyeMove_Smooth = 5, ///< a new direction now and then
};

/// No direction: an eye looks straight ahead.
inline constexpr std::int32_t EyesAhead = -100;

/// Where a mascot's two eyes look: degrees, 0 to the right and clockwise, or EyesAhead.
struct AtomGaze {
    std::int32_t left = EyesAhead;
    std::int32_t right = EyesAhead;

    /// Where the eyes stand in the face.
    static constexpr PixelPoint LeftEye{34, 31};
    static constexpr PixelPoint RightEye{66, 31};

    /// Goes on by one frame. `direction` is that of eyes that do not move by themselves, as of a way that has
    /// no name. Random numbers: two when insane; when smooth one that decides on a change, then one for
    /// straight ahead, then one for a direction.
    void step(enm_DrAtomEyeMove move, std::int32_t direction, RandomSource& random);
    /// Each eye looks from its own place at the pointer, which is given in pixels of the face.
    void follow(std::optional<PixelPoint> pointer);

    friend bool operator==(const AtomGaze&, const AtomGaze&) = default;
};

/// The angle of the way so many pixels to the right and down; 270 for none.
std::int32_t angleTowards(std::int32_t right, std::int32_t down);

} // namespace phial
