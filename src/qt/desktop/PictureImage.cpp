#include "qt/desktop/PictureImage.h"

#include <QPixmap>

#include <algorithm>
#include <cstring>

namespace phial::qt
{

namespace
{

constexpr auto Format = QImage::Format_ARGB32_Premultiplied;

QImage viewOf(const Picture& picture, QImage::Format format)
{
    const auto columns = static_cast<int>(picture.columns());
    return {reinterpret_cast<const uchar*>(picture.pixels().data()), columns,
            static_cast<int>(picture.rows()),
            static_cast<qsizetype>(columns) * static_cast<qsizetype>(sizeof(std::uint32_t)), format};
}

} // namespace

QImage imageOf(const Picture& picture)
{
    return viewOf(picture, Format);
}

QImage opaqueImageOf(const Picture& picture)
{
    return viewOf(picture, QImage::Format_RGB32);
}

// A view of constant memory would be copied as soon as it gets its ratio.
QImage imageForPainting(const Picture& picture)
{
    const auto columns = static_cast<int>(picture.columns());
    auto* memory = reinterpret_cast<uchar*>(const_cast<std::uint32_t*>(picture.pixels().data()));
    QImage image(memory, columns, static_cast<int>(picture.rows()),
                 static_cast<qsizetype>(columns) * static_cast<qsizetype>(sizeof(std::uint32_t)), Format);
    image.setDevicePixelRatio(picture.pixelRatio());
    return image;
}

QImage imageCopy(const Picture& picture)
{
    QImage image = imageOf(picture).copy();
    image.setDevicePixelRatio(picture.pixelRatio());
    return image;
}

PicturePtr pictureOf(const QImage& image, double pixelRatio)
{
    const QImage source = image.convertToFormat(Format);
    auto picture = std::make_shared<Picture>(
        PixelSize{source.width() / pixelRatio, source.height() / pixelRatio}, pixelRatio);
    const std::size_t columns = std::min(picture->columns(), static_cast<std::size_t>(source.width()));
    const std::size_t rows = std::min(picture->rows(), static_cast<std::size_t>(source.height()));
    for (std::size_t row = 0; row < rows; ++row) {
        std::memcpy(picture->pixels().data() + row * picture->columns(),
                    source.constScanLine(static_cast<int>(row)), columns * sizeof(std::uint32_t));
    }
    return picture;
}

QIcon iconOf(const PicturePtr& picture)
{
    return picture ? QIcon(QPixmap::fromImage(imageCopy(*picture))) : QIcon();
}

} // namespace phial::qt
