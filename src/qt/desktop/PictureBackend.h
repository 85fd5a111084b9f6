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

private:
    void combine(Combine how, const QRect& bounds, const Drawing& drawing) override;
    QRect visible(const QRect& bounds) const;

    PicturePtr picture_;
    QImage image_;
};

} // namespace phial::qt
