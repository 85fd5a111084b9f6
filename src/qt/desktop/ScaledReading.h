#pragma once

#include "visual/ScaledPicture.h"

#include <QSize>

namespace phial::qt
{

/// A picture's file that is shown smaller than it is, to be read no finer than that. Knows the file's
/// beginning only; `read` may run in any thread.
class ScaledReading
{
public:
    /// None for a picture that is shown in its own size, and for what begins like no picture.
    static std::optional<ScaledReading> of(const std::filesystem::path& file, PixelSize field,
                                           double density);

    /// That the picture will have, logical.
    PixelSize size() const { return {shown_.width() / density_, shown_.height() / density_}; }
    /// Raises 481 where it is no picture.
    PicturePtr read() const;

private:
    ScaledReading(std::filesystem::path file, QSize held, QSize shown, bool isTurned, double density);
    QSize readSize() const;

    std::filesystem::path file_;
    QSize held_;     ///< in the file, before it is turned
    QSize shown_;    ///< in pixels of the picture
    bool isTurned_;  ///< upright photos lie in their files
    double density_; ///< of the picture's pixels
};

} // namespace phial::qt
