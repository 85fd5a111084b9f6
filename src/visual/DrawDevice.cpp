#include "visual/DrawDevice.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace phial
{

namespace
{

constexpr double FullTurn = 2 * std::numbers::pi;

[[noreturn]] void refuse()
{
    throw RuntimeError(ErrorNumber::InvalidArgument);
}

/// Calls `piece(text, isLast)` for each line of the text.
template <typename Piece>
void forEachLine(StringView text, Piece&& piece)
{
    while (true) {
        const auto end = text.find_first_of(u"\r\n");
        if (end == StringView::npos) {
            piece(text, true);
            return;
        }
        piece(text.substr(0, end), false);
        const bool pair = text[end] == u'\r' && end + 1 < text.size() && text[end + 1] == u'\n';
        text.remove_prefix(end + (pair ? 2 : 1));
    }
}

void checkAngle(double angle)
{
    constexpr double Tolerance = 1e-6;
    if (!(std::abs(angle) <= FullTurn + Tolerance)) {
        refuse();
    }
}

} // namespace

DrawDevice::DrawDevice(std::shared_ptr<DrawBackend> backend, DrawErrors errors)
    : backend_(std::move(backend)), errors_(errors)
{
}

DrawDevice::DrawDevice(DrawTarget& target, DrawErrors errors) : target_(&target), errors_(errors) {}

void DrawDevice::detach()
{
    if (target_ && backend_) {
        backend_.reset();
        face_ = nullptr;
        faces_ = {};
    }
}

template <typename Statement>
void DrawDevice::draw(Statement&& statement)
{
    if (errors_ == DrawErrors::Raise) {
        statement();
    } else {
        ignoringErrors(statement);
    }
}

DrawBackend& DrawDevice::backend()
{
    if (!backend_) {
        if (!target_) {
            throw RuntimeError(ErrorNumber::ObjectNotSet);
        }
        backend_ = target_->openBackend();
    }
    return *backend_;
}

DrawBackend& DrawDevice::canvas()
{
    DrawBackend& open = backend();
    if (target_) {
        target_->drawn();
    }
    return open;
}

const FontFace& DrawDevice::face()
{
    if (face_) {
        return *face_;
    }
    for (const auto& cached : faces_) {
        if (cached.face && cached.traits == font_) {
            face_ = cached.face.get();
            return *face_;
        }
    }
    auto& slot = faces_[nextFace_];
    slot = {font_, backend().metrics().face(font_)};
    nextFace_ = (nextFace_ + 1) % faces_.size();
    face_ = slot.face.get();
    return *face_;
}

void DrawDevice::FontName(StringView value)
{
    if (font_.name != value) {
        font_.name = value;
        face_ = nullptr;
    }
}

void DrawDevice::FontSize(double value)
{
    draw([&] {
        if (!(value > 0)) {
            refuse();
        }
        changeFont(font_.size, value);
    });
}

void DrawDevice::DrawWidth(double value)
{
    draw([&] {
        if (!(value >= 1)) {
            refuse();
        }
        drawWidth_ = value;
    });
}

void DrawDevice::DrawMode(phial::DrawMode value)
{
    draw([&] {
        switch (value) {
        case DrawMode::XorPen:
        case DrawMode::MaskPen:
        case DrawMode::CopyPen:
            drawMode_ = value;
            return;
        }
        refuse();
    });
}

void DrawDevice::ScaleMode(ScaleUnit value)
{
    draw([&] {
        const double perPixel = unitsPerPixel(value);
        current_ = {toPixels(current_.x) * perPixel, toPixels(current_.y) * perPixel};
        unit_ = value;
        unitsPerPixel_ = perPixel;
    });
}

double DrawDevice::ScaleWidth()
{
    double width = 0;
    draw([&] { width = fromPixels(backend().size().width); });
    return width;
}

double DrawDevice::ScaleHeight()
{
    double height = 0;
    draw([&] { height = fromPixels(backend().size().height); });
    return height;
}

Ink DrawDevice::ink(Colour colour) const
{
    return {shown(colour), maskColor_ && *maskColor_ == colour};
}

std::optional<Fill> DrawDevice::fill() const
{
    if (fillStyle_ != FillStyle::Solid) {
        return std::nullopt;
    }
    return Fill{penInk(fillColor_), raster(penMode())};
}

Stroke DrawDevice::stroke(Colour colour) const
{
    return {penInk(colour), drawWidth_, raster(penMode())};
}

// Only what is painted cuts holes; combined bits are those of the mask colour.
Ink DrawDevice::penInk(Colour colour) const
{
    return penMode() == RasterMode::Paint ? ink(colour) : Ink{shown(colour)};
}

// Paper is white, whatever the screen shows.
Colour DrawDevice::shown(Colour colour) const
{
    return paper_ ? defaultColour(colour, ColourSet::Light) : colour;
}

Raster DrawDevice::raster(RasterMode mode) const
{
    const bool bitwise = mode == RasterMode::And || mode == RasterMode::Xor;
    return {mode, bitwise ? maskColor_ : std::nullopt};
}

RasterMode DrawDevice::penMode() const
{
    switch (drawMode_) {
    case DrawMode::XorPen:
        return RasterMode::Xor;
    case DrawMode::MaskPen:
        return RasterMode::And;
    case DrawMode::CopyPen:
        break;
    }
    return RasterMode::Paint;
}

PixelRectangle DrawDevice::box(double x1, double y1, double x2, double y2) const
{
    const PixelPoint first = pixel(std::min(x1, x2), std::min(y1, y2));
    const PixelPoint last = pixel(std::max(x1, x2), std::max(y1, y2));
    return {first.x, first.y, last.x - first.x + 1, last.y - first.y + 1};
}

double DrawDevice::TextWidth(StringView text)
{
    double width = 0;
    draw([&] {
        const FontFace& measured = face();
        forEachLine(text, [&](StringView line, bool) { width = std::max(width, measured.width(line)); });
    });
    return fromPixels(width);
}

double DrawDevice::TextHeight(StringView text)
{
    double height = 0;
    draw([&] {
        const double lineHeight = face().height();
        forEachLine(text, [&](StringView, bool) { height += lineHeight; });
    });
    return fromPixels(height);
}

void DrawDevice::printOneLine(StringView line)
{
    if (line.empty()) {
        return;
    }
    const FontFace& printed = face();
    canvas().text(pixel(current_.x, current_.y), line, printed, ink(foreColor_));
    current_.x += fromPixels(printed.width(line));
}

void DrawDevice::startNextLine()
{
    current_.x = 0;
    current_.y += fromPixels(face().height());
}

void DrawDevice::Print(StringView text)
{
    draw([&] {
        forEachLine(text, [&](StringView line, bool isLast) {
            printOneLine(line);
            if (!isLast) {
                startNextLine();
            }
        });
    });
}

void DrawDevice::PrintLine(StringView text)
{
    Print(text);
    draw([&] { startNextLine(); });
}

void DrawDevice::Cls()
{
    draw([&] {
        canvas().clear(transparent_ ? Ink{shown(backColor_), true} : ink(backColor_));
        current_ = {};
    });
}

void DrawDevice::PSet(double x, double y, std::optional<Colour> colour)
{
    draw([&] {
        current_ = {x, y};
        canvas().rectangle(box(x, y, x, y), Fill{penInk(colour.value_or(foreColor_)), raster(penMode())},
                           std::nullopt);
    });
}

void DrawDevice::Line(double x1, double y1, double x2, double y2, std::optional<Colour> colour,
                      LineShape shape)
{
    draw([&] {
        const Colour pen = colour.value_or(foreColor_);
        current_ = {x2, y2};
        switch (shape) {
        case LineShape::Plain:
            canvas().line(pixel(x1, y1), pixel(x2, y2), stroke(pen));
            break;
        case LineShape::Box:
            canvas().rectangle(box(x1, y1, x2, y2), std::nullopt, stroke(pen));
            break;
        case LineShape::Filled:
            canvas().rectangle(box(x1, y1, x2, y2), Fill{penInk(pen), raster(penMode())}, std::nullopt);
            break;
        }
    });
}

void DrawDevice::Circle(double x, double y, double radius, std::optional<Colour> colour,
                        std::optional<CircleAngles> angles, double aspect)
{
    draw([&] {
        if (!(radius >= 0 && aspect >= 0)) {
            refuse();
        }
        current_ = {x, y};
        const double longRadius = toPixels(radius);
        Arc arc;
        arc.centre = pixel(x, y);
        arc.radiusX = aspect > 1 ? longRadius / aspect : longRadius;
        arc.radiusY = aspect > 1 ? longRadius : longRadius * aspect;
        paintArc(arc, colour.value_or(foreColor_), angles);
    });
}

void DrawDevice::paintArc(Arc arc, Colour colour, std::optional<CircleAngles> angles)
{
    if (!angles) {
        canvas().arc(arc, fill(), stroke(colour));
        return;
    }
    checkAngle(angles->start);
    checkAngle(angles->end);
    const bool startRadius = angles->start < 0;
    const bool endRadius = angles->end < 0;
    arc.start = std::abs(angles->start);
    arc.sweep = std::abs(angles->end) - arc.start;
    if (arc.sweep <= 0) {
        arc.sweep += FullTurn;
    }
    if (startRadius && endRadius) {
        arc.shape = Arc::Shape::Pie;
        canvas().arc(arc, fill(), stroke(colour));
        return;
    }
    arc.shape = Arc::Shape::Open;
    canvas().arc(arc, std::nullopt, stroke(colour));
    if (startRadius || endRadius) {
        const double angle = startRadius ? arc.start : arc.start + arc.sweep;
        const PixelPoint end{arc.centre.x + std::cos(angle) * arc.radiusX,
                             arc.centre.y - std::sin(angle) * arc.radiusY};
        canvas().line(arc.centre, end, stroke(colour));
    }
}

void DrawDevice::Polygon(std::span<const PixelPoint> points)
{
    draw([&] {
        if (points.size() < 2) {
            refuse();
        }
        std::vector<PixelPoint> corners;
        corners.reserve(points.size());
        for (const PixelPoint point : points) {
            corners.push_back(pixel(point.x, point.y));
        }
        canvas().polygon(corners, fill(), stroke(foreColor_));
    });
}

std::optional<Colour> DrawDevice::Point(double x, double y)
{
    std::optional<Colour> colour;
    draw([&] { colour = backend().pixel(pixel(x, y)); });
    return colour;
}

void DrawDevice::Gradient(double left, double top, double width, double height, Colour from, Colour to,
                          double angle, int steps)
{
    draw([&] {
        const PixelRectangle area{toPixels(left), toPixels(top), toPixels(width), toPixels(height)};
        if (!area.isEmpty()) {
            canvas().gradient(area, shown(from), shown(to), angle, std::max(steps, 1));
        }
    });
}

void DrawDevice::Hatch(double left, double top, double width, double height, Colour colour, HatchStart start)
{
    draw([&] {
        const PixelRectangle area{toPixels(left), toPixels(top), toPixels(width), toPixels(height)};
        if (!area.isEmpty()) {
            canvas().hatch(area, ink(colour), start);
        }
    });
}

void DrawDevice::PaintPicture(const PicturePtr& picture, double x, double y, RasterMode mode)
{
    draw([&] {
        if (!picture) {
            throw RuntimeError(ErrorNumber::ObjectNotSet);
        }
        PaintPicture(picture, x, y, fromPixels(picture->Width()), fromPixels(picture->Height()), mode);
    });
}

void DrawDevice::PaintPicture(const PicturePtr& picture, double x, double y, double width, double height,
                              RasterMode mode)
{
    draw([&] {
        if (!picture) {
            throw RuntimeError(ErrorNumber::ObjectNotSet);
        }
        PaintPicture(picture, {0, 0, picture->Width(), picture->Height()}, x, y, width, height, mode);
    });
}

void DrawDevice::PaintPicture(const PicturePtr& picture, const PixelRectangle& source, double x, double y,
                              double width, double height, RasterMode mode)
{
    draw([&] {
        if (!picture) {
            throw RuntimeError(ErrorNumber::ObjectNotSet);
        }
        const PixelRectangle target{toPixels(x), toPixels(y), toPixels(width), toPixels(height)};
        if (!target.isEmpty() && !source.isEmpty()) {
            canvas().image(*picture, source, target, raster(mode));
        }
    });
}

PicturePtr DrawDevice::Image()
{
    PicturePtr picture;
    draw([&] { picture = backend().picture(); });
    return picture;
}

void DrawDevice::clip(double x1, double y1, double x2, double y2)
{
    draw([&] { backend().clip(box(x1, y1, x2, y2)); });
}

void DrawDevice::unclip()
{
    draw([&] { backend().clip(std::nullopt); });
}

void DrawDevice::NewPage()
{
    draw([&] {
        backend().newPage();
        current_ = {};
    });
}

void DrawDevice::EndDoc()
{
    draw([&] {
        backend().endDocument();
        current_ = {};
    });
}

} // namespace phial
