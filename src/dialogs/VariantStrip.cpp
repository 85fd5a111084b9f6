#include "dialogs/VariantStrip.h"

#include <algorithm>
#include <utility>

namespace phial
{

namespace
{

/// As few rows as there is room for, about as long as each other.
std::size_t columnsFor(std::size_t count, double edge, double room)
{
    const auto most = std::max(std::size_t{1}, static_cast<std::size_t>(std::max(room, 0.0) / edge));
    const std::size_t rows = (count + most - 1) / most;
    return (count + rows - 1) / rows;
}

} // namespace

VariantStrip::VariantStrip(std::vector<KeyVariant> variants, const PixelRectangle& key, const PixelSize& room)
    : variants_(std::move(variants)), columns_(columnsFor(variants_.size(), key.height, room.width)),
      edge_(key.height)
{
    const double width = edge_ * static_cast<double>(columns_);
    const double height = edge_ * static_cast<double>(rows());
    const double left = std::clamp(key.left, 0.0, std::max(0.0, room.width - width));
    const bool hasRoomAbove = key.top >= height;
    const bool isHigher = rows() > 1; // a single row may stand below the last keys, and is seen for the most
    const double below = isHigher ? std::min(key.bottom(), room.height - height) : key.bottom();
    area_ = {left, hasRoomAbove ? key.top - height : std::max(0.0, below), width, height};
}

PixelRectangle VariantStrip::cell(std::size_t at) const
{
    const std::size_t row = at / columns_;
    const std::size_t column = at % columns_;
    return {area_.left + edge_ * static_cast<double>(column), area_.top + edge_ * static_cast<double>(row),
            edge_, edge_};
}

std::optional<std::size_t> VariantStrip::cellAt(PixelPoint point) const
{
    if (!area_.contains(point)) {
        return std::nullopt;
    }
    const auto column = std::min(static_cast<std::size_t>((point.x - area_.left) / edge_), columns_ - 1);
    const auto row = std::min(static_cast<std::size_t>((point.y - area_.top) / edge_), rows() - 1);
    const std::size_t at = row * columns_ + column;
    return at < count() ? std::optional(at) : std::nullopt;
}

void VariantStrip::step(bool isForward)
{
    chosen_ = (chosen_ + (isForward ? 1 : count() - 1)) % count();
}

void VariantStrip::stepRow(bool isDown)
{
    if (isDown && chosen_ + columns_ < count()) {
        chosen_ += columns_;
    } else if (!isDown && chosen_ >= columns_) {
        chosen_ -= columns_;
    }
}

} // namespace phial
