#include "visual/Picture.h"

#include "core/CorePathText.h"
#include "core/Members.h"
#include "core/NativePath.h"
#include "core/RuntimeError.h"
#include "visual/VisualHost.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

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

std::size_t heldPixels(std::size_t columns, std::size_t rows)
{
    if (columns > Picture::MaximumPixels / rows) {
        throw RuntimeError(ErrorNumber::InvalidArgument);
    }
    return columns * rows;
}

PixelSize checkedSize(PixelSize size, double ratio)
{
    if (!(size.width >= 0 && size.height >= 0 && ratio > 0)) {
        throw RuntimeError(ErrorNumber::InvalidArgument);
    }
    return size;
}

constexpr int FinestRatio = 3;

/// `name@3x.png` for `name.gif`.
String finerFile(const String& path, int ratio)
{
    return CorePathText::WithoutExtension(path) + u'@' + static_cast<char16_t>(u'0' + ratio) + u"x.png";
}

/// Whether there are both opaque and see-through pixels and none between, as in a GIF file: the edges look
/// torn unless pixels are averaged.
bool hasHardEdges(std::span<const std::uint32_t> pixels)
{
    constexpr unsigned AlphaShift = 24;
    constexpr std::uint32_t Opaque = 0xFF;
    std::size_t opaque = 0;
    std::size_t seeThrough = 0;
    for (const std::uint32_t pixel : pixels) {
        const std::uint32_t alpha = pixel >> AlphaShift;
        opaque += alpha == Opaque ? 1U : 0U;
        seeThrough += alpha == 0 ? 1U : 0U;
    }
    return opaque > 0 && seeThrough > 0 && opaque + seeThrough == pixels.size();
}

} // namespace

/// The versions at the ratios 2 to FinestRatio, as far as they have been asked for.
struct Picture::FinerVersions {
    FinerVersion find;
    std::array<std::optional<PicturePtr>, FinestRatio - 1> found;
    std::optional<bool> isTorn; ///< whether the picture itself has hard edges

    const Picture* at(int ratio, PixelSize size)
    {
        std::optional<PicturePtr>& version = found.at(static_cast<std::size_t>(ratio - 2));
        if (!version) {
            version = PicturePtr();
            ignoringErrors([&] { version = find(ratio); });
            if (*version && (*version)->size() != size) {
                version = PicturePtr();
            }
        }
        return version->get();
    }
};

Picture::Picture(PixelSize size, double pixelRatio)
    : size_(checkedSize(size, pixelRatio)), ratio_(pixelRatio), columns_(heldPixels(size.width, pixelRatio)),
      rows_(heldPixels(size.height, pixelRatio)), memory_(heldPixels(columns_, rows_))
{
}

std::uint32_t Picture::at(std::size_t column, std::size_t row) const
{
    if (column >= columns_ || row >= rows_) {
        throw RuntimeError(ErrorNumber::IndexOutOfBounds);
    }
    return pixels()[row * columns_ + column];
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

void Picture::finer(FinerVersion find)
{
    finer_ = std::make_shared<FinerVersions>(FinerVersions{std::move(find), {}, {}});
}

const Picture& Picture::versionFor(double density) const
{
    if (!finer_ || density <= ratio_ / 2) {
        return *this;
    }
    if (!finer_->isTorn) {
        finer_->isTorn = hasHardEdges(pixels());
    }
    if (density <= ratio_ && !*finer_->isTorn) {
        return *this;
    }
    const int enough = static_cast<int>(std::ceil(std::clamp(density, 2.0, double{FinestRatio})));
    for (int ratio = enough; ratio <= FinestRatio; ++ratio) {
        if (const Picture* version = finer_->at(ratio, size_)) {
            return *version;
        }
    }
    for (int ratio = enough - 1; ratio >= 2; --ratio) {
        if (const Picture* version = finer_->at(ratio, size_)) {
            return *version;
        }
    }
    return *this;
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
    PicturePtr picture = visualHost().decodePicture(nativePath(path), 1);
    picture->finer(
        [path](int ratio) { return visualHost().decodePicture(nativePath(finerFile(path, ratio)), ratio); });
    return picture;
}

} // namespace phial
