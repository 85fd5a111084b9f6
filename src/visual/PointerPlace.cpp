#include "visual/PointerPlace.h"

#include "core/CoreDisplay.h"
#include "core/CoreRoot.h"
#include "core/CoreSystem.h"
#include "core/CoreWindowOps.h"
#include "visual/Form.h"

namespace phial
{

std::optional<PixelPoint> pointerFrom(const ControlFrame& frame)
{
    const CoreDisplay& display = coreRoot().CoreDisplay();
    if (!display.TellsCursor()) {
        return std::nullopt;
    }
    const CoreWindowOps& windows = coreRoot().CoreSystem().CoreWindowOps();
    std::int32_t x = 0;
    std::int32_t y = 0;
    display.CursorPos(x, y);
    const auto form = frame.form(); // the desktop and its windows are measured without its zoom
    const double zoom = form ? form->Zoom() : 1;
    return PixelPoint{(double{1} * x - windows.ScreenLeft(frame.hWnd())) / zoom,
                      (double{1} * y - windows.ScreenTop(frame.hWnd())) / zoom};
}

} // namespace phial
