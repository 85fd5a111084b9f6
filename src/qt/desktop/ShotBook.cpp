#include "qt/desktop/ShotBook.h"

#include "core/RuntimeError.h"
#include "core/SessionState.h"
#include "qt/base/QtText.h"
#include "qt/desktop/FormWindow.h"
#include "qt/desktop/PictureImage.h"
#include "qt/desktop/PixelRatio.h"
#include "qt/desktop/WindowHandles.h"

#include <QApplication>
#include <QScopedValueRollback>
#include <QTimer>

#include <cmath>

namespace phial::qt
{

namespace
{

bool takingModal = false;

double requireScale(double scale)
{
    if (!(scale > 0)) {
        throw RuntimeError(ErrorNumber::InvalidArgument);
    }
    return scale;
}

PicturePtr grab(QWidget& window, double scale)
{
    QImage image(QSizeF(window.size() * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::transparent);
    window.render(&image);
    return pictureOf(image, scale);
}

QWidgetList shownWindows()
{
    QWidgetList windows = QApplication::topLevelWidgets();
    windows.removeIf([](const QWidget* window) { return !window->isVisible(); });
    return windows;
}

/// The window that is shown now and was not before; null while there is none.
QWidget* newWindow(const QWidgetList& before)
{
    for (QWidget* window : shownWindows()) {
        if (!before.contains(window)) {
            return window;
        }
    }
    return nullptr;
}

} // namespace

PicturePtr grabForm(const Form& form, double scale)
{
    const FixedPixelRatio ratio(requireScale(scale));
    QWidget* window = widgetOf(form.hWnd());
    if (!window) {
        throw RuntimeError(ErrorNumber::InvalidArgument);
    }
    return grab(*window, scale);
}

ShotBook::ShotBook(std::filesystem::path folder, double scale)
    : folder_(std::move(folder)), scale_(requireScale(scale)),
      ratio_(std::make_unique<FixedPixelRatio>(scale))
{
    std::filesystem::create_directories(folder_);
}

ShotBook::~ShotBook() = default;

void ShotBook::take(StringView name, const Form& form)
{
    QApplication::processEvents();
    write(name, *grabForm(form, scale_));
}

void ShotBook::takeModal(StringView name, const std::function<void()>& open)
{
    const QScopedValueRollback<bool> taking(takingModal, true);
    const QWidgetList before = shownWindows();
    PicturePtr picture;
    QTimer look; // runs in the event loop of what is opened
    QObject::connect(&look, &QTimer::timeout, &look, [&] {
        QWidget* window = newWindow(before);
        if (window && !picture) {
            picture = grab(*window, scale_);
            window->close();
        }
    });
    look.start(0);
    open();
    if (picture) {
        write(name, *picture);
    }
}

bool ShotBook::isTakingModal()
{
    return takingModal;
}

void ShotBook::write(StringView name, const Picture& picture) const
{
    const QString file =
        toQt(folder_.u16string()) + QStringLiteral("/%1@%2x.png").arg(toQt(name)).arg(scale_, 0, 'g', 3);
    if (!imageOf(picture).save(file)) {
        throw RuntimeError(ErrorNumber::FileNotFound);
    }
}

void takeShots(const std::filesystem::path& folder, const std::function<void(ShotBook& book)>& tour)
{
    coreTheme().SetColours(ColourSet::Light); // whatever desktop the pictures are taken on
    for (const double scale : {1.0, 2.0}) {
        ShotBook book(folder, scale);
        tour(book);
    }
}

} // namespace phial::qt
