#pragma once

#include "visual/Geometry.h"

namespace phial
{
class DrawDevice;
}

namespace formula_page
{

/// The page's size in pixels.
phial::PixelSize pageSize();

/// Draws the page: some thirty school formulas under headings, each with its notation and what it shows. The
/// device is at least as large as `pageSize` and in pixels.
void drawPage(phial::DrawDevice& device);

} // namespace formula_page
