#include "qt/desktop/ShotBook.h"

#include "core/RuntimeError.h"
#include "qt/base/QtText.h"
#include "qt/desktop/FormWindow.h"
#include "qt/desktop/PictureImage.h"
#include "qt/desktop/PixelRatio.h"
#include "qt/desktop/WindowHandles.h"

#include <QApplication>

#include <cmath>

namespace phial::qt
{

namespace
{

double requireScale(double scale)
{
    if (!(scale > 0)) {
        throw RuntimeError(ErrorNumber::InvalidArgument);
    }
    return scale;
}

} // namespace

PicturePtr grabForm(const Form& form, double scale)
{
    const FixedPixelRatio ratio(requireScale(scale));
    QWidget* window = widgetOf(form.hWnd());
    if (!window) {
        throw RuntimeError(ErrorNumber::InvalidArgument);
    }
    QImage image(QSizeF(window->size() * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::transparent);
    window->render(&image);
    return pictureOf(image, scale);
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
    const PicturePtr picture = grabForm(form, scale_);
    const QString file =
        toQt(folder_.u16string()) + QStringLiteral("/%1@%2x.png").arg(toQt(name)).arg(scale_, 0, 'g', 3);
    if (!imageOf(*picture).save(file)) {
        throw RuntimeError(ErrorNumber::FileNotFound);
    }
}

void takeShots(const std::filesystem::path& folder, const std::function<void(const TakeShot& take)>& tour)
{
    for (const double scale : {1.0, 2.0}) {
        ShotBook book(folder, scale);
        tour([&book](StringView name, const Form& form) { book.take(name, form); });
    }
}

} // namespace phial::qt
