#include "qt/desktop/WindowShape.h"

#include "qt/desktop/DesktopColours.h"
#include "qt/desktop/PictureImage.h"

#include <QGuiApplication>
#include <QImage>
#include <QLibrary>
#include <QPainter>
#include <QRegion>
#include <QWidget>

#include <algorithm>
#include <vector>

namespace phial::qt
{

namespace
{

bool liesOn(const QRect& above, const QRect& below)
{
    return above.left() == below.left() && above.right() == below.right() &&
           above.bottom() + 1 == below.top();
}

// The runs of a row for which the condition holds, each one pixel high.
template <typename Condition>
std::vector<QRect> runsOf(const QImage& image, int y, Condition condition)
{
    const auto* row = reinterpret_cast<const QRgb*>(image.constScanLine(y));
    std::vector<QRect> runs;
    for (int x = 0; x < image.width(); ++x) {
        const int start = x;
        while (x < image.width() && condition(row[x])) {
            ++x;
        }
        if (x > start) {
            runs.emplace_back(start, y, x - start, 1);
        }
    }
    return runs;
}

// The pixels for which the condition holds, as a region. It takes bands from above to below; rows with the
// same runs make one band.
template <typename Condition>
QRegion regionWhere(const QImage& image, Condition condition)
{
    std::vector<QRect> bands;
    std::size_t last = 0; // where the band above the row begins
    for (int y = 0; y < image.height(); ++y) {
        const std::vector<QRect> runs = runsOf(image, y, condition);
        const bool goesOn = !runs.empty() && std::equal(bands.begin() + static_cast<std::ptrdiff_t>(last),
                                                        bands.end(), runs.begin(), runs.end(), liesOn);
        if (goesOn) {
            std::for_each(bands.begin() + static_cast<std::ptrdiff_t>(last), bands.end(),
                          [y](QRect& run) { run.setBottom(y); });
        } else {
            last = bands.size();
            bands.insert(bands.end(), runs.begin(), runs.end());
        }
    }
    QRegion region;
    region.setRects(bands.data(), static_cast<int>(bands.size()));
    return region;
}

constexpr int LeastOfSoft = 1;
constexpr int LeastOfHard = 128;

QRegion solidByColour(QWidget& inside, Colour key)
{
    QImage shown(inside.size(), QImage::Format_ARGB32_Premultiplied);
    shown.fill(Qt::transparent);
    inside.render(&shown, QPoint(), QRegion(), QWidget::DrawChildren);
    return regionWhere(shown, [hole = toQColor(key).rgb()](QRgb pixel) {
        return pixel != hole && qAlpha(pixel) >= LeastOfSoft;
    });
}

QRegion solidByPicture(const QWidget& inside, const Picture& mask, int leastAlpha)
{
    QImage shown(inside.size(), QImage::Format_ARGB32_Premultiplied);
    shown.fill(Qt::transparent);
    QPainter painter(&shown);
    painter.drawImage(QPointF(0, 0), imageForPainting(mask));
    painter.end();
    return regionWhere(shown, [leastAlpha](QRgb pixel) { return qAlpha(pixel) >= leastAlpha; });
}

#if QT_CONFIG(xcb)
// Under X11 a compositing manager owns a selection of the screen. Its functions are in the process when the
// toolkit runs on it.
bool isX11Composed(Display& display)
{
    using InternAtom = unsigned long (*)(Display*, const char*, int);
    using SelectionOwner = unsigned long (*)(Display*, unsigned long);
    QLibrary library(QStringLiteral("X11"), 6);
    const auto internAtom = reinterpret_cast<InternAtom>(library.resolve("XInternAtom"));
    const auto selectionOwner = reinterpret_cast<SelectionOwner>(library.resolve("XGetSelectionOwner"));
    if (!internAtom || !selectionOwner) {
        return false;
    }
    return selectionOwner(&display, internAtom(&display, "_NET_WM_CM_S0", 0)) != 0;
}
#endif

} // namespace

bool hasHoles(const Translucency& translucency)
{
    return translucency.colourKey || translucency.mask;
}

bool desktopComposes()
{
#if QT_CONFIG(xcb)
    const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    if (x11 && x11->display()) {
        return isX11Composed(*x11->display());
    }
#endif
    return true;
}

void applyShape(QWidget& window, QWidget& inside, const Translucency& translucency, bool soft)
{
    QRegion solid;
    if (translucency.mask) {
        solid = solidByPicture(inside, *translucency.mask, soft ? LeastOfSoft : LeastOfHard);
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

QImage hardened(const Picture& picture)
{
    QImage image = imageCopy(picture).convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < image.height(); ++y) {
        auto* row = reinterpret_cast<QRgb*>(image.scanLine(y));
        std::transform(row, row + image.width(), row, [](QRgb pixel) {
            return qAlpha(pixel) >= LeastOfHard ? pixel | ~QRgb(RGB_MASK) : 0U;
        });
    }
    return image;
}

} // namespace phial::qt
