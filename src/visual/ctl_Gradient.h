#pragma once

#include "visual/PaintSurface.h"
#include "visual/UserControl.h"

namespace phial
{

/// A field that passes from one colour to another, and a holder for other controls. Places within are twips.
class ctl_Gradient final : public UserControl
{
public:
    ctl_Gradient();

    /// Persisted under "COLOR1", "COLOR2" and "ANGLE".
    Colour Color1() const { return from_; }
    void Color1(Colour value);
    Colour Color2() const { return to_; }
    void Color2(Colour value);
    /// Degrees: 0 from left to right, 90 (at first) from top to bottom.
    double Angle() const { return angle_; }
    void Angle(double value);

    Event<> CLICK;

    StringView typeName() const override { return u"ctl_Gradient"; }
    MemberTable members() const override;
    ControlFrame& frame() override { return frame_; }
    PaintSurface& surface() override { return surface_; }
    Container* container() override { return &surface_.children(); }
    void readProperties(const PropertyBag& bag) override;
    void writeProperties(PropertyBag& bag) override;
    void paint() override;
    void resized() override { surface_.resized(); }
    void click() override { CLICK.raise(); }

private:
    struct Properties;

    ControlFrame frame_;
    PaintSurface surface_;
    Colour from_;
    Colour to_;
    double angle_{};
};

} // namespace phial
