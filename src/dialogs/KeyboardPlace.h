#pragma once

#include "visual/Geometry.h"

#include <optional>

/// Where a keyboard stands on the desktop, how large it is, and how it is dragged. All lengths are pixels of
/// the desktop; a screen is the part of the desktop that it shows.
namespace phial::keyboard_place
{

/// A keyboard as it was designed.
struct Measures {
    PixelSize size;   ///< of the whole window
    double pitch = 0; ///< from one key to the next
};

/// The screen, and from where it is read.
struct Sight {
    PixelRectangle screen;
    double millimetresPerPixel = 0;
    double openerZoom = 1; ///< of the form over which the keyboard opens
};

/// How much larger than designed the keyboard is shown. Keys are at least 9 mm from one to the next, and it
/// grows with the zoom of the form over which it opens as long as half of the screen's height stays free; but
/// it is never larger than the screen. Without a screen: 1.
double scaleFor(const Measures& keyboard, const Sight& sight);

/// The corner of a keyboard whose middle is at the point.
PixelPoint centredOn(PixelPoint point, PixelSize keyboard);

/// The corner of a keyboard that stands under the target, in its middle; above it where there is no room
/// below but above there is.
PixelPoint besideTarget(const PixelRectangle& target, PixelSize keyboard, const PixelRectangle& screen);

/// The corner of a keyboard that stands at the right of what is kept in sight, or at its left where there is
/// room only there; none where there is room on neither side. Their tops are on a line, as far as the screen
/// allows.
std::optional<PixelPoint> besideKept(const PixelRectangle& kept, PixelSize keyboard,
                                     const PixelRectangle& screen);

/// The corner of one that is to stand there: 30 pixels stay free at the right and at the bottom of the
/// screen, and before that the left and the top edge are in sight.
PixelPoint keptOnScreen(PixelPoint corner, PixelSize keyboard, const PixelRectangle& screen);

/// What is known when a keyboard opens.
struct Opening {
    std::optional<PixelRectangle> target; ///< none where it is not to be seen
    PixelPoint point;                     ///< the middle otherwise: the pointer
    std::optional<PixelPoint> left;       ///< the corner at which the user has left the last one
    std::optional<PixelRectangle> kept{}; ///< what is to be read while one types
};

/// The corner at which it opens. Where the user has put the last one, as far as that is on the same screen
/// and hides neither the target nor what is kept; else beside what is kept, as far as there is room; else
/// beside the target; else around the point.
PixelPoint openingPlace(const Opening& opening, PixelSize keyboard, const PixelRectangle& screen);

/// Whether a press that has come from one point to another is a drag: more than 10 pixels in either
/// direction.
bool isDrag(PixelPoint from, PixelPoint to);

/// The corner of a keyboard that is being dragged there: less than 30 pixels from an edge of the screen, and
/// beyond it, it stands at that edge.
PixelPoint draggedTo(PixelPoint corner, PixelSize keyboard, const PixelRectangle& screen);

} // namespace phial::keyboard_place
