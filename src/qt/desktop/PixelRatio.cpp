#include "qt/desktop/PixelRatio.h"

#include <QGuiApplication>
#include <QPainter>
#include <QScreen>

namespace phial::qt
{

namespace
{

double fixedRatio = 0; // 0: the screens decide

constexpr double MillimetresPerInch = 25.4;
constexpr double FewestDots = 60;
constexpr double MostDots = 600;
constexpr double UsualDots = 96;

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

double millimetresPerPixel(double dotsPerInch)
{
    const bool canBe = dotsPerInch >= FewestDots && dotsPerInch <= MostDots;
    return MillimetresPerInch / (canBe ? dotsPerInch : UsualDots);
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
