#pragma once

#include "visual/TextMetrics.h"

#include <cstddef>
#include <vector>

namespace phial::headless
{

/// Metrics that tests can compute by hand: each 16-bit unit is half the point size wide and each line one and
/// a quarter of it high, in pixels, for every font. So "H2O" in size 8 is 12 wide and 10 high. The base line
/// lies one point size below the top.
class FixedTextMetrics final : public TextMetrics
{
public:
    static constexpr double WidthPerPoint = 0.5;
    static constexpr double HeightPerPoint = 1.25;

    std::shared_ptr<const FontFace> face(const FontSpec& font) override;
    /// Every name.
    bool hasFont(StringView) const override { return true; }
    /// How often a face has been asked for, as each layout of a text does.
    std::size_t asked() const { return asked_; }

private:
    std::size_t asked_ = 0;
    std::vector<std::shared_ptr<const FontFace>> faces_;
};

/// The traits behind a face of FixedTextMetrics.
const FontSpec& fontOfFace(const FontFace& face);

} // namespace phial::headless
