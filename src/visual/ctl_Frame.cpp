#include "visual/ctl_Frame.h"

#include "visual/Change.h"
#include "visual/FrameMembers.h"
#include "visual/Markup.h"
#include "visual/VisualHost.h"

namespace phial
{

namespace
{

constexpr double CaptionLeft = 9; // of the caption, in pixels
constexpr double CaptionGap = 3;  // between caption and line

constexpr auto Table = joinMembers(
    FrameMembers,
    std::to_array<Member>({
        members::property<ctl_Frame, String, &ctl_Frame::Caption, &ctl_Frame::Caption>(u"Caption"),
        members::property<ctl_Frame, FontPtr, &ctl_Frame::Font, &ctl_Frame::Font>(u"Font"),
        members::property<ctl_Frame, Colour, &ctl_Frame::ForeColor, &ctl_Frame::ForeColor>(u"ForeColor"),
        members::property<ctl_Frame, Colour, &ctl_Frame::BackColor, &ctl_Frame::BackColor>(u"BackColor"),
    }));

} // namespace

ctl_Frame::ctl_Frame() : frame_(*this), surface_(*this), font_(std::make_shared<phial::Font>())
{
    surface_.BackColor(SystemColour::ButtonFace);
    surface_.children().ScaleMode(ScaleUnit::Twips);
    fontChanged_ = font_->changed.connect([this] { surface_.invalidate(); });
}

MemberTable ctl_Frame::members() const
{
    return Table;
}

void ctl_Frame::Caption(String value)
{
    if (change(caption_, std::move(value))) {
        surface_.invalidate();
        frame_.report(ControlAspect::Accessibility);
        PropertyChanged.emit(u"Caption");
    }
}

void ctl_Frame::Font(FontPtr value)
{
    shareFont(font_, fontChanged_, std::move(value), [this] { surface_.invalidate(); });
}

void ctl_Frame::ForeColor(Colour value)
{
    if (change(foreColor_, value)) {
        surface_.invalidate();
        PropertyChanged.emit(u"ForeColor");
    }
}

void ctl_Frame::BackColor(Colour value)
{
    if (surface_.BackColor() != value) {
        surface_.BackColor(value);
        surface_.invalidate();
        PropertyChanged.emit(u"BackColor");
    }
}

String ctl_Frame::accessibleText() const
{
    return plainMarkup(caption_);
}

void ctl_Frame::readProperties(const PropertyBag& bag)
{
    const ctl_Frame fresh;
    caption_ = bag.ReadProperty(u"CAPTION", u"").toText();
    foreColor_ =
        members::fromVariant<Colour>(bag.ReadProperty(u"FORECOLOR", members::toVariant(fresh.foreColor_)));
    surface_.BackColor(
        members::fromVariant<Colour>(bag.ReadProperty(u"BACKCOLOR", members::toVariant(fresh.BackColor()))));
    surface_.invalidate();
}

void ctl_Frame::writeProperties(PropertyBag& bag)
{
    const ctl_Frame fresh;
    bag.WriteProperty(u"CAPTION", caption_, u"");
    bag.WriteProperty(u"FORECOLOR", members::toVariant(foreColor_), members::toVariant(fresh.foreColor_));
    bag.WriteProperty(u"BACKCOLOR", members::toVariant(BackColor()), members::toVariant(fresh.BackColor()));
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
