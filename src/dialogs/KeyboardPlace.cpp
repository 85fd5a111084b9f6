#include "dialogs/KeyboardPlace.h"

#include "core/Arithmetic.h"

#include <algorithm>
#include <cmath>

namespace phial::keyboard_place
{

namespace
{

constexpr double LeastKeyMillimetres = 9;
constexpr double FreeAtEdge = 30;
constexpr double FreeBeside = 12;
constexpr double DragBegins = 10;
constexpr double SnapsWithin = 30;
constexpr double Twip = 1 / TwipsPerPixel;

/// One direction of a place: where the keyboard begins and how long it is, and the same of the screen.
struct Span {
    double start;
    double length;

    double end() const { return start + length; }
};

double keptWithin(double start, double length, Span screen)
{
    return std::max(screen.start, std::min(start, screen.end() - FreeAtEdge - length));
}

double snapped(double start, double length, Span screen)
{
    const double corner = start < screen.start + SnapsWithin ? screen.start : start;
    return corner + length - Twip + SnapsWithin > screen.end() ? screen.end() - length : corner;
}

/// The same in both directions.
template <typename Rule>
PixelPoint inBoth(Rule rule, PixelPoint corner, PixelSize keyboard, const PixelRectangle& screen)
{
    return {rule(corner.x, keyboard.width, {screen.left, screen.width}),
            rule(corner.y, keyboard.height, {screen.top, screen.height})};
}

PixelRectangle areaAt(PixelPoint corner, PixelSize keyboard)
{
    return {corner.x, corner.y, keyboard.width, keyboard.height};
}

/// Wholly on the screen, without a margin.
double broughtWithin(double start, double length, Span screen)
{
    return std::max(screen.start, std::min(start, screen.end() - length));
}

/// Where the user has left a keyboard, as far as this one can stand there.
std::optional<PixelPoint> placeLeft(const Opening& opening, PixelSize keyboard, const PixelRectangle& screen)
{
    if (!opening.left) {
        return std::nullopt;
    }
    const PixelPoint middle{opening.left->x + keyboard.width / 2, opening.left->y + keyboard.height / 2};
    const PixelPoint corner = inBoth(broughtWithin, *opening.left, keyboard, screen);
    const auto hidden = [&](const std::optional<PixelRectangle>& area) {
        return area && areaAt(corner, keyboard).meets(*area);
    };
    const bool hides = hidden(opening.target) || hidden(opening.kept);
    return screen.contains(middle) && !hides ? std::optional(corner) : std::nullopt;
}

} // namespace

double scaleFor(const Measures& keyboard, const Sight& sight)
{
    if (sight.screen.isEmpty() || keyboard.size.isEmpty()) {
        return 1;
    }
    const double toBeHit = sight.millimetresPerPixel > 0
                               ? LeastKeyMillimetres / (keyboard.pitch * sight.millimetresPerPixel)
                               : 1;
    const double toBeRead = std::min(sight.openerZoom, sight.screen.height / 2 / keyboard.size.height);
    const double largest =
        std::min(sight.screen.width / keyboard.size.width, sight.screen.height / keyboard.size.height);
    return std::min(std::max({1.0, toBeHit, toBeRead}), largest);
}

PixelPoint centredOn(PixelPoint point, PixelSize keyboard)
{
    return {point.x - keyboard.width / 2, point.y - keyboard.height / 2};
}

PixelPoint besideTarget(const PixelRectangle& target, PixelSize keyboard, const PixelRectangle& screen)
{
    const double left = toWhole((target.left + target.right()) / 2) - keyboard.width / 2;
    const bool hasRoomBelow = target.bottom() + keyboard.height <= screen.bottom() - FreeAtEdge;
    const double above = target.top - keyboard.height;
    return {left, hasRoomBelow || above < screen.top ? target.bottom() : above};
}

std::optional<PixelPoint> besideKept(const PixelRectangle& kept, PixelSize keyboard,
                                     const PixelRectangle& screen)
{
    const double right = kept.right() + FreeBeside;
    const double left = kept.left - FreeBeside - keyboard.width;
    const bool fitsRight = right + keyboard.width <= screen.right() - FreeAtEdge;
    if (!fitsRight && left < screen.left) {
        return std::nullopt;
    }
    return keptOnScreen({fitsRight ? right : left, kept.top}, keyboard, screen);
}

PixelPoint keptOnScreen(PixelPoint corner, PixelSize keyboard, const PixelRectangle& screen)
{
    return inBoth(keptWithin, corner, keyboard, screen);
}

PixelPoint openingPlace(const Opening& opening, PixelSize keyboard, const PixelRectangle& screen)
{
    if (const auto left = placeLeft(opening, keyboard, screen)) {
        return *left;
    }
    if (const auto beside = opening.kept ? besideKept(*opening.kept, keyboard, screen) : std::nullopt) {
        return *beside;
    }
    const PixelPoint corner =
        opening.target ? besideTarget(*opening.target, keyboard, screen) : centredOn(opening.point, keyboard);
    return screen.isEmpty() ? corner : keptOnScreen(corner, keyboard, screen);
}

bool isDrag(PixelPoint from, PixelPoint to)
{
    return std::abs(to.x - from.x) > DragBegins || std::abs(to.y - from.y) > DragBegins;
}

PixelPoint draggedTo(PixelPoint corner, PixelSize keyboard, const PixelRectangle& screen)
{
    return inBoth(snapped, corner, keyboard, screen);
}

} // namespace phial::keyboard_place
