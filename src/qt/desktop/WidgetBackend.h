#pragma once

#include "qt/desktop/PainterBackend.h"

namespace phial::qt
{

/// Draws on a widget while that is painted, for a control without an image of its own. There is nothing to
/// read or to merge with, and what is cut out stays as it is: holes show what lies below already.
class WidgetBackend final : public PainterBackend
{
public:
    /// Of a control of that size, shown larger by `zoom`.
    WidgetBackend(QWidget& widget, PixelSize size, double zoom);
    ~WidgetBackend() override;

    PicturePtr picture() const override { return nullptr; }
    std::optional<Colour> pixel(PixelPoint /*point*/) const override { return std::nullopt; }
    void clear(Ink ink) override;

private:
    void combine(const std::optional<BitMerge>& /*merge*/, const QRect& /*bounds*/,
                 const Drawing& /*drawing*/) override
    {
    }

    QRectF all_; ///< of the widget, in the device's pixels
};

} // namespace phial::qt
