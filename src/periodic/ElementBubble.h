#pragma once

#include "core/String.h"
#include "visual/Geometry.h"

#include <cstdint>

namespace phial
{

class cls_DataElement;
enum class enm_BallonZipSide : std::int32_t;

/// Where a bubble that tells of a cell stands, in the table's pixels: at its lower right, unless it would
/// reach beyond the table's corner.
struct BubblePlace {
    enm_BallonZipSide side{};
    PixelPoint corner; ///< left upper one

    /// Its tail's point is 5 pixels away from the middle of the cell.
    static BubblePlace beside(const PixelRectangle& cell, PixelSize bubble, PixelPoint tableCorner);

    friend bool operator==(const BubblePlace&, const BubblePlace&) = default;
};

/// What the bubble tells: name, symbol, protons and molar mass, a line each.
String bubbleText(const cls_DataElement& element);

} // namespace phial
