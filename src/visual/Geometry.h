#pragma once

#include <cstdint>

namespace phial
{

/// Geometry on screen is in logical pixels: pixels after the user's zoom, 96 to an inch, y downward. The
/// names carry the unit because the public properties of forms and controls are in scale units, which can be
/// twips.

struct PixelPoint {
    double x = 0;
    double y = 0;

    friend bool operator==(const PixelPoint&, const PixelPoint&) = default;
};

struct PixelSize {
    double width = 0;
    double height = 0;

    bool isEmpty() const { return width <= 0 || height <= 0; }
    friend bool operator==(const PixelSize&, const PixelSize&) = default;
};

struct PixelRectangle {
    double left = 0;
    double top = 0;
    double width = 0;
    double height = 0;

    double right() const { return left + width; }
    double bottom() const { return top + height; }
    bool isEmpty() const { return width <= 0 || height <= 0; }
    /// Right and bottom edges are outside.
    bool contains(PixelPoint point) const
    {
        return point.x >= left && point.x < right() && point.y >= top && point.y < bottom();
    }
    /// Whether both have a point in common; edges that touch have none.
    bool meets(const PixelRectangle& other) const
    {
        return left < other.right() && other.left < right() && top < other.bottom() && other.top < bottom();
    }
    /// The smallest one that holds both.
    PixelRectangle united(const PixelRectangle& other) const;
    friend bool operator==(const PixelRectangle&, const PixelRectangle&) = default;
};

/// Units of a drawing surface or container. Values outside the named ones raise 5 when they are set.
enum class ScaleUnit : std::int32_t {
    Twips = 1,
    Points = 2,
    Pixels = 3,
    Millimetres = 6,
    Centimetres = 7,
};

/// A pixel is 15 twips, on every screen.
inline constexpr double TwipsPerPixel = 15;

/// How many of the unit make one pixel; raises 5 for a value outside the named ones.
double unitsPerPixel(ScaleUnit unit);

/// The value in another unit.
double convertUnits(double value, ScaleUnit from, ScaleUnit to);

} // namespace phial
