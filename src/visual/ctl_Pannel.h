#pragma once

#include "visual/PaintSurface.h"
#include "visual/SharedFont.h"
#include "visual/UserControl.h"

namespace phial
{

/// A panel with a text in its middle, and a holder for other controls. Places within are twips.
class ctl_Pannel final : public UserControl
{
public:
    ctl_Pannel();

    /// Persisted under "TEXT"; with the markup of Markup.h.
    String Caption() const { return caption_; }
    void Caption(String value);
    FontPtr Font() const { return font_.pointer(); }
    /// Shares the font object; null raises 91.
    void Font(FontPtr value);
    /// Persisted under "FORECOLOR", "BACKCOLOR" and "BORDERCOLOR".
    Colour ForeColor() const { return foreColor_; }
    void ForeColor(Colour value);
    Colour BackColor() const { return surface_.BackColor(); }
    void BackColor(Colour value);
    Colour BorderColor() const { return borderColor_; }
    void BorderColor(Colour value);

    Event<> CLICK;

    StringView typeName() const override { return u"ctl_Pannel"; }
    MemberTable members() const override;
    ControlFrame& frame() override { return frame_; }
    PaintSurface& surface() override { return surface_; }
    Container* container() override { return &surface_.children(); }
    PartRole role() const override { return PartRole::Grouping; }
    String accessibleText() const override;
    void readProperties(const PropertyBag& bag) override;
    void writeProperties(PropertyBag& bag) override;
    void paint() override;
    void resized() override { surface_.resized(); }
    void click() override { CLICK.raise(); }

private:
    struct Properties;

    ControlFrame frame_;
    PaintSurface surface_;
    String caption_;
    SharedFont font_;
    Colour foreColor_;
    Colour borderColor_;
};

} // namespace phial
