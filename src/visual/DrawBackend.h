#pragma once

#include "core/Colour.h"
#include "visual/Geometry.h"
#include "visual/Picture.h"
#include "visual/TextMetrics.h"

#include <memory>
#include <optional>
#include <span>

namespace phial
{

/// What a stroke or a fill leaves behind: a colour, or a hole (alpha 0). Holes are cut without smoothing.
struct Ink {
    Colour colour;
    bool cut = false;

    friend bool operator==(const Ink&, const Ink&) = default;
};

/// How what is drawn meets what is there.
enum class RasterMode : std::int32_t {
    Paint, ///< lies upon it; what is see-through in a picture lets it through
    And,   ///< bit by bit on the colours, see BitMerge
    Xor,   ///< the same
    Copy,  ///< a picture takes its place, see-through parts included; ink is painted
};

/// The mode, and for And and Xor the colour as which a hole counts. Without one holes stay holes.
struct Raster {
    RasterMode mode = RasterMode::Paint;
    std::optional<Colour> hole;

    friend bool operator==(const Raster&, const Raster&) = default;
};

/// The pen of an outline; `width` in logical pixels, at least 1.
struct Stroke {
    Ink ink;
    double width = 1;
    Raster raster;

    friend bool operator==(const Stroke&, const Stroke&) = default;
};

/// The brush of an area.
struct Fill {
    Ink ink;
    Raster raster;

    friend bool operator==(const Fill&, const Fill&) = default;
};

/// A circle, an ellipse or a part of one. Angles are radians, counter-clockwise from 3 o'clock; `sweep` is
/// above 0 and at most a full turn.
struct Arc {
    enum class Shape : std::int32_t {
        Whole, ///< angles do not count
        Open,  ///< the curve alone, never filled
        Pie,   ///< the curve and the radii to both ends
    };
    PixelPoint centre; ///< names a pixel, like all points here
    double radiusX = 0;
    double radiusY = 0;
    Shape shape = Shape::Whole;
    double start = 0;
    double sweep = 0;
};

/// Which diagonals of an area a hatch takes.
enum class HatchStart : std::int32_t {
    AtCorner,     ///< that through the area's upper left pixel, and every second one from there
    BesideCorner, ///< the others
};

/// The pixel primitives under DrawDevice. All places are logical pixels and name whole pixels: the pixel (x,
/// y) covers the square from x to x + 1, and an outline runs through the middle of the pixels that it names.
/// A back end rounds to its own finer pixels. Nothing here keeps state but the clip.
class DrawBackend
{
public:
    virtual ~DrawBackend() = default;

    /// Of the surface or page, in logical pixels.
    virtual PixelSize size() const = 0;
    virtual TextMetrics& metrics() = 0;
    /// The picture that is drawn in, which goes on to change with further drawing; null for a printer.
    virtual PicturePtr picture() const = 0;

    /// Sets the whole surface.
    virtual void clear(Ink ink) = 0;
    /// The box that covers the area, its outline inside the edges. Either part can be missing.
    virtual void rectangle(const PixelRectangle& area, std::optional<Fill> fill,
                           std::optional<Stroke> outline) = 0;
    /// From the pixel `from` to the pixel `to`, which itself stays as it is.
    virtual void line(PixelPoint from, PixelPoint to, const Stroke& stroke) = 0;
    virtual void arc(const Arc& arc, std::optional<Fill> fill, std::optional<Stroke> outline) = 0;
    /// Closed by itself; at least two points.
    virtual void polygon(std::span<const PixelPoint> points, std::optional<Fill> fill,
                         std::optional<Stroke> outline) = 0;
    /// One line of text; `topLeft` is the corner of its line box. The face comes from metrics().
    virtual void text(PixelPoint topLeft, StringView text, const FontFace& face, Ink ink) = 0;
    /// The part `source` of the picture (its logical pixels) into `target`, stretched where sizes differ.
    virtual void image(const Picture& picture, const PixelRectangle& source, const PixelRectangle& target,
                       Raster raster) = 0;
    /// `steps` bands from one colour to the other; `angle` in degrees, 0 from left to right, 90 from top to
    /// bottom.
    virtual void gradient(const PixelRectangle& area, Colour from, Colour to, double angle, int steps) = 0;
    /// Every second diagonal of the area, from the upper left to the lower right, each one pixel of the
    /// device wide: half of the device's pixels at every ratio.
    virtual void hatch(const PixelRectangle& area, Ink ink, HatchStart start) = 0;

    /// The colour at a pixel; none outside and where the surface is see-through.
    virtual std::optional<Colour> pixel(PixelPoint point) const = 0;
    /// Limits all drawing to an area; none ends the limit.
    virtual void clip(std::optional<PixelRectangle> area) = 0;

    /// Ends the page and begins the next; ends the document. Nothing happens on a picture.
    virtual void newPage() {}
    virtual void endDocument() {}
};

} // namespace phial
