#include "qt/desktop/DesktopServices.h"

#include "core/NativePath.h"
#include "core/RuntimeError.h"
#include "core/SessionState.h"
#include "qt/base/Processes.h"
#include "qt/base/QtText.h"
#include "qt/desktop/PictureImage.h"
#include "qt/desktop/TouchPresses.h"
#include "qt/desktop/WindowHandles.h"
#include "visual/Form.h"
#include "visual/TextBox.h"
#include "visual/VisualHost.h"

#include <QApplication>
#include <QDesktopServices>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QImageReader>
#include <QScreen>
#include <QStyle>
#include <QStyleHints>
#include <QUrl>
#include <QWidget>

#include <algorithm>
#include <cmath>

namespace phial::qt
{

namespace
{

constexpr double PointsPerInch = 72;

// The toolkit divides the zoom that the user has set out of the dots to an inch; on macOS the ratio is the
// screen's nature and not the user's wish.
double userZoom(const QScreen& screen)
{
#ifdef Q_OS_MACOS
    return static_cast<void>(screen), 1;
#else
    return screen.devicePixelRatio();
#endif
}

QRect placeOnScreen(WindowHandle handle)
{
    const QWidget* widget = widgetOf(handle);
    if (!widget) {
        return {};
    }
    return widget->isWindow() ? widget->frameGeometry()
                              : QRect(widget->mapToGlobal(QPoint()), widget->size());
}

std::shared_ptr<Form> formOf(WindowHandle handle)
{
    const Forms& forms = visualHost().forms();
    for (std::size_t at = 0; at < forms.Count(); ++at) {
        if (forms.Item(at)->hWnd() == handle) {
            return forms.Item(at);
        }
    }
    return nullptr;
}

} // namespace

std::int32_t DesktopDisplay::CursorX() const
{
    return pointerPlace().x();
}
std::int32_t DesktopDisplay::CursorY() const
{
    return pointerPlace().y();
}

bool DesktopDisplay::TellsCursor() const
{
    return !QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
}

std::int32_t DesktopDisplay::Width() const
{
    const QScreen* screen = QGuiApplication::primaryScreen();
    return screen ? screen->size().width() : 0;
}

std::int32_t DesktopDisplay::Height() const
{
    const QScreen* screen = QGuiApplication::primaryScreen();
    return screen ? screen->size().height() : 0;
}

std::optional<std::int32_t> DesktopDisplay::TextHeight() const
{
    const QScreen* screen = QGuiApplication::primaryScreen();
    if (!screen) {
        return std::nullopt;
    }
    const double dotsPerInch = screen->logicalDotsPerInch();
    const QFont text = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
    const double points =
        text.pointSizeF() > 0 ? text.pointSizeF() : text.pixelSize() * PointsPerInch / dotsPerInch;
    return textHeightOf(points, dotsPerInch * userZoom(*screen));
}

bool DesktopDisplay::ReducesMotion() const
{
    return QApplication::style()->styleHint(QStyle::SH_Widget_Animation_Duration) == 0;
}

bool DesktopDisplay::BlinksCaret() const
{
    return QGuiApplication::styleHints()->cursorFlashTime() > 0;
}

std::int32_t textHeightOf(double points, double dotsPerInch)
{
    constexpr double UsualText = 11 * 96;
    constexpr double UsualHeight = 16;
    constexpr double Hair = 1e-9;
    return static_cast<std::int32_t>(std::ceil(points * dotsPerInch * UsualHeight / UsualText - Hair));
}

std::int32_t DesktopWindowOps::ScreenTop(WindowHandle pWindow) const
{
    return placeOnScreen(pWindow).y();
}
std::int32_t DesktopWindowOps::ScreenLeft(WindowHandle pWindow) const
{
    return placeOnScreen(pWindow).x();
}

std::int32_t DesktopWindowOps::ScreenBottom(WindowHandle pWindow) const
{
    const QRect place = placeOnScreen(pWindow);
    return place.y() + place.height();
}

std::int32_t DesktopWindowOps::ScreenRight(WindowHandle pWindow) const
{
    const QRect place = placeOnScreen(pWindow);
    return place.x() + place.width();
}

void DesktopWindowOps::SetTranslucent(WindowHandle pWindow, std::int32_t pOpacity, TranslucentMode pMode,
                                      Colour pColourKey)
{
    const std::shared_ptr<Form> form = formOf(pWindow);
    if (!form) {
        return;
    }
    Translucency translucency = form->translucency();
    switch (pMode) {
    case TranslucentMode::ColourKey:
        translucency.colourKey = pColourKey;
        break;
    case TranslucentMode::Opacity:
        translucency.opacity = std::clamp(pOpacity, 0, 255);
        break;
    }
    form->translucency(std::move(translucency));
}

std::shared_ptr<Picture> DesktopCursors::Load(StringView pPath, std::int32_t pSize, bool pShared, bool pQuiet)
{
    const String key = lowerCase(pPath) + u"|" + fromQt(QString::number(pSize));
    if (const auto known = shared_.find(key); pShared && known != shared_.end()) {
        return known->second;
    }
    QImage image(toQt(nativePath(pPath).u16string()));
    if (image.isNull()) {
        if (!pQuiet) {
            throw RuntimeError(ErrorNumber::FileNotFound);
        }
        return nullptr;
    }
    if (pSize > 0) {
        image = image.scaled(pSize, pSize, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    }
    auto picture = pictureOf(image);
    if (pShared) {
        shared_[key] = picture;
    }
    return picture;
}

void DesktopTextBoxes::Prepare(TextBox& pTextBox)
{
    pTextBox.prepare();
}

bool DesktopShell::open(WindowHandle /*window*/, StringView address)
{
    const std::filesystem::path file = nativePath(address);
    const bool isFile = !file.empty() && std::filesystem::exists(file);
    const QUrl url =
        isFile ? QUrl::fromLocalFile(toQt(file.u16string())) : QUrl::fromUserInput(toQt(address));
    return url.isValid() && QDesktopServices::openUrl(url);
}

std::int64_t DesktopShell::start(const ProgramCall& call)
{
    return startProcess(call);
}

std::unique_ptr<RunningProgram> DesktopShell::startWatched(const ProgramCall& call)
{
    return startWatchedProcess(call);
}

} // namespace phial::qt
