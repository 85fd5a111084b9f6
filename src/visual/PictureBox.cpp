#include "visual/PictureBox.h"

#include "visual/PropertyRows.h"

namespace phial
{

struct PictureBox::Properties {
    static constexpr rows::Table Table{
        rows::property<u"ScaleMode">(&PictureBox::ScaleMode, &PictureBox::ScaleMode),
        rows::property<u"AutoRedraw">(&PictureBox::surface_, &PaintSurface::retains, &PaintSurface::retains)
            .still(),
        rows::property<u"PaintsDirectly">(&PictureBox::surface_, &PaintSurface::paintsDirectly,
                                          &PaintSurface::paintsDirectly)
            .still(),
        rows::property<u"BackColor">(&PictureBox::surface_, &PaintSurface::BackColor,
                                     &PaintSurface::BackColor),
        rows::property<u"Transparent">(&PictureBox::surface_, &PaintSurface::transparent,
                                       &PaintSurface::transparent),
        rows::property<u"Picture">(&PictureBox::picture_).then(&PictureBox::showPicture),
        rows::property<u"AutoSize">(&PictureBox::autoSize_).then(&PictureBox::fitToPicture),
        rows::property<u"Border">(&PictureBox::border_),
        rows::operation<u"Cls">(&PictureBox::Cls),
        rows::operation<u"Refresh">(&PictureBox::Refresh),
    };
};

PictureBox::PictureBox() : frame_(*this), surface_(*this)
{
    surface_.retains(true);
    surface_.device().BackColor(SystemColour::ButtonFace);
}

MemberTable PictureBox::members() const
{
    return rows::membersOf<Properties>();
}

void PictureBox::ScaleMode(ScaleUnit value)
{
    if (value == ScaleUnit::Twips || value == ScaleUnit::Pixels) {
        surface_.children().ScaleMode(value);
    }
    surface_.device().ScaleMode(value);
}

// One line a setter.
// clang-format off
void PictureBox::AutoRedraw(bool value) { rows::set<Properties, u"AutoRedraw">(*this, value); }
void PictureBox::PaintsDirectly(bool value) { rows::set<Properties, u"PaintsDirectly">(*this, value); }
void PictureBox::BackColor(Colour value) { rows::set<Properties, u"BackColor">(*this, value); }
void PictureBox::transparent(bool value) { rows::set<Properties, u"Transparent">(*this, value); }
void PictureBox::Picture(PicturePtr value) { rows::set<Properties, u"Picture">(*this, std::move(value)); }
void PictureBox::AutoSize(bool value) { rows::set<Properties, u"AutoSize">(*this, value); }
// clang-format on

void PictureBox::showPicture()
{
    fitToPicture();
    surface_.invalidate();
}

PixelSize PictureBox::contentSize(std::optional<double> /*width*/) const
{
    return picture_ ? PixelSize{picture_->Width(), picture_->Height()} : PixelSize{};
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
    rows::set<Properties, u"Border">(*this, value);
}

void PictureBox::Cls()
{
    layBackground();
    surface_.nothingDrawn();
}

void PictureBox::Refresh()
{
    if (AutoRedraw()) {
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
    if (!AutoRedraw()) {
        Paint.raise();
    }
}

void PictureBox::resized()
{
    surface_.resized();
    Resize.raise();
}

} // namespace phial
