#include "dialogs/PageZoom.h"

#include <algorithm>
#include <cmath>

namespace phial
{

namespace
{

/// Where a length starts that has just been moved there.
double heldIn(double start, double length, double view)
{
    return length <= view ? std::floor((view - length) / 2) : std::clamp(start, view - length, 0.0);
}

} // namespace

void PageZoom::reset(PixelSize page, PixelSize view)
{
    page_ = page;
    view_ = view;
    factor_ = 1;
    place_ = {0, 0, page.width, page.height};
    hold();
}

PixelRectangle PageZoom::seenPart() const
{
    const double left = std::max(0.0, -place_.left);
    const double top = std::max(0.0, -place_.top);
    return {left, top, std::min(place_.width - left, view_.width),
            std::min(place_.height - top, view_.height)};
}

void PageZoom::enlarge(double by, PixelPoint at)
{
    if (!(by > 0)) {
        return;
    }
    const double factor = std::clamp(factor_ * by, 1.0, Most);
    const double growth = factor / factor_;
    factor_ = factor;
    place_.left = at.x - (at.x - place_.left) * growth;
    place_.top = at.y - (at.y - place_.top) * growth;
    place_.width = page_.width * factor;
    place_.height = page_.height * factor;
    hold();
}

void PageZoom::move(double x, double y)
{
    place_.left += x;
    place_.top += y;
    hold();
}

void PageZoom::hold()
{
    place_.left = heldIn(place_.left, place_.width, view_.width);
    place_.top = heldIn(place_.top, place_.height, view_.height);
}

} // namespace phial
