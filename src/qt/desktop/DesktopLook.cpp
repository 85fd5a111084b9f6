#include "qt/desktop/DesktopLook.h"

#include "core/SessionState.h"
#include "qt/desktop/Dispatch.h"
#include "qt/desktop/Theme.h"

#include <QApplication>
#include <QEvent>
#include <QTimer>

#include <algorithm>
#include <cmath>

namespace phial::qt
{

namespace
{

constexpr double HighestContrast = 19; // of yellow on black; that of black on white is 21
constexpr double MiddleLuminance = 0.18;

double luminanceOf(const QColor& colour)
{
    const auto part = [](double share) {
        return share <= 0.03928 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * part(colour.redF()) + 0.7152 * part(colour.greenF()) + 0.0722 * part(colour.blueF());
}

} // namespace

ColourSet colourSetOf(const QPalette& palette)
{
    const double ground = luminanceOf(palette.color(QPalette::Active, QPalette::Window));
    const double text = luminanceOf(palette.color(QPalette::Active, QPalette::WindowText));
    const double contrast = (std::max(ground, text) + 0.05) / (std::min(ground, text) + 0.05);
    if ((ground <= 0 || ground >= 1) && contrast >= HighestContrast) {
        return ColourSet::HighContrast;
    }
    return ground < MiddleLuminance ? ColourSet::Dark : ColourSet::Light;
}

QPalette askDesktop()
{
    const ApplyingTheme applying;
    const QPalette own = QApplication::palette();
    QApplication::setPalette(QPalette());
    const QPalette desktop = QApplication::palette();
    QApplication::setPalette(own);
    // What both changes have posted is delivered while it is known to be no news.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::ApplicationPaletteChange);
    return desktop;
}

DesktopLook::DesktopLook(std::function<QPalette()> ask) : ask_(std::move(ask))
{
    tell();
    qApp->installEventFilter(this);
}

bool DesktopLook::eventFilter(QObject* /*watched*/, QEvent* event)
{
    const bool concerns =
        event->type() == QEvent::ThemeChange || event->type() == QEvent::ApplicationPaletteChange;
    if (concerns && !isScheduled_ && !ApplyingTheme::isUnderWay()) {
        isScheduled_ = true;
        QTimer::singleShot(0, this, [this] {
            isScheduled_ = false;
            dispatch([this] { tell(); });
        });
    }
    return false;
}

void DesktopLook::tell()
{
    coreTheme().desktopColours(colourSetOf(ask_()));
}

} // namespace phial::qt
