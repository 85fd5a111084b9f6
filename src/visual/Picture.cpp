#include "visual/Picture.h"

#include "core/Members.h"
#include "core/NativePath.h"
#include "core/RuntimeError.h"
#include "visual/VisualHost.h"

#include <algorithm>
#include <cmath>

namespace phial
{

namespace
{

/// Physical pixels of an edge.
std::size_t heldPixels(double edge, double ratio)
{
    const double pixels = std::ceil(edge * ratio - 1e-9); // 10 at ratio 1.1 is 11, not 12
    if (!(pixels <= static_cast<double>(Picture::MaximumPixels))) {
        throw RuntimeError(ErrorNumber::InvalidArgument);
    }
    return static_cast<std::size_t>(std::max(pixels, 1.0));
}

void checkSize(PixelSize size, double ratio)
{
    if (!(size.width >= 0 && size.height >= 0 && ratio > 0)) {
        throw RuntimeError(ErrorNumber::InvalidArgument);
    }
}

} // namespace

Picture::Picture(PixelSize size, double pixelRatio) : size_(size), ratio_(pixelRatio)
{
    checkSize(size, pixelRatio);
    columns_ = heldPixels(size.width, pixelRatio);
    rows_ = heldPixels(size.height, pixelRatio);
    if (columns_ > MaximumPixels / rows_) {
        throw RuntimeError(ErrorNumber::InvalidArgument);
    }
    pixels_.resize(columns_ * rows_);
}

std::uint32_t Picture::at(std::size_t column, std::size_t row) const
{
    if (column >= columns_ || row >= rows_) {
        throw RuntimeError(ErrorNumber::IndexOutOfBounds);
    }
    return pixels_[row * columns_ + column];
}

bool Picture::isSeeThrough(PixelPoint point) const
{
    if (!PixelRectangle{0, 0, size_.width, size_.height}.contains(point)) {
        return true;
    }
    const auto column = static_cast<std::size_t>(point.x * ratio_);
    const auto row = static_cast<std::size_t>(point.y * ratio_);
    constexpr unsigned AlphaShift = 24;
    return (at(std::min(column, columns_ - 1), std::min(row, rows_ - 1)) >> AlphaShift) == 0;
}

MemberTable Picture::members() const
{
    static constexpr auto Table = std::to_array<Member>({
        members::readOnly<Picture, double, &Picture::Width>(u"Width"),
        members::readOnly<Picture, double, &Picture::Height>(u"Height"),
    });
    return Table;
}

PicturePtr LoadPicture(const String& path)
{
    return visualHost().decodePicture(nativePath(path));
}

} // namespace phial
