#pragma once

#include "visual/PaintSurface.h"
#include "visual/UserControl.h"

namespace phial
{

enum class ShapeKind : std::int32_t { Rectangle = 0, Square = 1, Oval = 2, Circle = 3, RoundedRectangle = 4 };

/// A plain figure, such as a marker on a picture. Clicks go through it.
class Shape final : public UserControl
{
public:
    Shape();

    ShapeKind Kind() const { return kind_; }
    void Kind(ShapeKind value);
    Colour BorderColor() const { return borderColor_; }
    void BorderColor(Colour value);
    /// Pixels; 0 for no outline, a negative width raises 5.
    std::int32_t BorderWidth() const { return borderWidth_; }
    void BorderWidth(std::int32_t value);
    Colour FillColor() const { return fillColor_; }
    void FillColor(Colour value);
    phial::FillStyle FillStyle() const { return fillStyle_; }
    void FillStyle(phial::FillStyle value);

    StringView typeName() const override { return u"Shape"; }
    MemberTable members() const override;
    ControlFrame& frame() override { return frame_; }
    PaintSurface& surface() override { return surface_; }
    void paint() override;
    void resized() override { surface_.resized(); }

private:
    struct Properties;

    ControlFrame frame_;
    PaintSurface surface_;
    ShapeKind kind_ = ShapeKind::Rectangle;
    Colour borderColor_ = RGB(0, 0, 0);
    std::int32_t borderWidth_ = 1;
    Colour fillColor_ = RGB(0, 0, 0);
    phial::FillStyle fillStyle_ = phial::FillStyle::Transparent;
};

} // namespace phial
