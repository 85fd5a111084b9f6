#pragma once

#include "qt/desktop/PainterBackend.h"

#include <QImage>

#include <cstddef>
#include <cstdint>
#include <tuple>

namespace phial::qt
{

/// Draws in a picture's own memory.
class PictureBackend final : public PainterBackend
{
public:
    PictureBackend(PicturePtr picture, std::shared_ptr<TextMetrics> metrics);
    ~PictureBackend() override;

    PicturePtr picture() const override { return picture_; }
    std::optional<Colour> pixel(PixelPoint point) const override;
    void hatch(const PixelRectangle& area, Ink ink, HatchStart start) override;
    void gradient(const PixelRectangle& area, Colour from, Colour to, double angle, int steps) override;

private:
    void combine(const std::optional<BitMerge>& merge, const QRect& bounds, const Drawing& drawing) override;
    QImage viewOf(const Picture& picture) override;
    void paintBox(const QRect& box, const QColor& colour) override;
    QRect visible(const QRect& bounds) const;

    PicturePtr picture_;
    QImage image_;
    Recent<std::tuple<const std::uint32_t*, std::size_t, std::size_t>, QImage> views_; ///< by memory and size
};

} // namespace phial::qt
