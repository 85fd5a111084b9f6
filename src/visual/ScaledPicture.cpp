#include "visual/ScaledPicture.h"

#include "core/NativePath.h"
#include "visual/VisualHost.h"

#include <algorithm>

namespace phial
{

namespace
{

/// The same pixels at another ratio.
PicturePtr withRatio(const Picture& picture, double ratio)
{
    const auto columns = static_cast<double>(picture.columns());
    const auto rows = static_cast<double>(picture.rows());
    auto made = std::make_shared<Picture>(PixelSize{columns / ratio, rows / ratio}, ratio);
    const std::size_t width = std::min(made->columns(), picture.columns());
    for (std::size_t row = 0; row < std::min(made->rows(), picture.rows()); ++row) {
        std::ranges::copy(picture.pixels().subspan(row * picture.columns(), width),
                          made->pixels().subspan(row * made->columns(), width).begin());
    }
    return made;
}

} // namespace

ShownScale ShownScale::within(PixelSize pixels, PixelSize field, double density)
{
    if (pixels.isEmpty() || field.isEmpty()) {
        return {pixels};
    }
    const double scale = std::min({1.0, field.width / pixels.width, field.height / pixels.height});
    if (scale == 1) {
        return {pixels};
    }
    return {.size = {pixels.width * scale, pixels.height * scale},
            .density = std::min(density, 1 / scale),
            .isWhole = false};
}

PicturePtr LoadPictureWithin(const String& path, PixelSize field, double density)
{
    if (auto* decoder = dynamic_cast<ScaledDecoder*>(&visualHost())) {
        if (PicturePtr smaller = decoder->decodeWithin(nativePath(path), field, density)) {
            return smaller;
        }
        return LoadPicture(path);
    }
    PicturePtr picture = LoadPicture(path);
    const ShownScale shown = ShownScale::within(picture->size(), field, density);
    return shown.isWhole ? picture : withRatio(*picture, picture->Width() / shown.size.width);
}

std::optional<ComingPicture> BeginPictureWithin(const String& path, PixelSize field, double density)
{
    auto* decoder = dynamic_cast<ScaledDecoder*>(&visualHost());
    return decoder ? decoder->beginWithin(nativePath(path), field, density) : std::nullopt;
}

} // namespace phial
