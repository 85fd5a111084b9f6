#include "qt/desktop/PixelRatio.h"

#include <QGuiApplication>
#include <QPainter>
#include <QScreen>

namespace phial::qt
{

namespace
{

double fixedRatio = 0; // 0: the screens decide

} // namespace

double paintRatio(const QPainter& painter)
{
    return fixedRatio > 0 ? fixedRatio : painter.deviceTransform().m11();
}

double screenRatio()
{
    if (fixedRatio > 0) {
        return fixedRatio;
    }
    const QScreen* screen = QGuiApplication::primaryScreen();
    return screen ? screen->devicePixelRatio() : 1;
}

FixedPixelRatio::FixedPixelRatio(double ratio) : before_(fixedRatio)
{
    fixedRatio = ratio;
}

FixedPixelRatio::~FixedPixelRatio()
{
    fixedRatio = before_;
}

} // namespace phial::qt
