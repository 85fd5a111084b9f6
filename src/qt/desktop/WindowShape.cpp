#include "qt/desktop/WindowShape.h"

#include "qt/desktop/DesktopColours.h"
#include "qt/desktop/PictureImage.h"

#include <QBitmap>
#include <QImage>
#include <QPainter>
#include <QWidget>

namespace phial::qt
{

namespace
{

QBitmap solidByColour(QWidget& inside, Colour key)
{
    QImage shown(inside.size(), QImage::Format_RGB32);
    shown.fill(toQColor(key));
    inside.render(&shown, QPoint(), QRegion(), QWidget::DrawWindowBackground | QWidget::DrawChildren);
    return QBitmap::fromImage(shown.createMaskFromColor(toQColor(key).rgb(), Qt::MaskOutColor));
}

QBitmap solidByPicture(const QWidget& inside, const Picture& mask)
{
    QImage shown(inside.size(), QImage::Format_ARGB32_Premultiplied);
    shown.fill(Qt::transparent);
    QPainter painter(&shown);
    painter.drawImage(QPointF(0, 0), imageCopy(mask));
    painter.end();
    return QBitmap::fromImage(shown.createAlphaMask());
}

} // namespace

void applyShape(QWidget& window, QWidget& inside, const Translucency& translucency)
{
    QBitmap solid;
    if (translucency.mask) {
        solid = solidByPicture(inside, *translucency.mask);
    } else if (translucency.colourKey) {
        solid = solidByColour(inside, *translucency.colourKey);
    }
    if (solid.isNull()) {
        window.clearMask();
        return;
    }
    QRegion region(solid);
    region.translate(inside.pos());
    window.setMask(region.united(QRect(0, 0, window.width(), inside.y()))); // the menu bar stays
}

} // namespace phial::qt
