#pragma once

#include "core/Object.h"
#include "visual/Geometry.h"
#include "visual/PixelMemory.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <span>

namespace phial
{

class Picture;
using PicturePtr = std::shared_ptr<Picture>;

/// A picture in memory: rows of premultiplied ARGB pixels (0xAARRGGBB), top row first, without padding. An
/// adapter wraps the memory without copying. A picture has a size in logical pixels and a pixel ratio: at
/// ratio 2 it holds two by two pixels for each logical one.
///
/// It may have finer versions of itself, for screens, windows and paper that show it larger; whoever draws it
/// takes the one that fits there.
class Picture final : public Object
{
public:
    /// A see-through picture of that logical size; physical edges are rounded up and at least 1. Raises 5 for
    /// a size that is negative or holds more than MaximumPixels.
    explicit Picture(PixelSize size, double pixelRatio = 1);

    /// No picture holds more pixels than this.
    static constexpr std::size_t MaximumPixels = 64U * 1024U * 1024U;

    /// In logical pixels.
    double Width() const { return size_.width; }
    double Height() const { return size_.height; }
    PixelSize size() const { return size_; }
    double pixelRatio() const { return ratio_; }

    /// In pixels held.
    std::size_t columns() const { return columns_; }
    std::size_t rows() const { return rows_; }
    std::span<const std::uint32_t> pixels() const { return memory_.pixels(); }
    std::span<std::uint32_t> pixels() { return memory_.pixels(); }
    /// The pixel held at that column and row; raises 9 outside.
    std::uint32_t at(std::size_t column, std::size_t row) const;

    /// Whether the picture lets through what lies below at that logical point; outside it always does.
    bool isSeeThrough(PixelPoint point) const;

    /// Finds the version at that ratio, which has the same logical size; null where there is none. Raising an
    /// error says so too.
    using FinerVersion = std::function<PicturePtr(int ratio)>;
    /// Where finer versions come from, which is asked once for each when drawing first needs it.
    void finer(FinerVersion find);
    /// The version to draw where a logical pixel takes that many pixels of the device: the coarsest with as
    /// many, at ratio 2 or 3, else the finest. The picture itself does up to its ratio, or to half of it
    /// where its edges are hard, with nothing between opaque and see-through.
    const Picture& versionFor(double density) const;

    std::shared_ptr<Picture> copy() const { return std::make_shared<Picture>(*this); }

    StringView typeName() const override { return u"Picture"; }
    MemberTable members() const override;

private:
    struct FinerVersions;

    PixelSize size_;
    double ratio_;
    std::size_t columns_;
    std::size_t rows_;
    PixelMemory memory_;
    std::shared_ptr<FinerVersions> finer_; ///< null without any; shared by copies
};

/// The picture of a file (path as the system writes it); raises 53 for a missing file and 481 for one that is
/// no picture. Its finer versions are the files `name@2x.png` and `name@3x.png` beside `name.gif` (or `.png`,
/// `.jpg`
/// ...), where they hold just two and three times as many pixels in width and height.
PicturePtr LoadPicture(const String& path);

} // namespace phial
