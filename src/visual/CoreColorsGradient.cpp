#include "core/CoreColors.h"
#include "visual/DrawDevice.h"

namespace phial
{

void CoreColors::Gradient(DrawDevice& pDevice, double pLeft, double pTop, double pWidth, double pHeight,
                          Colour pFrom, Colour pTo, double pAngle, std::int32_t pSteps)
{
    pDevice.Gradient(pLeft, pTop, pWidth, pHeight, pFrom, pTo, pAngle, pSteps);
}

} // namespace phial
