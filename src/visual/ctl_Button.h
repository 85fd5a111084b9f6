#pragma once

#include "core/Colour.h"
#include "visual/Control.h"
#include "visual/SharedFont.h"

namespace phial
{

/// A push button; the toolkit's own widget, themed.
class ctl_Button final : public Control
{
public:
    ctl_Button();

    String Caption() const { return caption_; }
    void Caption(String value);
    /// Shown before the caption; null for none.
    PicturePtr Picture() const { return picture_; }
    void Picture(PicturePtr value);
    FontPtr Font() const { return font_.pointer(); }
    /// Shares the font object; null raises 91.
    void Font(FontPtr value);
    /// Stands out as the one to press.
    bool Accent() const { return accent_; }
    void Accent(bool value);

    Event<> CLICK;
    Event<> GotFocus;
    Event<> LostFocus;
    /// A press has ended here, with whichever button of the mouse.
    Event<const PointerEvent&> MouseUp;

    StringView typeName() const override { return u"ctl_Button"; }
    MemberTable members() const override;
    ControlFrame& frame() override { return frame_; }
    String accessibleText() const override { return caption_; }
    void pointerUp(const PointerEvent& event) override { MouseUp.raise(event); }
    void click() override { CLICK.raise(); }
    void gotFocus() override { GotFocus.raise(); }
    void lostFocus() override { LostFocus.raise(); }

private:
    struct Properties;

    ControlFrame frame_;
    String caption_;
    PicturePtr picture_;
    SharedFont font_;
    bool accent_ = false;
};

} // namespace phial
