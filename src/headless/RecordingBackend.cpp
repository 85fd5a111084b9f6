#include "headless/RecordingBackend.h"

#include "headless/FixedTextMetrics.h"

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

std::string modeText(RasterMode mode)
{
    switch (mode) {
    case RasterMode::And:
        return " and";
    case RasterMode::Xor:
        return " xor";
    case RasterMode::Paint:
        break;
    }
    return {};
}

std::string strokeText(const Stroke& stroke)
{
    return inkText(stroke.ink) + (stroke.width == 1 ? "" : " w" + number(stroke.width)) +
           modeText(stroke.mode);
}

std::string areaInk(const std::optional<Fill>& fill, const std::optional<Stroke>& outline)
{
    std::string text;
    if (fill) {
        text += " fill " + inkText(fill->ink) + modeText(fill->mode);
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

std::uint32_t opaque(Colour colour)
{
    const Colour plain = defaultColour(colour);
    return 0xFF000000U | (std::uint32_t{plain.red()} << 16U) | (std::uint32_t{plain.green()} << 8U) |
           plain.blue();
}

} // namespace

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
    fillPixels({0, 0, size_.width, size_.height}, ink);
}

void RecordingBackend::rectangle(const PixelRectangle& box, std::optional<Fill> fill,
                                 std::optional<Stroke> outline)
{
    lines_.push_back("box " + area(box) + areaInk(fill, outline));
    if (fill && fill->mode == RasterMode::Paint) {
        fillPixels(box, fill->ink);
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
                             const PixelRectangle& target, RasterMode mode)
{
    lines_.push_back("image " + extent(picture.Width(), picture.Height()) + " from " + area(source) + " to " +
                     area(target) + modeText(mode));
    const bool stretched = source.width != target.width || source.height != target.height;
    if (stretched || mode != RasterMode::Paint || picture.pixelRatio() != 1) {
        return;
    }
    for (double y = 0; y < source.height; ++y) {
        for (double x = 0; x < source.width; ++x) {
            const PixelPoint from{source.left + x, source.top + y};
            if (!picture.isSeeThrough(from)) {
                const auto argb =
                    picture.at(static_cast<std::size_t>(from.x), static_cast<std::size_t>(from.y));
                fillPixels({target.left + x, target.top + y, 1, 1},
                           {RGB(static_cast<int>((argb >> 16U) & 0xFFU),
                                static_cast<int>((argb >> 8U) & 0xFFU), static_cast<int>(argb & 0xFFU))});
            }
        }
    }
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

void RecordingBackend::fillPixels(const PixelRectangle& box, Ink ink)
{
    const auto edge = [](double value, std::size_t limit) {
        return static_cast<std::size_t>(std::clamp(std::round(value), 0.0, static_cast<double>(limit)));
    };
    const std::uint32_t value = ink.cut ? 0 : opaque(ink.colour);
    const auto left = edge(box.left, picture_->columns());
    const auto right = std::max(left, edge(box.right(), picture_->columns()));
    for (auto row = edge(box.top, picture_->rows()); row < edge(box.bottom(), picture_->rows()); ++row) {
        const auto start = picture_->pixels().subspan(row * picture_->columns() + left, right - left);
        std::ranges::fill(start, value);
    }
}

} // namespace phial::headless
