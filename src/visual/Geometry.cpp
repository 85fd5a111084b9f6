#include "visual/Geometry.h"

#include "core/RuntimeError.h"

#include <algorithm>

namespace phial
{

PixelRectangle PixelRectangle::united(const PixelRectangle& other) const
{
    const PixelPoint corner{std::min(left, other.left), std::min(top, other.top)};
    return {corner.x, corner.y, std::max(right(), other.right()) - corner.x,
            std::max(bottom(), other.bottom()) - corner.y};
}

double unitsPerPixel(ScaleUnit unit)
{
    switch (unit) {
    case ScaleUnit::Twips:
        return TwipsPerPixel;
    case ScaleUnit::Points:
        return 72.0 / 96.0;
    case ScaleUnit::Pixels:
        return 1;
    case ScaleUnit::Millimetres:
        return 25.4 / 96.0;
    case ScaleUnit::Centimetres:
        return 2.54 / 96.0;
    }
    throw RuntimeError(ErrorNumber::InvalidArgument);
}

double convertUnits(double value, ScaleUnit from, ScaleUnit to)
{
    if (from == to) {
        unitsPerPixel(from); // an unknown unit raises all the same
        return value;
    }
    return value / unitsPerPixel(from) * unitsPerPixel(to);
}

} // namespace phial
