#include "dialogs/VariantStrip.h"

#include <algorithm>
#include <utility>

namespace phial
{

VariantStrip::VariantStrip(String characters, const PixelRectangle& key, const PixelSize& room)
    : characters_(std::move(characters))
{
    const double cell = key.height;
    const double width = cell * static_cast<double>(characters_.size());
    const double left = std::clamp(key.left, 0.0, std::max(0.0, room.width - width));
    const bool hasRoomAbove = key.top >= cell;
    area_ = {left, hasRoomAbove ? key.top - cell : key.bottom(), width, cell};
}

PixelRectangle VariantStrip::cell(std::size_t at) const
{
    const double edge = area_.height;
    return {area_.left + edge * static_cast<double>(at), area_.top, edge, edge};
}

std::optional<std::size_t> VariantStrip::cellAt(PixelPoint point) const
{
    if (!area_.contains(point)) {
        return std::nullopt;
    }
    const auto at = static_cast<std::size_t>((point.x - area_.left) / area_.height);
    return std::min(at, count() - 1);
}

void VariantStrip::step(bool isForward)
{
    chosen_ = (chosen_ + (isForward ? 1 : count() - 1)) % count();
}

} // namespace phial
