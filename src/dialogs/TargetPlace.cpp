#include "dialogs/TargetPlace.h"

#include "core/CoreRoot.h"
#include "core/CoreSystem.h"
#include "core/CoreWindowOps.h"
#include "core/RuntimeError.h"
#include "core/SessionState.h"
#include "visual/Control.h"
#include "visual/Form.h"

#include <algorithm>

namespace phial
{

namespace
{

/// Empty for what has no window.
PixelRectangle windowArea(WindowHandle window)
{
    const CoreWindowOps& windows = coreRoot().CoreSystem().CoreWindowOps();
    const double left = windows.ScreenLeft(window);
    const double top = windows.ScreenTop(window);
    return {left, top, windows.ScreenRight(window) - left, windows.ScreenBottom(window) - top};
}

WindowHandle windowOf(const ObjectPtr& holder)
{
    const auto* form = dynamic_cast<const Form*>(holder.get());
    const auto* control = dynamic_cast<const Control*>(holder.get());
    return form ? form->hWnd() : control ? control->hWnd() : WindowHandle::None;
}

/// That of a control's own window, or else, as of a label that has none, its place on what holds it.
PixelRectangle areaOnDesktop(const ControlFrame& frame)
{
    const PixelRectangle own = windowArea(frame.hWnd());
    const PixelRectangle holder = own.isEmpty() ? windowArea(windowOf(frame.ContainerObject())) : own;
    if (!own.isEmpty() || holder.isEmpty()) {
        return own;
    }
    const auto form = frame.form();
    const double zoom = form ? form->Zoom() : 1;
    const PixelRectangle within = frame.pixelRectangle();
    return {holder.left + within.left * zoom, holder.top + within.top * zoom, within.width * zoom,
            within.height * zoom};
}

/// Null where the control names nothing.
ObjectPtr namedNeighbour(const ObjectPtr& control)
{
    ObjectPtr named;
    if (control) {
        ignoringErrors([&] {
            const auto value = tryGet(*control, u"KeyboardBeside");
            named = value ? value->object() : nullptr;
        });
    }
    return named;
}

PixelRectangle united(const PixelRectangle& one, const PixelRectangle& other)
{
    const double left = std::min(one.left, other.left);
    const double top = std::min(one.top, other.top);
    return {left, top, std::max(one.right(), other.right()) - left,
            std::max(one.bottom(), other.bottom()) - top};
}

} // namespace

std::optional<PixelRectangle> placeSeen(const ObjectPtr& target)
{
    const auto* control = dynamic_cast<const Control*>(target.get());
    if (!control) {
        return std::nullopt;
    }
    const ControlFrame& frame = control->frame();
    const bool isSeen = frame.form() ? frame.isSeen() : frame.Visible();
    const PixelRectangle area = isSeen ? areaOnDesktop(frame) : PixelRectangle();
    return area.isEmpty() ? std::nullopt : std::optional(area);
}

std::optional<PixelRectangle> placeToKeep(const ObjectPtr& target)
{
    const auto* control = dynamic_cast<const Control*>(target.get());
    ObjectPtr neighbour = namedNeighbour(target);
    if (control && !neighbour && control->frame().privateHolder()) {
        neighbour = namedNeighbour(control->frame().ContainerObject());
    }
    const auto kept = placeSeen(neighbour);
    const auto own = kept ? placeSeen(target) : std::nullopt;
    return own ? united(*kept, *own) : kept;
}

} // namespace phial
