#include "qt/desktop/PainterBackend.h"

#include "qt/desktop/DesktopColours.h"
#include "qt/desktop/GradientImage.h"
#include "qt/desktop/PictureImage.h"
#include "qt/desktop/QtFontFace.h"

#include <QTextLayout>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace phial::qt
{

namespace
{

constexpr double DegreesPerRadian = 180 / std::numbers::pi;
constexpr double WidestThinLine = 1.5;   // wider ones reach beyond their ends by half of their width
constexpr double WidestSquareLine = 2.5; // where that cannot be told from round ends

QPen penOf(const Stroke& stroke, double ratio)
{
    const bool round = stroke.width > WidestThinLine;
    return {toQColor(stroke.ink.colour), stroke.width * ratio, Qt::SolidLine,
            round ? Qt::RoundCap : Qt::FlatCap, round ? Qt::RoundJoin : Qt::MiterJoin};
}

// Angles run counter-clockwise from 3 o'clock on both sides.
void addTo(QPainterPath& path, const Arc& arc, QPointF centre, double ratio)
{
    const QRectF box(centre.x() - arc.radiusX * ratio, centre.y() - arc.radiusY * ratio,
                     2 * arc.radiusX * ratio, 2 * arc.radiusY * ratio);
    const double start = arc.start * DegreesPerRadian;
    const double sweep = arc.sweep * DegreesPerRadian;
    switch (arc.shape) {
    case Arc::Shape::Whole:
        path.addEllipse(box);
        break;
    case Arc::Shape::Open:
        path.arcMoveTo(box, start);
        path.arcTo(box, start, sweep);
        break;
    case Arc::Shape::Pie:
        path.moveTo(centre);
        path.arcTo(box, start, sweep);
        path.closeSubpath();
        break;
    }
}

// None where ink and pictures are simply painted.
std::optional<BitMerge> mergeOf(const Raster& raster)
{
    if (raster.mode != RasterMode::And && raster.mode != RasterMode::Xor) {
        return std::nullopt;
    }
    std::optional<std::uint32_t> hole;
    if (raster.hole) {
        hole = toQColor(*raster.hole).rgb() & RGB_MASK;
    }
    return BitMerge(raster.mode, hole);
}

/// The part of a picture's own pixels that is drawn into the box. One that is drawn in its own size begins
/// and ends at the pixels where drawing there would.
QRectF heldPart(const Picture& picture, const PixelRectangle& part, bool isOwnSize, const QSize& box)
{
    const double ratio = picture.pixelRatio();
    const QPointF corner(part.left * ratio, part.top * ratio);
    if (isOwnSize) {
        return {QPointF(std::round(corner.x()), std::round(corner.y())), QSizeF(box)};
    }
    return {corner, QSizeF(part.width * ratio, part.height * ratio)};
}

// A painter that makes a picture smaller than half leaves pixels out.
QImage averaged(const QImage& image, const QRectF& part, const QSize& size)
{
    return image.copy(part.toAlignedRect()).scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

// Two by two pixels, of which one diagonal is see-through.
QBrush hatchBrush(const QColor& colour, HatchStart start)
{
    QImage pattern(2, 2, QImage::Format_ARGB32_Premultiplied);
    pattern.fill(Qt::transparent);
    const int first = start == HatchStart::AtCorner ? 0 : 1;
    pattern.setPixelColor(first, 0, colour);
    pattern.setPixelColor(1 - first, 1, colour);
    return {pattern};
}

} // namespace

PainterBackend::PainterBackend(PixelSize size, double ratio, std::shared_ptr<TextMetrics> metrics)
    : size_(size), ratio_(ratio), metrics_(std::move(metrics))
{
}

void PainterBackend::begin(QPaintDevice& device)
{
    if (painter_.begin(&device)) {
        painter_.setRenderHint(QPainter::TextAntialiasing);
    }
}

QRect PainterBackend::snapped(const PixelRectangle& area) const
{
    if (area.isEmpty()) {
        return {};
    }
    const auto device = [this](double value) { return static_cast<int>(std::lround(value * ratio_)); };
    const QPoint corner(device(area.left), device(area.top));
    const QSize size(std::max(1, device(area.right()) - corner.x()),
                     std::max(1, device(area.bottom()) - corner.y()));
    return {corner, size};
}

void PainterBackend::clip(std::optional<PixelRectangle> area)
{
    clip_ = area ? std::optional<QRect>(snapped(*area)) : std::nullopt;
    if (clip_) {
        painter_.setClipRect(*clip_);
    } else {
        painter_.setClipping(false);
    }
}

// Smooth shapes are painted; holes and bitwise ink take the same shape without smoothing.
template <typename Shape>
void PainterBackend::apply(const Ink& ink, const Raster& raster, const QRectF& bounds, const Shape& drawing)
{
    const std::optional<BitMerge> merge = mergeOf(raster);
    if (!ink.cut && !merge) {
        drawing(smoothPainter());
        return;
    }
    combine(merge, bounds.toAlignedRect().adjusted(-1, -1, 1, 1), std::cref(drawing));
}

QPainter& PainterBackend::smoothPainter()
{
    if (!painter_.testRenderHint(QPainter::Antialiasing)) { // setting it costs as much as a small box
        painter_.setRenderHint(QPainter::Antialiasing);
    }
    return painter_;
}

void PainterBackend::fillShape(const QPainterPath& path, const Fill& fill)
{
    const QColor colour = toQColor(fill.ink.colour);
    const QBrush& brush = brushes_.get(colour.rgba(), [&] { return QBrush(colour); });
    apply(fill.ink, fill.raster, path.boundingRect(),
          [&](QPainter& painter) { painter.fillPath(path, brush); });
}

void PainterBackend::strokeShape(const QPainterPath& path, const Stroke& stroke)
{
    const double margin = stroke.width * ratio_;
    const QPen& pen =
        pens_.get({toQColor(stroke.ink.colour).rgba(), stroke.width}, [&] { return penOf(stroke, ratio_); });
    apply(stroke.ink, stroke.raster, path.boundingRect().adjusted(-margin, -margin, margin, margin),
          [&](QPainter& painter) { painter.strokePath(path, pen); });
}

void PainterBackend::fillBox(const QRect& box, const Ink& ink, const Raster& raster)
{
    if (box.isEmpty()) {
        return;
    }
    const QColor colour = toQColor(ink.colour);
    const std::optional<BitMerge> merge = mergeOf(raster);
    if (!ink.cut && !merge) {
        paintBox(box, colour);
        return;
    }
    combine(merge, box, [&](QPainter& painter) { painter.fillRect(box, colour); });
}

void PainterBackend::paintBox(const QRect& box, const QColor& colour)
{
    smoothPainter().fillRect(box, colour);
}

void PainterBackend::clear(Ink ink)
{
    painter_.setCompositionMode(QPainter::CompositionMode_Source);
    painter_.fillRect(painter_.viewport(), ink.cut ? QColor(Qt::transparent) : toQColor(ink.colour));
    painter_.setCompositionMode(QPainter::CompositionMode_SourceOver);
}

void PainterBackend::rectangle(const PixelRectangle& area, std::optional<Fill> fill,
                               std::optional<Stroke> outline)
{
    const QRect box = snapped(area);
    if (fill) {
        fillBox(box, fill->ink, fill->raster);
    }
    if (!outline) {
        return;
    }
    const int pen = std::max(1, static_cast<int>(std::lround(outline->width * ratio_)));
    const QRect inner = box.adjusted(pen, pen, -pen, -pen);
    if (!inner.isValid()) {
        fillBox(box, outline->ink, outline->raster);
        return;
    }
    const QRect edges[] = {
        {box.left(), box.top(), box.width(), pen},
        {box.left(), inner.bottom() + 1, box.width(), pen},
        {box.left(), inner.top(), pen, inner.height()},
        {inner.right() + 1, inner.top(), pen, inner.height()},
    };
    for (const QRect& edge : edges) {
        fillBox(edge, outline->ink, outline->raster);
    }
}

void PainterBackend::line(PixelPoint from, PixelPoint to, const Stroke& stroke)
{
    if (from == to) {
        return;
    }
    const bool straight = from.x == to.x || from.y == to.y;
    if (straight && stroke.width <= WidestThinLine) {
        straightLine(from, to, stroke);
    } else if (straight && stroke.width <= WidestSquareLine) {
        straightWideLine(from, to, stroke);
    } else {
        slantedLine(from, to, stroke);
    }
}

void PainterBackend::straightLine(PixelPoint from, PixelPoint to, const Stroke& stroke)
{
    // From the first pixel up to but without the last one, in either direction.
    const auto span = [](double first, double last) {
        return first <= last ? std::pair(first, last - first) : std::pair(last + 1, first - last);
    };
    PixelRectangle area{from.x, from.y, 1, 1};
    if (from.y == to.y) {
        std::tie(area.left, area.width) = span(from.x, to.x);
    } else {
        std::tie(area.top, area.height) = span(from.y, to.y);
    }
    fillBox(snapped(area), stroke.ink, stroke.raster);
}

// Where the width cannot lie evenly around the middle, the greater part is to the left and above.
void PainterBackend::straightWideLine(PixelPoint from, PixelPoint to, const Stroke& stroke)
{
    const int pen = std::max(1, static_cast<int>(std::lround(stroke.width * ratio_)));
    const auto corner = [&](double x, double y) {
        const QPointF centre = middle({x, y});
        return QPoint(static_cast<int>(std::floor(centre.x() - 0.5 * pen)),
                      static_cast<int>(std::floor(centre.y() - 0.5 * pen)));
    };
    const QPoint first = corner(std::min(from.x, to.x), std::min(from.y, to.y));
    const QPoint last = corner(std::max(from.x, to.x), std::max(from.y, to.y));
    fillBox({first, last + QPoint(pen - 1, pen - 1)}, stroke.ink, stroke.raster);
}

// A thin line is moved back by half a pixel, so that it covers its first pixel and leaves out its last one. A
// wide one has round ends on both.
void PainterBackend::slantedLine(PixelPoint from, PixelPoint to, const Stroke& stroke)
{
    QPointF start = middle(from);
    QPointF end = middle(to);
    if (stroke.width <= WidestThinLine) {
        const QPointF way = end - start;
        const QPointF half = way * (0.5 * ratio_ / std::max(std::abs(way.x()), std::abs(way.y())));
        start -= half;
        end -= half;
    }
    path_.clear();
    path_.moveTo(start);
    path_.lineTo(end);
    strokeShape(path_, stroke);
}

void PainterBackend::arc(const Arc& arc, std::optional<Fill> fill, std::optional<Stroke> outline)
{
    path_.clear();
    addTo(path_, arc, middle(arc.centre), ratio_);
    if (fill && arc.shape != Arc::Shape::Open) {
        fillShape(path_, *fill);
    }
    if (outline) {
        strokeShape(path_, *outline);
    }
}

void PainterBackend::polygon(std::span<const PixelPoint> points, std::optional<Fill> fill,
                             std::optional<Stroke> outline)
{
    if (points.size() < 2) {
        return;
    }
    path_.clear();
    path_.moveTo(middle(points.front()));
    for (const PixelPoint& point : points.subspan(1)) {
        path_.lineTo(middle(point));
    }
    path_.closeSubpath();
    if (fill) {
        fillShape(path_, *fill);
    }
    if (outline) {
        strokeShape(path_, *outline);
    }
}

void PainterBackend::text(PixelPoint topLeft, StringView text, const FontFace& face, Ink ink)
{
    const auto& known =
        static_cast<const QtFontFace&>(face); // faces of our own metrics only, see TextMetrics
    const QPointF baseLine(topLeft.x * ratio_, std::round((topLeft.y + known.ascent()) * ratio_));
    const auto drawing = [&](QPainter& painter) {
        painter.setPen(toQColor(ink.colour));
        drawLine(painter, baseLine, text, known);
    };
    if (!ink.cut) {
        drawing(painter_);
        return;
    }
    // Slanted letters reach out of their boxes.
    const double reach = known.height() * ratio_;
    const QRectF box(topLeft.x * ratio_, topLeft.y * ratio_, known.width(text) * ratio_, reach);
    combine(std::nullopt, box.adjusted(-reach, -reach, reach, reach).toAlignedRect(), std::cref(drawing));
}

void PainterBackend::drawLine(QPainter& painter, QPointF baseLine, StringView text, const QtFontFace& face)
{
    if (QtFontFace::needsShaping(text)) {
        QTextLayout layout;
        face.layOut(layout, text, ratio_);
        layout.draw(&painter, baseLine - QPointF(0, layout.lineAt(0).ascent()));
    } else {
        for (const GlyphPiece& piece : face.pieces(text)) {
            scaledPlaces_.assign(piece.places.begin(), piece.places.end());
            for (QPointF& place : scaledPlaces_) {
                place *= ratio_;
            }
            run_.setRawFont(face.rawFont(piece.font, ratio_));
            run_.setRawData(piece.glyphs.data(), scaledPlaces_.data(), static_cast<int>(piece.glyphs.size()));
            painter.drawGlyphRun(baseLine, run_);
        }
    }
    if (face.traits().underline || face.traits().strikethrough) {
        drawTextLines(painter, baseLine, face.width(text) * ratio_, face);
    }
}

void PainterBackend::drawTextLines(QPainter& painter, QPointF baseLine, double width, const QtFontFace& face)
{
    const auto draw = [&](double below) {
        const double thickness = std::max(1.0, std::round(face.lineThickness() * ratio_));
        const QRectF box(baseLine.x(), std::round(baseLine.y() + below * ratio_), width, thickness);
        painter.fillRect(box.toRect(), painter.pen().color());
    };
    if (face.traits().underline) {
        draw(face.underlinePosition());
    }
    if (face.traits().strikethrough) {
        draw(face.strikeOutPosition());
    }
}

void PainterBackend::image(const Picture& picture, const PixelRectangle& source, const PixelRectangle& target,
                           Raster raster)
{
    const QRect box = snapped(target);
    const auto held = [&](const Picture& version) {
        const bool isOwnSize =
            source.width == target.width && source.height == target.height && version.pixelRatio() == ratio_;
        return heldPart(version, source, isOwnSize, box.size());
    };
    if (const auto merge = mergeOf(raster)) {
        const auto drawing = [&](QPainter& painter) {
            painter.drawImage(QRectF(box), readable(picture), held(picture));
        };
        combine(merge, box, std::cref(drawing));
        return;
    }
    const double density = std::max(box.width() / source.width, box.height() / source.height);
    const Picture& version = picture.versionFor(density);
    if (raster.mode == RasterMode::Copy) {
        painter_.setCompositionMode(QPainter::CompositionMode_Source);
    }
    drawSmoothly(readable(version), held(version), box);
    painter_.setCompositionMode(QPainter::CompositionMode_SourceOver);
}

// A picture that is drawn in itself is copied first.
QImage PainterBackend::readable(const Picture& picture)
{
    const bool own = this->picture().get() == &picture;
    return own ? viewOf(picture).copy() : viewOf(picture);
}

// A new view each time: the printer takes one view drawn twice for one picture, which may have changed.
QImage PainterBackend::viewOf(const Picture& picture)
{
    return imageOf(picture);
}

void PainterBackend::drawSmoothly(const QImage& image, const QRectF& part, const QRect& box)
{
    if (box.size() == image.size() && part == QRectF(image.rect())) {
        painter_.drawImage(box.topLeft(), image);
    } else if (part.width() > 2 * box.width() || part.height() > 2 * box.height()) {
        painter_.drawImage(box, averaged(image, part, box.size()));
    } else {
        painter_.setRenderHint(QPainter::SmoothPixmapTransform, true);
        painter_.drawImage(QRectF(box), image, part);
    }
}

void PainterBackend::hatch(const PixelRectangle& area, Ink ink, HatchStart start)
{
    const QRect box = snapped(area);
    apply(ink, {}, box, [&](QPainter& painter) {
        painter.setBrushOrigin(box.topLeft());
        painter.fillRect(box, hatchBrush(toQColor(ink.colour), start));
        painter.setBrushOrigin(0, 0);
    });
}

void PainterBackend::gradient(const PixelRectangle& area, Colour from, Colour to, double angle, int steps)
{
    const QRect box = snapped(area);
    if (box.isEmpty()) {
        return;
    }
    const GradientBands bands({box.size(), toQColor(from).rgb(), toQColor(to).rgb(), angle, steps});
    const double side = box.width() + box.height();
    const QPointF middle = QRectF(box).center();
    const QPointF along = bands.direction();
    const QPointF across(-along.y() * side, along.x() * side);

    painter_.save();
    painter_.setClipRect(box, clip_ ? Qt::IntersectClip : Qt::ReplaceClip);
    painter_.setRenderHint(QPainter::Antialiasing, false);
    painter_.setPen(Qt::NoPen);
    for (int band = 0; band < bands.count(); ++band) {
        const QPointF near = middle + along * bands.start(band);
        const QPointF far = middle + along * (band + 1 == bands.count() ? side : bands.start(band + 1));
        painter_.setBrush(QColor(bands.colour(band)));
        painter_.drawPolygon(QPolygonF({near - across, near + across, far + across, far - across}));
    }
    painter_.restore();
}

} // namespace phial::qt
