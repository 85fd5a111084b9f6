#include "visual/PictureBox.h"

#include "visual/Change.h"
#include "visual/FrameMembers.h"

namespace phial
{

namespace
{

constexpr auto Table = joinMembers(
    FrameMembers,
    std::to_array<Member>({
        members::property<PictureBox, ScaleUnit, &PictureBox::ScaleMode, &PictureBox::ScaleMode>(
            u"ScaleMode"),
        members::property<PictureBox, bool, &PictureBox::AutoRedraw, &PictureBox::AutoRedraw>(u"AutoRedraw"),
        members::property<PictureBox, Colour, &PictureBox::BackColor, &PictureBox::BackColor>(u"BackColor"),
        members::property<PictureBox, bool, &PictureBox::transparent, &PictureBox::transparent>(
            u"Transparent"),
        members::property<PictureBox, PicturePtr, &PictureBox::Picture, &PictureBox::Picture>(u"Picture"),
        members::property<PictureBox, bool, &PictureBox::AutoSize, &PictureBox::AutoSize>(u"AutoSize"),
        members::property<PictureBox, bool, &PictureBox::border, &PictureBox::border>(u"Border"),
        members::operation<PictureBox, &PictureBox::Cls>(u"Cls"),
        members::operation<PictureBox, &PictureBox::Refresh>(u"Refresh"),
    }));

} // namespace

PictureBox::PictureBox() : frame_(*this), surface_(*this)
{
    surface_.retains(true);
    surface_.device().BackColor(SystemColour::ButtonFace);
}

MemberTable PictureBox::members() const
{
    return Table;
}

void PictureBox::ScaleMode(ScaleUnit value)
{
    if (value == ScaleUnit::Twips || value == ScaleUnit::Pixels) {
        surface_.children().ScaleMode(value);
    }
    surface_.device().ScaleMode(value);
}

void PictureBox::AutoRedraw(bool value)
{
    if (change(autoRedraw_, value)) {
        surface_.retains(value);
    }
}

void PictureBox::BackColor(Colour value)
{
    surface_.BackColor(value);
}

void PictureBox::transparent(bool value)
{
    surface_.transparent(value);
}

void PictureBox::Picture(PicturePtr value)
{
    if (change(picture_, std::move(value))) {
        fitToPicture();
        surface_.invalidate();
    }
}

void PictureBox::AutoSize(bool value)
{
    if (change(autoSize_, value)) {
        fitToPicture();
    }
}

void PictureBox::fitToPicture()
{
    if (autoSize_ && picture_) {
        const PixelRectangle place = frame_.pixelRectangle();
        frame_.pixelRectangle({place.left, place.top, picture_->Width(), picture_->Height()});
    }
}

void PictureBox::border(bool value)
{
    if (change(border_, value)) {
        surface_.invalidate();
    }
}

void PictureBox::Cls()
{
    layBackground();
}

void PictureBox::Refresh()
{
    if (autoRedraw_) {
        frame_.report(ControlAspect::Picture);
    } else {
        surface_.invalidate();
    }
}

void PictureBox::layBackground()
{
    DrawDevice& device = surface_.device();
    device.Cls();
    const ScaleUnit unit = device.ScaleMode();
    device.ScaleMode(ScaleUnit::Pixels);
    const PixelRectangle part = surface_.imagedPart();
    if (picture_) {
        device.PaintPicture(picture_, -part.left, -part.top);
    }
    if (border_) {
        const PixelSize size = surface_.size();
        device.Line(-part.left, -part.top, size.width - 1 - part.left, size.height - 1 - part.top,
                    SystemColour::ButtonShadow, LineShape::Box);
    }
    device.ScaleMode(unit);
    device.CurrentX(0);
    device.CurrentY(0);
}

void PictureBox::paint()
{
    layBackground();
    if (!autoRedraw_) {
        Paint.emit();
    }
}

void PictureBox::resized()
{
    surface_.resized();
    Resize.emit();
}

} // namespace phial
