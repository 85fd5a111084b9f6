#include "visual/ctl_Gradient.h"

#include "visual/Change.h"
#include "visual/FrameMembers.h"

namespace phial
{

namespace
{

constexpr int Steps = 256;

constexpr auto Table = joinMembers(
    FrameMembers,
    std::to_array<Member>({
        members::property<ctl_Gradient, Colour, &ctl_Gradient::Color1, &ctl_Gradient::Color1>(u"Color1"),
        members::property<ctl_Gradient, Colour, &ctl_Gradient::Color2, &ctl_Gradient::Color2>(u"Color2"),
        members::property<ctl_Gradient, double, &ctl_Gradient::Angle, &ctl_Gradient::Angle>(u"Angle"),
    }));

} // namespace

ctl_Gradient::ctl_Gradient() : frame_(*this), surface_(*this) {}

MemberTable ctl_Gradient::members() const
{
    return Table;
}

void ctl_Gradient::Color1(Colour value)
{
    if (change(from_, value)) {
        surface_.invalidate();
        PropertyChanged.emit(u"Color1");
    }
}

void ctl_Gradient::Color2(Colour value)
{
    if (change(to_, value)) {
        surface_.invalidate();
        PropertyChanged.emit(u"Color2");
    }
}

void ctl_Gradient::Angle(double value)
{
    if (change(angle_, value)) {
        surface_.invalidate();
        PropertyChanged.emit(u"Angle");
    }
}

void ctl_Gradient::readProperties(const PropertyBag& bag)
{
    from_ = members::fromVariant<Colour>(bag.ReadProperty(u"COLOR1", members::toVariant(from_)));
    to_ = members::fromVariant<Colour>(bag.ReadProperty(u"COLOR2", members::toVariant(to_)));
    angle_ = bag.ReadProperty(u"ANGLE", angle_).toReal();
    surface_.invalidate();
}

void ctl_Gradient::writeProperties(PropertyBag& bag)
{
    const ctl_Gradient fresh;
    bag.WriteProperty(u"COLOR1", members::toVariant(from_), members::toVariant(fresh.from_));
    bag.WriteProperty(u"COLOR2", members::toVariant(to_), members::toVariant(fresh.to_));
    bag.WriteProperty(u"ANGLE", angle_, fresh.angle_);
}

void ctl_Gradient::paint()
{
    const PixelSize size = surface_.size();
    surface_.device().Gradient(0, 0, size.width, size.height, from_, to_, angle_, Steps);
}

} // namespace phial
