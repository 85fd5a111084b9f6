#pragma once

#include "core/Colour.h"
#include "visual/Geometry.h"

#include <algorithm>
#include <cstdint>

namespace phial
{

/// The strip of a book's progress: a segment a page, side by side over its width. Where so many pages would
/// make them too narrow to be seen, a segment stands for several pages.
class PageStrip
{
public:
    static constexpr double LeastPitch = 3;
    static constexpr double Gap = 1;
    static constexpr double MostPitch = 64;

    PageStrip() = default;
    PageStrip(std::int32_t pages, double width)
        : pages_(std::max(0, pages)), width_(std::max(0.0, width)),
          segments_(std::min(pages_, std::max(1, static_cast<std::int32_t>(width_ / LeastPitch))))
    {
    }

    std::int32_t segments() const { return segments_; }
    double pitch() const { return segments_ == 0 ? 0 : std::min(MostPitch, width_ / segments_); }
    /// The place of a segment, from 1, along the strip: left edge and width.
    double left(std::int32_t segment) const { return (segment - 1) * pitch(); }
    double segmentWidth() const { return std::max(1.0, pitch() - Gap); }

    /// The segment of a page, both from 1; 0 without pages.
    std::int32_t segmentOf(std::int32_t page) const
    {
        return pages_ == 0 ? 0 : static_cast<std::int32_t>(std::int64_t{page - 1} * segments_ / pages_) + 1;
    }
    /// The first page of a segment.
    std::int32_t pageOf(std::int32_t segment) const
    {
        return segments_ == 0 ? 0
                              : static_cast<std::int32_t>(
                                    (std::int64_t{segment - 1} * pages_ + segments_ - 1) / segments_) +
                                    1;
    }
    /// White for the page in view, dark before it, light behind it.
    Colour colourOf(std::int32_t segment, std::int32_t page) const
    {
        constexpr int White = 15;
        constexpr int Dark = 8;
        constexpr int Light = 7;
        const std::int32_t current = segmentOf(page);
        return QBColor(segment == current ? White : segment < current ? Dark : Light);
    }

private:
    std::int32_t pages_ = 0;
    double width_ = 0;
    std::int32_t segments_ = 0;
};

} // namespace phial
