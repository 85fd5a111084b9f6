#include "qt/desktop/WidgetBackend.h"

#include "qt/desktop/DesktopColours.h"
#include "qt/desktop/PixelRatio.h"
#include "visual/VisualHost.h"

#include <QTransform>
#include <QWidget>

#include <cmath>

namespace phial::qt
{

namespace
{

/// The session's, which outlives each painting.
std::shared_ptr<TextMetrics> sharedMetrics()
{
    return {std::shared_ptr<TextMetrics>(), &visualHost().metrics()};
}

} // namespace

WidgetBackend::WidgetBackend(QWidget& widget, PixelSize size, double zoom)
    : PainterBackend(size, zoom, sharedMetrics())
{
    begin(widget);
    const double pixels = paintRatio(painter());
    ratio(pixels * zoom);
    all_ = QRectF(QPointF(), QSizeF(widget.size()) * pixels);
    painter().scale(1 / pixels, 1 / pixels);
    // At odd ratios a widget begins between two pixels, where edges and letters would be blurred.
    const QTransform placed = painter().deviceTransform();
    painter().translate(std::round(placed.dx()) - placed.dx(), std::round(placed.dy()) - placed.dy());
}

WidgetBackend::~WidgetBackend()
{
    painter().end();
}

void WidgetBackend::clear(Ink ink)
{
    if (!ink.cut) {
        painter().fillRect(all_, toQColor(ink.colour));
    }
}

} // namespace phial::qt
