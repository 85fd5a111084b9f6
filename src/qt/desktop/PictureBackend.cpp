#include "qt/desktop/PictureBackend.h"

#include "qt/desktop/DesktopColours.h"
#include "qt/desktop/GradientImage.h"
#include "qt/desktop/PictureImage.h"

#include <algorithm>
#include <cmath>

namespace phial::qt
{

namespace
{

constexpr unsigned HalfCovered = 128;
constexpr int Opaque = 255;

QImage writableImageOf(Picture& picture)
{
    return {reinterpret_cast<uchar*>(picture.pixels().data()), static_cast<int>(picture.columns()),
            static_cast<int>(picture.rows()),
            static_cast<qsizetype>(picture.columns()) * static_cast<qsizetype>(sizeof(std::uint32_t)),
            QImage::Format_ARGB32_Premultiplied};
}

} // namespace

PictureBackend::PictureBackend(PicturePtr picture, std::shared_ptr<TextMetrics> metrics)
    : PainterBackend(picture->size(), picture->pixelRatio(), std::move(metrics)),
      picture_(std::move(picture)), image_(writableImageOf(*picture_))
{
    begin(image_);
}

PictureBackend::~PictureBackend()
{
    painter().end();
}

std::optional<Colour> PictureBackend::pixel(PixelPoint point) const
{
    const double x = std::floor((point.x + 0.5) * ratio());
    const double y = std::floor((point.y + 0.5) * ratio());
    if (!(x >= 0 && y >= 0 && x < static_cast<double>(picture_->columns()) &&
          y < static_cast<double>(picture_->rows()))) {
        return std::nullopt;
    }
    const QRgb held = picture_->at(static_cast<std::size_t>(x), static_cast<std::size_t>(y));
    if (qAlpha(held) == 0) {
        return std::nullopt;
    }
    return fromQColor(QColor(qUnpremultiply(held)));
}

QRect PictureBackend::visible(const QRect& bounds) const
{
    const QRect inside = bounds.intersected(image_.rect());
    return clipping() ? inside.intersected(*clipping()) : inside;
}

// A view is nothing but a place in memory and a size: the same ones serve whatever picture stands there now.
QImage PictureBackend::viewOf(const Picture& picture)
{
    return views_.get({picture.pixels().data(), picture.columns(), picture.rows()},
                      [&] { return imageOf(picture); });
}

/// Row by row: most boxes are thin lines, for which the toolkit's painter takes much longer to get ready.
void PictureBackend::paintBox(const QRect& box, const QColor& colour)
{
    if (colour.alpha() != Opaque) {
        PainterBackend::paintBox(box, colour);
        return;
    }
    const QRect seen = visible(box);
    const QRgb held = colour.rgb();
    const std::span<std::uint32_t> pixels = picture_->pixels();
    for (int row = seen.top(); row <= seen.bottom(); ++row) {
        const auto first =
            static_cast<std::size_t>(row) * picture_->columns() + static_cast<std::size_t>(seen.left());
        std::ranges::fill(pixels.subspan(first, static_cast<std::size_t>(seen.width())), held);
    }
}

// The drawing goes to a layer of its own, which tells the pixels that are meant.
void PictureBackend::combine(const std::optional<BitMerge>& merge, const QRect& bounds,
                             const Drawing& drawing)
{
    const QRect area = visible(bounds);
    if (area.isEmpty()) {
        return;
    }
    QImage layer(area.size(), QImage::Format_ARGB32_Premultiplied);
    layer.fill(Qt::transparent);
    QPainter layerPainter(&layer);
    layerPainter.translate(-area.topLeft());
    drawing(layerPainter);
    layerPainter.end();

    const std::span<std::uint32_t> pixels = picture_->pixels();
    for (int row = 0; row < area.height(); ++row) {
        const auto* drawn = reinterpret_cast<const QRgb*>(layer.constScanLine(row));
        std::uint32_t* held = pixels.data() +
                              static_cast<std::size_t>(area.top() + row) * picture_->columns() +
                              static_cast<std::size_t>(area.left());
        for (int column = 0; column < area.width(); ++column, ++drawn, ++held) {
            if (static_cast<unsigned>(qAlpha(*drawn)) >= HalfCovered) {
                *held = merge ? (*merge)(*held, *drawn) : 0;
            }
        }
    }
}

/// Pixel by pixel: the toolkit wakes its threads for a pattern, which takes longer than all of the rest.
void PictureBackend::hatch(const PixelRectangle& area, Ink ink, HatchStart start)
{
    const QRect box = snapped(area);
    const QRect seen = visible(box);
    const std::uint32_t colour = ink.cut ? 0 : toQColor(ink.colour).rgba();
    const int first = start == HatchStart::AtCorner ? 0 : 1;
    const std::span<std::uint32_t> pixels = picture_->pixels();
    for (int row = seen.top(); row <= seen.bottom(); ++row) {
        const auto line = pixels.subspan(static_cast<std::size_t>(row) * picture_->columns());
        const int skipped = (seen.left() - box.left() + row - box.top() + first) % 2;
        for (int column = seen.left() + skipped; column <= seen.right(); column += 2) {
            line[static_cast<std::size_t>(column)] = colour;
        }
    }
}

void PictureBackend::gradient(const PixelRectangle& area, Colour from, Colour to, double angle, int steps)
{
    const QRect box = snapped(area);
    if (!box.isEmpty()) {
        painter().drawImage(box.topLeft(), gradientImage({box.size(), toQColor(from).rgb(),
                                                          toQColor(to).rgb(), angle, steps}));
    }
}

} // namespace phial::qt
