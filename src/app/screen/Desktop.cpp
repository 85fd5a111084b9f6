#include "app/screen/Desktop.h"

#include "core/CoreDisplay.h"
#include "core/CoreRoot.h"
#include "core/CoreSystem.h"

namespace phial
{

bool IsSmallFonts()
{
    constexpr std::int32_t TallestSmallText = 16;
    return coreRoot().CoreDisplay().TextHeight().value_or(TallestSmallText) <= TallestSmallText;
}

void ShowTaskbar()
{
    coreRoot().CoreSystem().CoreWindowOps().TaskbarVisible(true);
}

void HideTaskbar()
{
    coreRoot().CoreSystem().CoreWindowOps().TaskbarVisible(false);
}

} // namespace phial
