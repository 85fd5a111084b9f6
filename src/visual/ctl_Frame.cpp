#include "visual/ctl_Frame.h"

#include "visual/Markup.h"
#include "visual/PropertyRows.h"
#include "visual/VisualHost.h"

namespace phial
{

namespace
{

constexpr double CaptionLeft = 9; // of the caption, in pixels
constexpr double CaptionGap = 3;  // between caption and line

} // namespace

struct ctl_Frame::Properties {
    static constexpr rows::Table Table{
        rows::property<u"Caption">(&ctl_Frame::caption_).kept().spoken(),
        rows::font<u"Font">(&ctl_Frame::font_),
        rows::property<u"ForeColor">(&ctl_Frame::foreColor_, SystemColour::WindowText).kept(),
        rows::property<u"BackColor">(&ctl_Frame::surface_, &PaintSurface::BackColor, &PaintSurface::BackColor,
                                     SystemColour::ButtonFace)
            .kept(),
    };
};

ctl_Frame::ctl_Frame() : frame_(*this), surface_(*this)
{
    surface_.children().ScaleMode(ScaleUnit::Twips);
    rows::start<Properties>(*this);
}

MemberTable ctl_Frame::members() const
{
    return rows::membersOf<Properties>();
}

// One line a setter.
// clang-format off
void ctl_Frame::Caption(String value) { rows::set<Properties, u"Caption">(*this, std::move(value)); }
void ctl_Frame::Font(FontPtr value) { rows::set<Properties, u"Font">(*this, std::move(value)); }
void ctl_Frame::ForeColor(Colour value) { rows::set<Properties, u"ForeColor">(*this, value); }
void ctl_Frame::BackColor(Colour value) { rows::set<Properties, u"BackColor">(*this, value); }
// clang-format on

String ctl_Frame::accessibleText() const
{
    return plainMarkup(caption_);
}

void ctl_Frame::readProperties(const PropertyBag& bag)
{
    rows::read<Properties>(*this, bag);
    surface_.invalidate();
}

void ctl_Frame::writeProperties(PropertyBag& bag)
{
    rows::write<Properties>(*this, bag);
}

void ctl_Frame::paint()
{
    DrawDevice& device = surface_.device();
    device.Cls();
    const PixelSize size = surface_.size();
    const MarkupLayout caption(caption_, font_->traits(), visualHost().metrics());
    const double lineTop = caption_.empty() ? 0 : caption.size().height / 2;
    device.Line(0, lineTop, size.width - 1, size.height - 1, SystemColour::ButtonShadow, LineShape::Box);
    if (caption_.empty()) {
        return;
    }
    const PixelRectangle place{CaptionLeft, 0, caption.size().width, caption.size().height};
    device.Line(place.left - CaptionGap, lineTop, place.right() + CaptionGap, lineTop, BackColor());
    device.ForeColor(foreColor_);
    caption.draw(device, place, TextSide::Near, TextSide::Near);
}

} // namespace phial
