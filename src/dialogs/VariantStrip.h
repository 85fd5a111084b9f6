#pragma once

#include "dialogs/KeyVariants.h"
#include "visual/Geometry.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace phial
{

/// What a held key offers, in cells beside the key, one of which can be chosen: in a row, or in as many rows
/// as the room makes needful. Places are pixels of what the keys stand on.
class VariantStrip
{
public:
    /// Above the key, or below it where there is no room, within `room`; cells are squares of the key's
    /// height. There is at least one variant.
    VariantStrip(std::vector<KeyVariant> variants, const PixelRectangle& key, const PixelSize& room);

    std::size_t count() const { return variants_.size(); }
    const KeyVariant& variant(std::size_t at) const { return variants_[at]; }
    std::size_t columns() const { return columns_; }
    std::size_t rows() const { return (count() + columns_ - 1) / columns_; }
    const PixelRectangle& area() const { return area_; }
    PixelRectangle cell(std::size_t at) const;
    /// None behind the last one too.
    std::optional<std::size_t> cellAt(PixelPoint point) const;

    /// The one that keys and fingers have reached; the first at first.
    std::size_t chosen() const { return chosen_; }
    void chosen(std::size_t value) { chosen_ = value; }
    /// One further, or back; from the last to the first.
    void step(bool isForward);
    /// The one below, or above; where there is none it stays.
    void stepRow(bool isDown);

private:
    std::vector<KeyVariant> variants_;
    std::size_t columns_;
    double edge_;
    PixelRectangle area_;
    std::size_t chosen_ = 0;
};

} // namespace phial
