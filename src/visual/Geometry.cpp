#include "visual/Geometry.h"

#include "core/RuntimeError.h"

namespace phial
{

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
