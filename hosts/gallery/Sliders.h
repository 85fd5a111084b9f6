#pragma once

#include "gallery/Stage.h"

#include <cstdint>
#include <span>

namespace gallery
{

/// A property of numbers that a slider sets: from the least to the greatest one, in steps.
struct Slider {
    phial::StringView property;
    double least = 0;
    double greatest = 0;
    double step = 1;
};

/// Puts a slider for each property of the control into that area of the stage, row by row in two columns. The
/// property's name and value stand above each; they follow when the control tells a change.
void putSliders(Stage& stage, const std::shared_ptr<phial::UserControl>& control,
                std::span<const Slider> sliders, const phial::PixelRectangle& area);

} // namespace gallery
