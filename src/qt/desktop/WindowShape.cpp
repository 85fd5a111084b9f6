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

/// Pixels of a row, from `start` to before `end`.
struct Run {
    int start;
    int end;
};

// Without leaving early, and counting in numbers as wide as a pixel, so that the compiler looks at many
// pixels at once.
template <typename Condition>
bool holdsAlong(const QRgb* row, int start, int end, Condition condition)
{
    QRgb failing = 0;
    for (int x = start; x < end; ++x) {
        failing |= condition(row[x]) ? 0U : 1U;
    }
    return failing == 0;
}

// Whether the condition holds in the runs and nowhere else in the row.
template <typename Condition>
bool holdsInRuns(const QRgb* row, int width, const std::vector<Run>& runs, Condition condition)
{
    int beyond = 0;
    for (const Run& run : runs) {
        const auto fails = [condition](QRgb pixel) { return !condition(pixel); };
        if (!holdsAlong(row, beyond, run.start, fails) || !holdsAlong(row, run.start, run.end, condition)) {
            return false;
        }
        beyond = run.end;
    }
    return holdsAlong(row, beyond, width, [condition](QRgb pixel) { return !condition(pixel); });
}

template <typename Condition>
std::vector<Run> runsOf(const QRgb* row, int width, Condition condition)
{
    std::vector<Run> runs;
    for (int x = 0; x < width; ++x) {
        const int start = x;
        while (x < width && condition(row[x])) {
            ++x;
        }
        if (x > start) {
            runs.push_back({start, x});
        }
    }
    return runs;
}

// The pixels within that size for which the condition holds, as a region. It takes bands from above to below;
// rows with the same runs make one band, and most rows are like the one above.
template <typename Condition>
QRegion regionWhere(const QImage& image, QSize size, Condition condition)
{
    const int width = std::min(size.width(), image.width());
    const int height = std::min(size.height(), image.height());
    std::vector<QRect> bands;
    std::vector<Run> runs;
    int top = 0; // of the present band
    const auto endBand = [&](int bottom) {
        for (const Run& run : runs) {
            bands.emplace_back(QPoint(run.start, top), QPoint(run.end - 1, bottom - 1));
        }
        top = bottom;
    };
    for (int y = 0; y < height; ++y) {
        const auto* row = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        if (!holdsInRuns(row, width, runs, condition)) {
            endBand(y);
            runs = runsOf(row, width, condition);
        }
    }
    endBand(height);
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
    return regionWhere(shown, shown.size(), [hole = toQColor(key).rgb()](QRgb pixel) {
        return pixel != hole && qAlpha(pixel) >= LeastOfSoft;
    });
}

QRegion solidByPicture(const QWidget& inside, const Picture& mask, int leastAlpha)
{
    const auto isSolid = [leastAlpha](QRgb pixel) { return qAlpha(pixel) >= leastAlpha; };
    if (mask.pixelRatio() == 1) {
        return regionWhere(imageOf(mask), inside.size(), isSolid);
    }
    QImage shown(inside.size(), QImage::Format_ARGB32_Premultiplied);
    shown.fill(Qt::transparent);
    QPainter painter(&shown);
    painter.drawImage(QPointF(0, 0), imageForPainting(mask));
    painter.end();
    return regionWhere(shown, shown.size(), isSolid);
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
