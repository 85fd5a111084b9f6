#include "visual/ctl_Label.h"

#include "visual/PropertyRows.h"
#include "visual/VisualHost.h"

#include <cmath>

namespace phial
{

struct ctl_Label::Properties {
    static constexpr rows::Table Table{
        rows::property<u"Caption">(&ctl_Label::caption_).kept(u"text").then(&ctl_Label::refresh).spoken(),
        rows::font<u"Font">(&ctl_Label::font_).then(&ctl_Label::refresh),
        rows::property<u"ForeColor">(&ctl_Label::foreColor_),
        rows::property<u"Alignment">(&ctl_Label::alignment_),
        rows::property<u"AutoSize">(&ctl_Label::autoSize_).then(&ctl_Label::refresh),
        rows::property<u"PlainText">(&ctl_Label::plain_).then(&ctl_Label::refresh).spoken(),
        rows::property<u"BreaksWords">(&ctl_Label::breaksWords_).then(&ctl_Label::refresh),
        rows::property<u"Raised">(&ctl_Label::raised_),
        rows::property<u"Flat">(&ctl_Label::flat_),
    };
};

ctl_Label::ctl_Label() : frame_(*this), surface_(*this)
{
    surface_.transparent(true);
    rows::start<Properties>(*this);
}

MemberTable ctl_Label::members() const
{
    return rows::membersOf<Properties>();
}

void ctl_Label::refresh()
{
    fitToText();
    surface_.invalidate();
}

void ctl_Label::fitToText()
{
    if (!autoSize_) {
        return;
    }
    const PixelRectangle place = frame_.pixelRectangle();
    fitted_ = {place.width, std::ceil(layOut(place.width).size().height)};
    frame_.pixelRectangle({place.left, place.top, fitted_.width, fitted_.height});
}

MarkupLayout ctl_Label::layOut(std::optional<double> width) const
{
    const TextForm form = plain_ ? TextForm::Plain : breaksWords_ ? TextForm::FittedMarkup : TextForm::Markup;
    return {caption_, font_->traits(), visualHost().metrics(), width, form};
}

// One line a setter.
// clang-format off
void ctl_Label::Caption(String value) { rows::set<Properties, u"Caption">(*this, std::move(value)); }
void ctl_Label::Font(FontPtr value) { rows::set<Properties, u"Font">(*this, std::move(value)); }
void ctl_Label::ForeColor(Colour value) { rows::set<Properties, u"ForeColor">(*this, value); }
void ctl_Label::Alignment(TEXTALIGN value) { rows::set<Properties, u"Alignment">(*this, value); }
void ctl_Label::AutoSize(bool value) { rows::set<Properties, u"AutoSize">(*this, value); }
void ctl_Label::PlainText(bool value) { rows::set<Properties, u"PlainText">(*this, value); }
void ctl_Label::BreaksWords(bool value) { rows::set<Properties, u"BreaksWords">(*this, value); }
void ctl_Label::Raised(bool value) { rows::set<Properties, u"Raised">(*this, value); }
void ctl_Label::Flat(bool value) { rows::set<Properties, u"Flat">(*this, value); }
// clang-format on

String ctl_Label::accessibleText() const
{
    return plain_ ? caption_ : plainMarkup(caption_);
}

void ctl_Label::readProperties(const PropertyBag& bag)
{
    rows::read<Properties>(*this, bag);
    refresh();
}

void ctl_Label::writeProperties(PropertyBag& bag)
{
    rows::write<Properties>(*this, bag);
}

PixelSize ctl_Label::contentSize(std::optional<double> width) const
{
    const PixelSize text = layOut(width).size();
    return {std::ceil(text.width), std::ceil(text.height)};
}

void ctl_Label::resized()
{
    surface_.resized();
    if (surface_.size() != fitted_) {
        fitToText();
    }
}

void ctl_Label::paint()
{
    DrawDevice& device = surface_.device();
    device.Cls();
    const PixelSize size = surface_.size();
    const TextPlace place = placeOf(alignment_);
    const MarkupLayout text = layOut(size.width);
    if (raised_ && !flat_) {
        device.ForeColor(SystemColour::Window);
        text.draw(device, {-1, -1, size.width, size.height}, place.horizontal, place.vertical);
        device.ForeColor(SystemColour::ButtonShadow);
        text.draw(device, {1, 1, size.width, size.height}, place.horizontal, place.vertical);
    }
    device.ForeColor(foreColor_);
    text.draw(device, {0, 0, size.width, size.height}, place.horizontal, place.vertical);
}

} // namespace phial
