#include "headless/RecordingBackend.h"

#include "headless/FixedTextMetrics.h"
#include "visual/BitMerge.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>

namespace phial::headless
{

namespace
{

std::string number(double value)
{
    std::array<char, 32> digits{};
    std::snprintf(digits.data(), digits.size(), "%.3f", value);
    std::string text = digits.data();
    text.erase(text.find_last_not_of('0') + 1);
    if (text.back() == '.') {
        text.pop_back();
    }
    return text == "-0" ? "0" : text;
}

std::string point(PixelPoint value)
{
    return number(value.x) + "," + number(value.y);
}

std::string extent(double width, double height)
{
    return number(width) + "x" + number(height);
}

std::string area(const PixelRectangle& value)
{
    return point({value.left, value.top}) + " " + extent(value.width, value.height);
}

std::string colourText(Colour colour)
{
    const Colour plain = defaultColour(colour);
    std::array<char, 8> digits{};
    std::snprintf(digits.data(), digits.size(), "#%02X%02X%02X", plain.red(), plain.green(), plain.blue());
    return digits.data();
}

std::string inkText(Ink ink)
{
    return ink.cut ? "cut" : colourText(ink.colour);
}

std::string rasterText(const Raster& raster)
{
    const std::string holes = raster.hole ? " holes " + colourText(*raster.hole) : "";
    switch (raster.mode) {
    case RasterMode::And:
        return " and" + holes;
    case RasterMode::Xor:
        return " xor" + holes;
    case RasterMode::Copy:
        return " copy";
    case RasterMode::Paint:
        break;
    }
    return {};
}

std::string strokeText(const Stroke& stroke)
{
    return inkText(stroke.ink) + (stroke.width == 1 ? "" : " w" + number(stroke.width)) +
           rasterText(stroke.raster);
}

std::string areaInk(const std::optional<Fill>& fill, const std::optional<Stroke>& outline)
{
    std::string text;
    if (fill) {
        text += " fill " + inkText(fill->ink) + rasterText(fill->raster);
    }
    if (outline) {
        text += " line " + strokeText(*outline);
    }
    return text;
}

std::string fontText(const FontSpec& font)
{
    std::string text = toUtf8(font.name) + " " + number(font.size);
    text += font.bold ? " bold" : "";
    text += font.italic ? " italic" : "";
    text += font.underline ? " underline" : "";
    text += font.strikethrough ? " strikethrough" : "";
    return text;
}

std::uint32_t rgb(Colour colour)
{
    const Colour plain = defaultColour(colour);
    return (std::uint32_t{plain.red()} << 16U) | (std::uint32_t{plain.green()} << 8U) | plain.blue();
}

/// The pixel that ink leaves.
std::uint32_t pixelOf(Ink ink)
{
    return ink.cut ? 0 : 0xFF000000U | rgb(ink.colour);
}

/// The pixel at which an edge stands; one that is far away or no number stands somewhere outside.
std::ptrdiff_t edge(double value)
{
    constexpr double Far = 1e9;
    const double held = value > -Far ? std::min(value, Far) : -Far;
    return static_cast<std::ptrdiff_t>(std::round(held));
}

bool isSeeThrough(std::uint32_t pixel)
{
    return pixel >> 24U == 0;
}

/// What becomes of `held` when `drawn` meets it.
std::uint32_t met(std::uint32_t held, std::uint32_t drawn, const Raster& raster)
{
    switch (raster.mode) {
    case RasterMode::Copy:
        return drawn;
    case RasterMode::Paint:
        return isSeeThrough(drawn) ? held : drawn;
    case RasterMode::And:
    case RasterMode::Xor:
        break;
    }
    std::optional<std::uint32_t> hole;
    if (raster.hole) {
        hole = rgb(*raster.hole);
    }
    return isSeeThrough(drawn) ? held : BitMerge(raster.mode, hole)(held, drawn);
}

} // namespace

// Calls `change(held, column, row)` for each pixel of the box, columns and rows counted from the box's
// corner, and puts what it gives in the pixel's place.
template <typename Change>
void RecordingBackend::changePixels(const PixelRectangle& box, Change&& change)
{
    const std::ptrdiff_t left = edge(box.left);
    const std::ptrdiff_t top = edge(box.top);
    const auto columns = static_cast<std::ptrdiff_t>(picture_->columns());
    const auto rows = static_cast<std::ptrdiff_t>(picture_->rows());
    for (std::ptrdiff_t y = std::max<std::ptrdiff_t>(top, 0); y < std::min(edge(box.bottom()), rows); ++y) {
        for (std::ptrdiff_t x = std::max<std::ptrdiff_t>(left, 0); x < std::min(edge(box.right()), columns);
             ++x) {
            std::uint32_t& held = picture_->pixels()[static_cast<std::size_t>(y * columns + x)];
            held = change(held, static_cast<std::size_t>(x - left), static_cast<std::size_t>(y - top));
        }
    }
}

RecordingBackend::RecordingBackend(PixelSize size, std::shared_ptr<TextMetrics> metrics)
    : size_(size), metrics_(std::move(metrics)), picture_(std::make_shared<Picture>(size))
{
}

std::string RecordingBackend::text() const
{
    std::string all;
    for (const auto& line : lines_) {
        all += line + "\n";
    }
    return all;
}

void RecordingBackend::clear(Ink ink)
{
    lines_.push_back("clear " + inkText(ink));
    changePixels({0, 0, size_.width, size_.height}, [ink](auto, auto, auto) { return pixelOf(ink); });
}

void RecordingBackend::rectangle(const PixelRectangle& box, std::optional<Fill> fill,
                                 std::optional<Stroke> outline)
{
    lines_.push_back("box " + area(box) + areaInk(fill, outline));
    if (fill) {
        const std::uint32_t drawn = pixelOf(fill->ink);
        changePixels(box, [&](std::uint32_t held, auto, auto) {
            return fill->ink.cut ? drawn : met(held, drawn, fill->raster);
        });
    }
}

void RecordingBackend::line(PixelPoint from, PixelPoint to, const Stroke& stroke)
{
    lines_.push_back("line " + point(from) + " - " + point(to) + " " + strokeText(stroke));
}

void RecordingBackend::arc(const Arc& arc, std::optional<Fill> fill, std::optional<Stroke> outline)
{
    std::string line = "arc " + point(arc.centre) + " r" + extent(arc.radiusX, arc.radiusY);
    if (arc.shape != Arc::Shape::Whole) {
        line += " " + number(arc.start) + ".." + number(arc.start + arc.sweep);
        line += arc.shape == Arc::Shape::Pie ? " pie" : " open";
    }
    lines_.push_back(line + areaInk(fill, outline));
}

void RecordingBackend::polygon(std::span<const PixelPoint> points, std::optional<Fill> fill,
                               std::optional<Stroke> outline)
{
    std::string line = "polygon";
    for (const PixelPoint corner : points) {
        line += " " + point(corner);
    }
    lines_.push_back(line + areaInk(fill, outline));
}

void RecordingBackend::text(PixelPoint topLeft, StringView text, const FontFace& face, Ink ink)
{
    lines_.push_back("text " + point(topLeft) + " \"" + toUtf8(text) + "\" " + fontText(fontOfFace(face)) +
                     " " + inkText(ink));
}

void RecordingBackend::image(const Picture& picture, const PixelRectangle& source,
                             const PixelRectangle& target, Raster raster)
{
    lines_.push_back("image " + extent(picture.Width(), picture.Height()) + " from " + area(source) + " to " +
                     area(target) + rasterText(raster));
    const bool stretched = source.width != target.width || source.height != target.height;
    if (stretched || picture.pixelRatio() != 1) {
        return;
    }
    const PicturePtr before = picture.copy(); // it may be the one that is drawn in
    const auto left = static_cast<std::size_t>(std::max(0.0, std::round(source.left)));
    const auto top = static_cast<std::size_t>(std::max(0.0, std::round(source.top)));
    changePixels(target, [&](std::uint32_t held, std::size_t column, std::size_t row) {
        const bool inside = left + column < before->columns() && top + row < before->rows();
        return inside ? met(held, before->at(left + column, top + row), raster) : held;
    });
}

void RecordingBackend::hatch(const PixelRectangle& box, Ink ink, HatchStart start)
{
    lines_.push_back("hatch " + area(box) + " " + inkText(ink) +
                     (start == HatchStart::BesideCorner ? " beside" : ""));
    const std::size_t first = start == HatchStart::BesideCorner ? 1 : 0;
    changePixels(box, [=](std::uint32_t held, std::size_t column, std::size_t row) {
        return (column + row) % 2 == first ? pixelOf(ink) : held;
    });
}

void RecordingBackend::gradient(const PixelRectangle& box, Colour from, Colour to, double angle, int steps)
{
    lines_.push_back("gradient " + area(box) + " " + colourText(from) + " to " + colourText(to) + " " +
                     number(angle) + " " + std::to_string(steps));
}

std::optional<Colour> RecordingBackend::pixel(PixelPoint place) const
{
    if (picture_->isSeeThrough(place)) {
        return std::nullopt;
    }
    const auto argb = picture_->at(static_cast<std::size_t>(place.x), static_cast<std::size_t>(place.y));
    return RGB(static_cast<int>((argb >> 16U) & 0xFFU), static_cast<int>((argb >> 8U) & 0xFFU),
               static_cast<int>(argb & 0xFFU));
}

void RecordingBackend::clip(std::optional<PixelRectangle> box)
{
    lines_.push_back("clip " + (box ? area(*box) : "none"));
}

} // namespace phial::headless
