#pragma once

#include "visual/PaintSurface.h"
#include "visual/UserControl.h"

namespace phial
{

/// A field to draw in, which keeps what is drawn, and a holder for other controls. Where its image is
/// see-through and MaskPicture marks it as shaped, a click goes to what lies below.
class PictureBox final : public UserControl
{
public:
    PictureBox();

    /// What is drawn in; its unit is that of the controls within, too.
    DrawDevice& device() { return surface_.device(); }
    ScaleUnit ScaleMode() const { return surface_.device().ScaleMode(); }
    void ScaleMode(ScaleUnit value);
    /// True: what is drawn stays, and Paint is not raised. False: Paint is raised whenever the image is made.
    bool AutoRedraw() const { return surface_.retains(); }
    void AutoRedraw(bool value);
    /// AutoRedraw off, and Paint is quick and only draws (no holes, no bitwise ink, nothing read back): it
    /// draws on the window itself, and the box has no image. False at first.
    bool PaintsDirectly() const { return surface_.paintsDirectly(); }
    void PaintsDirectly(bool value);
    Colour BackColor() const { return surface_.BackColor(); }
    /// Clears what was drawn.
    void BackColor(Colour value);
    bool transparent() const { return surface_.transparent(); }
    void transparent(bool value);
    /// The picture below what is drawn, from the corner; null for none. Clears what was drawn.
    PicturePtr Picture() const { return picture_; }
    void Picture(PicturePtr value);
    /// The box takes the size of its picture.
    bool AutoSize() const { return autoSize_; }
    void AutoSize(bool value);
    /// A thin line around, within the edges.
    bool border() const { return border_; }
    void border(bool value);
    /// The picture as drawn.
    PicturePtr Image() { return surface_.device().Image(); }
    void MaskPicture(PicturePtr value) { surface_.MaskPicture(std::move(value)); }
    PicturePtr MaskPicture() const { return surface_.MaskPicture(); }
    /// Only this part of the box (in its pixels) is painted, for a box much larger than its holder; what is
    /// drawn counts from the part's corner. A change clears what was drawn. None: everything.
    void PaintedPart(std::optional<PixelRectangle> value) { surface_.imagedPart(value); }
    PixelRectangle PaintedPart() const { return surface_.imagedPart(); }
    /// Clears what was drawn, down to BackColor and Picture.
    void Cls();
    /// AutoRedraw off: Paint is raised anew, on a clear field.
    void Refresh();

    Event<> Click;
    Event<> DblClick;
    Event<const PointerEvent&> MouseDown;
    Event<const PointerEvent&> MouseMove;
    Event<const PointerEvent&> MouseUp;
    Event<WheelEvent&> MouseWheel;
    Event<> GotFocus;
    Event<> LostFocus;
    Event<KeyEvent&> KeyDown;
    Event<KeyPressEvent&> KeyPress;
    Event<KeyEvent&> KeyUp;
    /// What is being composed for the frame's text entry has changed.
    Event<> Composing;
    Event<> Paint;
    Event<> Resize;
    /// A control of the program, and the place in pixels.
    Event<Control&, double, double> DragDrop;
    Event<const String&> TextDropped;

    StringView typeName() const override { return u"PictureBox"; }
    MemberTable members() const override;
    /// That of the picture.
    PixelSize contentSize(std::optional<double> width = std::nullopt) const override;
    ControlFrame& frame() override { return frame_; }
    PaintSurface& surface() override { return surface_; }
    Container* container() override { return &surface_.children(); }
    void paint() override;
    void resized() override;
    void pointerDown(const PointerEvent& event) override { MouseDown.raise(event); }
    void pointerMove(const PointerEvent& event) override { MouseMove.raise(event); }
    void pointerUp(const PointerEvent& event) override { MouseUp.raise(event); }
    void wheel(WheelEvent& event) override { MouseWheel.raise(event); }
    void click() override { Click.raise(); }
    void doubleClick() override { DblClick.raise(); }
    void keyDown(KeyEvent& event) override { KeyDown.raise(event); }
    void keyPress(KeyPressEvent& event) override { KeyPress.raise(event); }
    void keyUp(KeyEvent& event) override { KeyUp.raise(event); }
    void composing() override { Composing.raise(); }
    void gotFocus() override { GotFocus.raise(); }
    void lostFocus() override { LostFocus.raise(); }
    void dragDrop(Control& source, double x, double y) override { DragDrop.raise(source, x, y); }
    void textDropped(const String& text) override { TextDropped.raise(text); }

private:
    struct Properties;

    void layBackground();
    void showPicture();
    void fitToPicture();

    ControlFrame frame_;
    PaintSurface surface_;
    PicturePtr picture_;
    bool autoSize_ = false;
    bool border_ = false;
};

} // namespace phial
