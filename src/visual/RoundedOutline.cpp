#include "visual/RoundedOutline.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace phial
{

std::vector<PixelPoint> roundedOutline(const PixelRectangle& area, double radius)
{
    const double right = area.right() - 1;
    const double bottom = area.bottom() - 1;
    const double bend = std::max(0.0, std::min({radius, (right - area.left) / 2, (bottom - area.top) / 2}));
    const PixelPoint centres[] = {{right - bend, area.top + bend},
                                  {area.left + bend, area.top + bend},
                                  {area.left + bend, bottom - bend},
                                  {right - bend, bottom - bend}};
    constexpr int Points = 8;
    std::vector<PixelPoint> outline;
    for (int corner = 0; corner < 4; ++corner) {
        for (int i = 0; i <= Points; ++i) {
            const double angle = (corner + static_cast<double>(i) / Points) * std::numbers::pi / 2;
            outline.push_back(
                {centres[corner].x + bend * std::cos(angle), centres[corner].y - bend * std::sin(angle)});
        }
    }
    return outline;
}

} // namespace phial
