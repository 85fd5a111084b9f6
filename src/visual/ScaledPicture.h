#pragma once

#include "visual/Picture.h"

#include <filesystem>
#include <future>
#include <optional>

namespace phial
{

/// How a picture of that many pixels is shown in a field: in its own size, or where it is larger smaller in
/// its proportions, and with how many pixels for each logical one at most.
struct ShownScale {
    PixelSize size;      ///< logical
    double density = 1;  ///< of the pixels that it has, at most what was asked for
    bool isWhole = true; ///< in its own size

    static ShownScale within(PixelSize pixels, PixelSize field, double density);
};

/// A picture that is being read in the background.
struct ComingPicture {
    PixelSize size;                  ///< that it will have, logical
    std::future<PicturePtr> picture; ///< raises what reading it raises; who lets go of it need not wait
};

/// Reads pictures no finer than they are shown, so that large photos take little memory. A host of the
/// outside that can do so implements it too.
class ScaledDecoder
{
public:
    ScaledDecoder() = default;
    ScaledDecoder(const ScaledDecoder&) = delete;
    ScaledDecoder& operator=(const ScaledDecoder&) = delete;
    virtual ~ScaledDecoder() = default;

    /// The picture as ShownScale tells; null where that is its own size. Raises 53 for a missing file and 481
    /// for one that is no picture.
    virtual PicturePtr decodeWithin(const std::filesystem::path& file, PixelSize field, double density) = 0;
    /// The same, begun in the background; none where decodeWithin gives null or the file's beginning is no
    /// picture's.
    virtual std::optional<ComingPicture> beginWithin(const std::filesystem::path& file, PixelSize field,
                                                     double density) = 0;
};

/// The picture of a file as it is shown in a field on a surface with so many pixels for a logical one; raises
/// like LoadPicture, whose finer versions a picture has that is shown in its own size.
PicturePtr LoadPictureWithin(const String& path, PixelSize field, double density);
/// The same, begun in the background, for who has something else to do until the picture is needed. None
/// where that cannot be, or would not be worth it.
std::optional<ComingPicture> BeginPictureWithin(const String& path, PixelSize field, double density);

} // namespace phial
