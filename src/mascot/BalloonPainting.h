#pragma once

#include "visual/DrawDevice.h"

#include <array>
#include <cstdint>
#include <optional>

namespace phial
{

/// Where the tail of a balloon sits: the edge, and the end of it towards which the tail leans.
enum class enm_BallonZipSide : std::int32_t {
    ID_BallonZipSide_LeftTop = 0,
    ID_BallonZipSide_LeftBottom = 1,
    ID_BallonZipSide_RightTop = 2,
    ID_BallonZipSide_RightBottom = 3,
    ID_BallonZipSide_BottomLeft = 4,
    ID_BallonZipSide_BottomRight = 5,
    ID_BallonZipSide_TopLeft = 6,
    ID_BallonZipSide_TopRight = 7,
};

/// The body of a balloon without its tail, in pixels; the edges belong to it.
struct BalloonBox {
    std::int32_t left = 0;
    std::int32_t top = 0;
    std::int32_t width = 0;
    std::int32_t height = 0;

    std::int32_t right() const { return left + width - 1; }
    std::int32_t bottom() const { return top + height - 1; }
    bool hasRoom() const { return width > 0 && height > 0; }
    /// Raises 6 where an edge lies beyond 32 bits.
    BalloonBox movedBy(std::int32_t x, std::int32_t y) const;

    friend bool operator==(const BalloonBox&, const BalloonBox&) = default;
};

/// Where a tail sits, in words.
struct TailPlace {
    bool isBeside;   ///< on the left or right edge, else on the upper or lower one
    bool atNearEdge; ///< the left or upper edge
    bool atNearEnd;  ///< the upper or left end of it
};

/// A tail: its tip stands out from the corner by `distance`, its base begins as far along the edge and is
/// `size` long. Base and body overlap by a pixel.
struct BalloonTail {
    enm_BallonZipSide side = enm_BallonZipSide::ID_BallonZipSide_LeftTop;
    std::int32_t distance = 0;
    std::int32_t size = 0;

    /// None for a side that does not exist: such a tail takes no room and is not drawn.
    std::optional<TailPlace> place() const;
    /// The part of `all` that is left for the body.
    BalloonBox bodyWithin(const BalloonBox& all) const;
    /// The tip and the two ends of the base.
    std::optional<std::array<PixelPoint, 3>> points(const BalloonBox& body) const;
};

/// A balloon in its colours, drawn around a body: its shadow or itself. A radius that the body has no room
/// for is drawn as half of its shorter edge; 0 gives square corners.
struct BalloonLook {
    std::optional<BalloonTail> tail;
    std::int32_t radius = 0;
    Colour border;
    Colour fill;

    /// All in the fill's colour, but with the tail outlined in the border's.
    void paintShadow(DrawDevice& device, const BalloonBox& body) const;
    /// Body and tail read as one outlined shape.
    void paint(DrawDevice& device, const BalloonBox& body) const;
};

} // namespace phial
