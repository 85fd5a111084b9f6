#include "visual/ctl_Gradient.h"

#include "visual/PropertyRows.h"

namespace phial
{

namespace
{

constexpr int Steps = 256;

} // namespace

struct ctl_Gradient::Properties {
    static constexpr rows::Table Table{
        rows::property<u"Color1">(&ctl_Gradient::from_, RGB(255, 255, 255)).kept(),
        rows::property<u"Color2">(&ctl_Gradient::to_, RGB(192, 208, 224)).kept(),
        rows::property<u"Angle">(&ctl_Gradient::angle_, 90).kept(),
    };
};

ctl_Gradient::ctl_Gradient() : frame_(*this), surface_(*this)
{
    rows::start<Properties>(*this);
}

MemberTable ctl_Gradient::members() const
{
    return rows::membersOf<Properties>();
}

// One line a setter.
// clang-format off
void ctl_Gradient::Color1(Colour value) { rows::set<Properties, u"Color1">(*this, value); }
void ctl_Gradient::Color2(Colour value) { rows::set<Properties, u"Color2">(*this, value); }
void ctl_Gradient::Angle(double value) { rows::set<Properties, u"Angle">(*this, value); }
// clang-format on

void ctl_Gradient::readProperties(const PropertyBag& bag)
{
    rows::read<Properties>(*this, bag);
    surface_.invalidate();
}

void ctl_Gradient::writeProperties(PropertyBag& bag)
{
    rows::write<Properties>(*this, bag);
}

void ctl_Gradient::paint()
{
    const PixelSize size = surface_.size();
    surface_.device().Gradient(0, 0, size.width, size.height, from_, to_, angle_, Steps);
}

} // namespace phial
