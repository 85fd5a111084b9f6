#pragma once

#include "visual/PaintSurface.h"
#include "visual/UserControl.h"

namespace phial
{

/// Shows who works with the program: avatar and name, as the recent names tell them. A click, the space bar
/// and Return raise CLICK, for instance to open cls_AppUser::SCREENNAMEINPUT; what has changed by then is
/// shown at once.
///
/// Persisted: "CENTER" (default False) and "TEXTCOLOR" (white).
class ctl_Avatar final : public UserControl
{
public:
    ctl_Avatar();

    Colour TEXTCOLOR() const { return textColour_; }
    void TEXTCOLOR(Colour value);
    /// Picture and name stand in the middle of the width; otherwise they begin at the left.
    bool CENTER() const { return centre_; }
    void CENTER(bool value);

    /// Reads the latest name again and paints it.
    void UPDATE();

    Event<> CLICK;

    StringView typeName() const override { return u"ctl_Avatar"; }
    MemberTable members() const override;
    ControlFrame& frame() override { return frame_; }
    PaintSurface& surface() override { return surface_; }
    PartRole role() const override { return PartRole::Button; }
    String accessibleText() const override { return name_; }
    bool wantsKey(Key key) const override { return key == Key::Return; }
    void initProperties() override { UPDATE(); }
    void readProperties(const PropertyBag& bag) override;
    void writeProperties(PropertyBag& bag) override;
    void shown() override { UPDATE(); }
    void resized() override;
    void paint() override { UPDATE(); }
    void click() override;
    void keyDown(KeyEvent& event) override;
    void gotFocus() override { UPDATE(); }
    void lostFocus() override { UPDATE(); }

private:
    struct Properties;

    void readName();
    void paintFrame();
    void paintUser();

    ControlFrame frame_;
    PaintSurface surface_;
    Colour textColour_;
    bool centre_{};
    String name_;
    String avatar_;
};

} // namespace phial
