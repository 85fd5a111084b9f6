#include "qt/desktop/ScaledReading.h"

#include "core/RuntimeError.h"
#include "qt/base/QtText.h"
#include "qt/desktop/PictureImage.h"
#include "qt/desktop/ShrunkImage.h"

#include <QImageReader>

#include <utility>

namespace phial::qt
{

namespace
{

constexpr std::int32_t InvalidScaledPicture = 481;
constexpr int FastQuality = 49; // below which a decoder of photos takes its fast ways
constexpr int MostHalvings = 3; // that a decoder of photos does by itself

bool isWithin(QSize size, QSize bounds)
{
    return size.width() <= bounds.width() && size.height() <= bounds.height();
}

/// Straight into the picture's own memory.
PicturePtr shrunkPicture(const QImage& image, QSize size, double density)
{
    auto picture =
        std::make_shared<Picture>(PixelSize{size.width() / density, size.height() / density}, density);
    const auto columns = static_cast<int>(picture->columns());
    const auto rows = static_cast<int>(picture->rows());
    QImage smaller(reinterpret_cast<uchar*>(picture->pixels().data()), qMin(size.width(), columns),
                   qMin(size.height(), rows), qsizetype{columns} * qsizetype{sizeof(QRgb)},
                   QImage::Format_ARGB32_Premultiplied);
    shrinkInto(smaller, image);
    return picture;
}

} // namespace

ScaledReading::ScaledReading(std::filesystem::path file, QSize held, QSize shown, bool isTurned,
                             double density)
    : file_(std::move(file)), held_(held), shown_(shown), isTurned_(isTurned), density_(density)
{
}

// A photo is turned by what its file says.
std::optional<ScaledReading> ScaledReading::of(const std::filesystem::path& file, PixelSize field,
                                               double density)
{
    QImageReader reader(toQt(file.u16string()));
    reader.setAutoTransform(true);
    const QSize held = reader.size();
    if (!held.isValid()) {
        return std::nullopt;
    }
    const bool isTurned = (reader.transformation() & QImageIOHandler::TransformationRotate90) != 0;
    const QSize size = isTurned ? held.transposed() : held;
    const ShownScale shown =
        ShownScale::within({double(size.width()), double(size.height())}, field, density);
    if (shown.isWhole) {
        return std::nullopt;
    }
    const QSize pixels(qMax(1, qRound(shown.size.width * shown.density)),
                       qMax(1, qRound(shown.size.height * shown.density)));
    return ScaledReading(file, held, pixels, isTurned, shown.density);
}

/// Decoders of photos halve a picture in less time than they read it whole; what lies between takes them
/// longer than that. One that cannot be halved is read in its size, as long as that takes little memory.
QSize ScaledReading::readSize() const
{
    const QSize wanted = isTurned_ ? shown_.transposed() : shown_;
    QSize size = held_;
    for (int halving = 0; halving < MostHalvings; ++halving) {
        const bool isEven = size.width() % 2 == 0 && size.height() % 2 == 0;
        if (!isEven || !isWithin(wanted, size / 2)) {
            break;
        }
        size /= 2;
    }
    return isWithin(wanted * 2, size) ? wanted : size;
}

PicturePtr ScaledReading::read() const
{
    QImageReader reader(toQt(file_.u16string()));
    reader.setAutoTransform(true);
    if (const QSize size = readSize(); size != held_) {
        reader.setScaledSize(size);
    } else {
        reader.setQuality(FastQuality); // what that costs is averaged away
    }
    const QImage image = reader.read();
    if (image.isNull()) {
        throw RuntimeError(InvalidScaledPicture, u"Invalid picture");
    }
    const bool isLarger = isWithin(shown_, image.size()) && shown_ != image.size();
    return isLarger ? shrunkPicture(image, shown_, density_) : pictureOf(image, density_);
}

} // namespace phial::qt
