#pragma once

#include "visual/DrawBackend.h"

#include <cstdint>
#include <optional>

namespace phial
{

/// How And and Xor change a pixel. Pixels are premultiplied ARGB, as pictures hold them.
///
/// The bits are those of the colours. A pixel whose colour they leave as it is keeps its alpha; any other
/// becomes opaque, so that what is blitted onto a soft edge or a hole is seen. A hole has the hole
/// colour, and a pixel that gets this colour becomes a hole; without a hole colour a hole stays one. So And
/// with a mask and Xor with its sprite set the sprite down on anything, and Xor twice brings a hole back.
class BitMerge
{
public:
    /// And or Xor; another mode leaves every pixel as it is. `hole` is the hole colour as 0x00RRGGBB.
    BitMerge(RasterMode mode, std::optional<std::uint32_t> hole);

    /// What becomes of `held` when the pixel `drawn` meets it, of which only the colour counts.
    std::uint32_t operator()(std::uint32_t held, std::uint32_t drawn) const;

private:
    std::uint32_t combined(std::uint32_t colour, std::uint32_t drawn) const;

    RasterMode mode_;
    std::optional<std::uint32_t> hole_; ///< without alpha
};

} // namespace phial
