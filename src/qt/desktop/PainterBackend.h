#pragma once

#include "qt/desktop/Recent.h"
#include "visual/BitMerge.h"
#include "visual/DrawBackend.h"

#include <QBrush>
#include <QGlyphRun>
#include <QPainter>
#include <QPainterPath>
#include <QPen>
#include <QRect>

#include <functional>
#include <utility>
#include <vector>

namespace phial::qt
{

class QtFontFace;

/// The drawing primitives on the toolkit's painter, for pictures and for the printer.
///
/// The painter works in the device's own pixels. Edges of boxes and of straight lines are rounded to them, so
/// they are crisp at every ratio; everything else is smooth. What cannot be painted, holes and bitwise ink,
/// goes through `combine`.
class PainterBackend : public DrawBackend
{
public:
    PixelSize size() const override { return size_; }
    TextMetrics& metrics() override { return *metrics_; }

    void clear(Ink ink) override;
    void rectangle(const PixelRectangle& area, std::optional<Fill> fill,
                   std::optional<Stroke> outline) override;
    void line(PixelPoint from, PixelPoint to, const Stroke& stroke) override;
    void arc(const Arc& arc, std::optional<Fill> fill, std::optional<Stroke> outline) override;
    void polygon(std::span<const PixelPoint> points, std::optional<Fill> fill,
                 std::optional<Stroke> outline) override;
    void text(PixelPoint topLeft, StringView text, const FontFace& face, Ink ink) override;
    void image(const Picture& picture, const PixelRectangle& source, const PixelRectangle& target,
               Raster raster) override;
    void gradient(const PixelRectangle& area, Colour from, Colour to, double angle, int steps) override;
    void hatch(const PixelRectangle& area, Ink ink, HatchStart start) override;
    void clip(std::optional<PixelRectangle> area) override;

protected:
    using Drawing = std::function<void(QPainter&)>;

    /// `device` holds `ratio` pixels for a logical one in each direction.
    PainterBackend(PixelSize size, double ratio, std::shared_ptr<TextMetrics> metrics);

    void begin(QPaintDevice& device);
    QPainter& painter() { return painter_; }
    double ratio() const { return ratio_; }
    /// For a device that tells it only while it is painted.
    void ratio(double value) { ratio_ = value; }
    const std::optional<QRect>& clipping() const { return clip_; }
    /// The area in device pixels, with rounded edges and at least one pixel wide and high unless it is empty.
    QRect snapped(const PixelRectangle& area) const;

    /// Lets what `drawing` draws inside of `bounds` meet the surface bit by bit, or cut holes into it where
    /// there is no merge. A device without pixels ignores it.
    virtual void combine(const std::optional<BitMerge>& merge, const QRect& bounds,
                         const Drawing& drawing) = 0;
    /// The toolkit's view of the picture's memory, for one drawing.
    virtual QImage viewOf(const Picture& picture);
    /// A box of one colour, not empty, upon what is there.
    virtual void paintBox(const QRect& box, const QColor& colour);

private:
    void fillShape(const QPainterPath& path, const Fill& fill);
    void strokeShape(const QPainterPath& path, const Stroke& stroke);
    void fillBox(const QRect& box, const Ink& ink, const Raster& raster);
    QPainter& smoothPainter();
    template <typename Shape>
    void apply(const Ink& ink, const Raster& raster, const QRectF& bounds, const Shape& drawing);
    void straightLine(PixelPoint from, PixelPoint to, const Stroke& stroke);
    void straightWideLine(PixelPoint from, PixelPoint to, const Stroke& stroke);
    void slantedLine(PixelPoint from, PixelPoint to, const Stroke& stroke);
    QImage readable(const Picture& picture);
    void drawSmoothly(const QImage& image, const QRectF& part, const QRect& box);
    void drawLine(QPainter& painter, QPointF baseLine, StringView text, const QtFontFace& face);
    void drawTextLines(QPainter& painter, QPointF baseLine, double width, const QtFontFace& face);
    QPointF middle(PixelPoint point) const { return {(point.x + 0.5) * ratio_, (point.y + 0.5) * ratio_}; }

    PixelSize size_;
    double ratio_;
    std::shared_ptr<TextMetrics> metrics_;
    QPainter painter_;
    std::optional<QRect> clip_;
    QPainterPath path_; ///< of the shape at hand; kept for its memory
    Recent<QRgb, QBrush> brushes_;
    Recent<std::pair<QRgb, double>, QPen> pens_; ///< by colour and width
    QGlyphRun run_;
    std::vector<QPointF> scaledPlaces_;
};

} // namespace phial::qt
