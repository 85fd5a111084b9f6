#include "visual/ctl_Pannel.h"

#include "visual/Change.h"
#include "visual/FrameMembers.h"
#include "visual/Markup.h"
#include "visual/VisualHost.h"

namespace phial
{

namespace
{

constexpr double Margin = 4; // between edge and text, in pixels

constexpr auto Table = joinMembers(
    FrameMembers,
    std::to_array<Member>({
        members::property<ctl_Pannel, String, &ctl_Pannel::Caption, &ctl_Pannel::Caption>(u"Caption"),
        members::property<ctl_Pannel, FontPtr, &ctl_Pannel::Font, &ctl_Pannel::Font>(u"Font"),
        members::property<ctl_Pannel, Colour, &ctl_Pannel::ForeColor, &ctl_Pannel::ForeColor>(u"ForeColor"),
        members::property<ctl_Pannel, Colour, &ctl_Pannel::BackColor, &ctl_Pannel::BackColor>(u"BackColor"),
        members::property<ctl_Pannel, Colour, &ctl_Pannel::BorderColor, &ctl_Pannel::BorderColor>(
            u"BorderColor"),
    }));

} // namespace

ctl_Pannel::ctl_Pannel() : frame_(*this), surface_(*this), font_(std::make_shared<phial::Font>())
{
    surface_.BackColor(SystemColour::ButtonFace);
    surface_.children().ScaleMode(ScaleUnit::Twips);
    fontChanged_ = font_->changed.connect([this] { surface_.invalidate(); });
}

MemberTable ctl_Pannel::members() const
{
    return Table;
}

void ctl_Pannel::Caption(String value)
{
    if (change(caption_, std::move(value))) {
        surface_.invalidate();
        frame_.report(ControlAspect::Accessibility);
        PropertyChanged.emit(u"Caption");
    }
}

void ctl_Pannel::Font(FontPtr value)
{
    shareFont(font_, fontChanged_, std::move(value), [this] { surface_.invalidate(); });
}

void ctl_Pannel::ForeColor(Colour value)
{
    if (change(foreColor_, value)) {
        surface_.invalidate();
        PropertyChanged.emit(u"ForeColor");
    }
}

void ctl_Pannel::BackColor(Colour value)
{
    if (surface_.BackColor() != value) {
        surface_.BackColor(value);
        surface_.invalidate();
        PropertyChanged.emit(u"BackColor");
    }
}

void ctl_Pannel::BorderColor(Colour value)
{
    if (change(borderColor_, value)) {
        surface_.invalidate();
        PropertyChanged.emit(u"BorderColor");
    }
}

String ctl_Pannel::accessibleText() const
{
    return plainMarkup(caption_);
}

void ctl_Pannel::readProperties(const PropertyBag& bag)
{
    const ctl_Pannel fresh;
    const auto colour = [&bag](StringView key, Colour standard) {
        return members::fromVariant<Colour>(bag.ReadProperty(key, members::toVariant(standard)));
    };
    caption_ = bag.ReadProperty(u"TEXT", u"").toText();
    foreColor_ = colour(u"FORECOLOR", fresh.foreColor_);
    borderColor_ = colour(u"BORDERCOLOR", fresh.borderColor_);
    surface_.BackColor(colour(u"BACKCOLOR", fresh.BackColor()));
    surface_.invalidate();
}

void ctl_Pannel::writeProperties(PropertyBag& bag)
{
    const ctl_Pannel fresh;
    bag.WriteProperty(u"TEXT", caption_, u"");
    bag.WriteProperty(u"FORECOLOR", members::toVariant(foreColor_), members::toVariant(fresh.foreColor_));
    bag.WriteProperty(u"BACKCOLOR", members::toVariant(BackColor()), members::toVariant(fresh.BackColor()));
    bag.WriteProperty(u"BORDERCOLOR", members::toVariant(borderColor_),
                      members::toVariant(fresh.borderColor_));
}

void ctl_Pannel::paint()
{
    DrawDevice& device = surface_.device();
    device.Cls();
    const PixelSize size = surface_.size();
    if (!caption_.empty()) {
        const PixelRectangle inside{Margin, Margin, size.width - 2 * Margin, size.height - 2 * Margin};
        device.ForeColor(foreColor_);
        MarkupLayout(caption_, font_->traits(), visualHost().metrics(), inside.width)
            .draw(device, inside, TextSide::Middle, TextSide::Middle);
    }
    device.Line(0, 0, size.width - 1, size.height - 1, borderColor_, LineShape::Box);
}

} // namespace phial
