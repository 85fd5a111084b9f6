#include "visual/ctl_Pannel.h"

#include "visual/Markup.h"
#include "visual/PropertyRows.h"
#include "visual/VisualHost.h"

namespace phial
{

namespace
{

constexpr double TextMargin = 4; // between edge and text, in pixels

} // namespace

struct ctl_Pannel::Properties {
    static constexpr rows::Table Table{
        rows::property<u"Caption">(&ctl_Pannel::caption_).kept(u"TEXT").spoken(),
        rows::font<u"Font">(&ctl_Pannel::font_),
        rows::property<u"ForeColor">(&ctl_Pannel::foreColor_, SystemColour::WindowText).kept(),
        rows::property<u"BackColor">(&ctl_Pannel::surface_, &PaintSurface::BackColor,
                                     &PaintSurface::BackColor, SystemColour::ButtonFace)
            .kept(),
        rows::property<u"BorderColor">(&ctl_Pannel::borderColor_, SystemColour::ButtonShadow).kept(),
    };
};

ctl_Pannel::ctl_Pannel() : frame_(*this), surface_(*this)
{
    surface_.children().ScaleMode(ScaleUnit::Twips);
    rows::start<Properties>(*this);
}

MemberTable ctl_Pannel::members() const
{
    return rows::membersOf<Properties>();
}

// One line a setter.
// clang-format off
void ctl_Pannel::Caption(String value) { rows::set<Properties, u"Caption">(*this, std::move(value)); }
void ctl_Pannel::Font(FontPtr value) { rows::set<Properties, u"Font">(*this, std::move(value)); }
void ctl_Pannel::ForeColor(Colour value) { rows::set<Properties, u"ForeColor">(*this, value); }
void ctl_Pannel::BackColor(Colour value) { rows::set<Properties, u"BackColor">(*this, value); }
void ctl_Pannel::BorderColor(Colour value) { rows::set<Properties, u"BorderColor">(*this, value); }
// clang-format on

String ctl_Pannel::accessibleText() const
{
    return plainMarkup(caption_);
}

void ctl_Pannel::readProperties(const PropertyBag& bag)
{
    rows::read<Properties>(*this, bag);
    surface_.invalidate();
}

void ctl_Pannel::writeProperties(PropertyBag& bag)
{
    rows::write<Properties>(*this, bag);
}

void ctl_Pannel::paint()
{
    DrawDevice& device = surface_.device();
    device.Cls();
    const PixelSize size = surface_.size();
    if (!caption_.empty()) {
        const PixelRectangle inside{TextMargin, TextMargin, size.width - 2 * TextMargin,
                                    size.height - 2 * TextMargin};
        device.ForeColor(foreColor_);
        MarkupLayout(caption_, font_->traits(), visualHost().metrics(), inside.width)
            .draw(device, inside, TextSide::Middle, TextSide::Middle);
    }
    device.Line(0, 0, size.width - 1, size.height - 1, borderColor_, LineShape::Box);
}

} // namespace phial
