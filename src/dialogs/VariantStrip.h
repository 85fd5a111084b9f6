#pragma once

#include "core/String.h"
#include "visual/Geometry.h"

#include <cstddef>
#include <optional>

namespace phial
{

/// A row of characters beside a key that is held, one of which can be chosen. Places are pixels of what the
/// keys stand on.
class VariantStrip
{
public:
    /// Above the key, or below it where there is no room, within `room`; cells have the key's height.
    VariantStrip(String characters, const PixelRectangle& key, const PixelSize& room);

    std::size_t count() const { return characters_.size(); }
    char16_t character(std::size_t at) const { return characters_[at]; }
    const PixelRectangle& area() const { return area_; }
    PixelRectangle cell(std::size_t at) const;
    std::optional<std::size_t> cellAt(PixelPoint point) const;

    /// The one that keys and fingers have reached; the first at first.
    std::size_t chosen() const { return chosen_; }
    void chosen(std::size_t value) { chosen_ = value; }
    /// One further, or back; from the last to the first.
    void step(bool isForward);

private:
    String characters_;
    PixelRectangle area_;
    std::size_t chosen_ = 0;
};

} // namespace phial
