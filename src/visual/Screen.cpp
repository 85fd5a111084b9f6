#include "visual/Screen.h"

#include "visual/Form.h"
#include "visual/VisualHost.h"

#include <algorithm>
#include <cmath>

namespace phial
{

namespace
{

/// 0 inside.
double distance(PixelPoint point, const PixelRectangle& area)
{
    // The right and bottom edges are outside, so that a point there is nearer to a neighbour.
    const double right = std::nextafter(area.right(), area.left);
    const double bottom = std::nextafter(area.bottom(), area.top);
    return std::hypot(point.x - std::clamp(point.x, area.left, right),
                      point.y - std::clamp(point.y, area.top, bottom));
}

} // namespace

std::shared_ptr<Form> Screen::ActiveForm() const
{
    return visualHost().forms().ActiveForm();
}

double Screen::Width() const
{
    return first().width * TwipsPerPixel;
}

double Screen::Height() const
{
    return first().height * TwipsPerPixel;
}

PixelRectangle Screen::first() const
{
    const auto screens = visualHost().screens();
    return screens.empty() ? PixelRectangle() : screens.front();
}

PixelRectangle Screen::at(PixelPoint point) const
{
    const auto screens = visualHost().screens();
    const auto nearest = std::ranges::min_element(
        screens, {}, [point](const PixelRectangle& screen) { return distance(point, screen); });
    return nearest == screens.end() ? PixelRectangle() : *nearest;
}

PixelRectangle Screen::of(const Form& form) const
{
    return at(
        {(form.Left() + form.Width() / 2) / TwipsPerPixel, (form.Top() + form.Height() / 2) / TwipsPerPixel});
}

void Screen::MousePointer(phial::MousePointer value)
{
    if (pointer_ != value) {
        pointer_ = value;
        visualHost().screenPointerChanged(value);
    }
}

} // namespace phial
