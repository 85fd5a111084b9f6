#include "qt/desktop/WindowShape.h"

#include "qt/desktop/DesktopColours.h"
#include "qt/desktop/PictureImage.h"

#include <QImage>
#include <QPainter>
#include <QRegion>
#include <QWidget>

#include <vector>

namespace phial::qt
{

namespace
{

// The runs of pixels for which the condition holds, as a region.
template <typename Condition>
QRegion regionWhere(const QImage& image, Condition condition)
{
    std::vector<QRect> runs;
    for (int y = 0; y < image.height(); ++y) {
        const auto* row = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            const int start = x;
            while (x < image.width() && condition(row[x])) {
                ++x;
            }
            if (x > start) {
                runs.emplace_back(start, y, x - start, 1);
            }
        }
    }
    QRegion region;
    region.setRects(runs.data(), static_cast<int>(runs.size()));
    return region;
}

QRegion solidByColour(QWidget& inside, Colour key)
{
    QImage shown(inside.size(), QImage::Format_ARGB32_Premultiplied);
    inside.render(&shown);
    return regionWhere(shown, [hole = toQColor(key).rgb()](QRgb pixel) { return pixel != hole; });
}

QRegion solidByPicture(const QWidget& inside, const Picture& mask)
{
    QImage shown(inside.size(), QImage::Format_ARGB32_Premultiplied);
    shown.fill(Qt::transparent);
    QPainter painter(&shown);
    painter.drawImage(QPointF(0, 0), imageForPainting(mask));
    painter.end();
    return regionWhere(shown, [](QRgb pixel) { return qAlpha(pixel) > 0; });
}

} // namespace

void applyShape(QWidget& window, QWidget& inside, const Translucency& translucency)
{
    QRegion solid;
    if (translucency.mask) {
        solid = solidByPicture(inside, *translucency.mask);
    } else if (translucency.colourKey) {
        solid = solidByColour(inside, *translucency.colourKey);
    }
    if (solid.isEmpty()) {
        window.clearMask(); // a window without any pixel could not be closed
        return;
    }
    solid.translate(inside.pos());
    window.setMask(solid.united(QRect(0, 0, window.width(), inside.y()))); // the menu bar stays
}

} // namespace phial::qt
