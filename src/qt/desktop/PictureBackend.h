#pragma once

#include "qt/desktop/PainterBackend.h"

#include <QImage>

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
    void gradient(const PixelRectangle& area, Colour from, Colour to, double angle, int steps) override;

private:
    void combine(const std::optional<BitMerge>& merge, const QRect& bounds, const Drawing& drawing) override;
    QRect visible(const QRect& bounds) const;

    PicturePtr picture_;
    QImage image_;
};

} // namespace phial::qt
