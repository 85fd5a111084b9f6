#include "visual/BitMerge.h"

#include <algorithm>

namespace phial
{

namespace
{

constexpr std::uint32_t Opaque = 0xFF000000U;
constexpr std::uint32_t ColourBits = 0x00FFFFFFU;

/// The colour of a pixel that is not a hole, brought back from its alpha.
std::uint32_t colourBits(std::uint32_t pixel)
{
    const std::uint32_t alpha = pixel >> 24U;
    if (alpha == 0xFFU || alpha == 0) {
        return pixel & ColourBits;
    }
    std::uint32_t colour = 0;
    for (const std::uint32_t shift : {16U, 8U, 0U}) {
        const std::uint32_t part = (((pixel >> shift) & 0xFFU) * 0xFFU + alpha / 2) / alpha;
        colour |= std::min(part, 0xFFU) << shift;
    }
    return colour;
}

} // namespace

BitMerge::BitMerge(RasterMode mode, std::optional<std::uint32_t> hole) : mode_(mode), hole_(hole) {}

std::uint32_t BitMerge::operator()(std::uint32_t held, std::uint32_t drawn) const
{
    const bool isHole = held >> 24U == 0;
    if (isHole && !hole_) {
        return held;
    }
    const std::uint32_t before = isHole ? *hole_ : colourBits(held);
    const std::uint32_t after = combined(before, colourBits(drawn));
    if (after == before) {
        return held;
    }
    return after == hole_ ? 0 : Opaque | after;
}

std::uint32_t BitMerge::combined(std::uint32_t colour, std::uint32_t drawn) const
{
    switch (mode_) {
    case RasterMode::And:
        return colour & drawn;
    case RasterMode::Xor:
        return colour ^ drawn;
    case RasterMode::Paint:
    case RasterMode::Copy:
        break;
    }
    return colour;
}

} // namespace phial
