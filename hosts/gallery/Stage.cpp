#include "gallery/Stage.h"

#include "core/Variant.h"

#include <cmath>

namespace gallery
{

Stage::Stage(phial::Form& form, phial::Container& place, phial::PixelSize size)
    : form_(form), place_(place), size_(size)
{
    place_.ScaleMode(phial::ScaleUnit::Pixels);
}

phial::PixelRectangle Stage::middle(phial::PixelSize size) const
{
    return {std::floor((size_.width - size.width) / 2), std::floor((size_.height - size.height) / 2),
            size.width, size.height};
}

void Stage::add(const phial::ControlPtr& control, const phial::PixelRectangle& area, phial::Container* holder)
{
    const phial::String type(control->typeName());
    std::int32_t number = 1;
    while (form_.find(type + phial::Variant(number).toText())) {
        ++number;
    }
    control->frame().NAME(type + phial::Variant(number).toText());
    phial::initialise(*control);
    control->frame().pixelRectangle(area);
    form_.add(control, holder ? holder : &place_);
    atEnd([this, control] { form_.remove(*control); });
}

void Stage::addComponent(const phial::ObjectPtr& component)
{
    form_.addComponent(component);
    atEnd([this, component] { form_.remove(*component); });
}

void Stage::centre()
{
    if (const auto control = centred_.lock()) {
        const phial::PixelRectangle area = control->frame().pixelRectangle();
        control->frame().pixelRectangle(middle({area.width, area.height}));
    }
}

void Stage::clear()
{
    centred_.reset();
    connections_.clear();
    while (!endings_.empty()) {
        const auto action = std::move(endings_.back());
        endings_.pop_back();
        action();
    }
}

} // namespace gallery
