#pragma once

#include "mascot/AtomGaze.h"
#include "visual/DrawDevice.h"

#include <cstdint>

namespace phial
{

/// The two halves of a mouth as aspects of the circles that they are cut from; negative ones are turned over.
struct MouthShape {
    double upper = 0;
    double lower = 0;
};

/// The shape for a mouth as far open: positive open, near 0 a smile, negative a frown.
MouthShape mouthShape(double open);

/// What a mascot's face shows in one frame. Lengths are pixels.
struct AtomFace {
    Colour eyeColour;
    std::int32_t eyeSize = 0; ///< radius; 0 and below is a closed eye
    AtomGaze gaze{};
    double mouthOpen = 0;
    std::int32_t mouthSize = 1; ///< half of its width

    /// In a head of 100 by 100 pixels.
    void paint(DrawDevice& device) const;

private:
    void paintEyes(DrawDevice& device) const;
    void paintMouth(DrawDevice& device) const;
};

} // namespace phial
