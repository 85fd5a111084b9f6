#include "qt/desktop/TouchPresses.h"

#include "qt/desktop/Dispatch.h"
#include "qt/desktop/InputCodes.h"
#include "qt/desktop/ModalGate.h"
#include "qt/desktop/WidgetAspects.h"
#include "visual/PaintSurface.h"

#include <QCursor>
#include <QPointer>
#include <QTouchEvent>
#include <QWidget>

#include <algorithm>
#include <optional>

namespace phial::qt
{

namespace
{

/// The touch point that was pressed last.
struct LeadingTouch {
    const TouchPresses* presses = nullptr; ///< null since it is up
    int point = 0;
    QPoint place;
    QPoint mouse; ///< where the mouse was meanwhile
};

std::optional<LeadingTouch>& leadingTouch()
{
    static std::optional<LeadingTouch> touch;
    return touch;
}

bool leads(const TouchPresses& presses, int point)
{
    const auto& touch = leadingTouch();
    return touch && touch->presses == &presses && touch->point == point;
}

/// The toolkit will not tell when the touch point is let go.
void stopLeading(const TouchPresses& presses)
{
    if (auto& touch = leadingTouch(); touch && touch->presses == &presses) {
        touch->presses = nullptr;
        touch->mouse = QCursor::pos();
    }
}

PointerEvent touchEvent(const QTouchEvent& event, const QEventPoint& point, double zoom)
{
    const QPointF place = point.position() / zoom;
    return {PointerButton::Left, shiftBits(event.modifiers()), place.x(), place.y()};
}

} // namespace

QPoint pointerPlace()
{
    const auto& touch = leadingTouch();
    const QPoint mouse = QCursor::pos();
    return touch && (touch->presses || touch->mouse == mouse) ? touch->place : mouse;
}

TouchPresses::~TouchPresses()
{
    stopLeading(*this);
}

bool TouchPresses::take(const QTouchEvent& event)
{
    if (event.type() == QEvent::TouchBegin && !beginsHere(event)) {
        return false;
    }
    if (event.type() == QEvent::TouchCancel) {
        cancel();
        return true;
    }
    const auto control = control_.shared_from_this(); // a handler may close the window
    const double zoom = zoomOf(control_);
    const QPointer<QWidget> widget(&widget_);
    for (const QEventPoint& point : event.points()) {
        const bool isLive = widget && control->frame().peer();
        const QPoint place = point.globalPosition().toPoint();
        switch (isLive ? point.state() : QEventPoint::Stationary) {
        case QEventPoint::Pressed:
            leadingTouch() = LeadingTouch{this, point.id(), place, QCursor::pos()};
            press(point.id(), touchEvent(event, point, zoom));
            break;
        case QEventPoint::Updated:
            if (leads(*this, point.id())) {
                leadingTouch()->place = place;
            }
            move(point.id(), touchEvent(event, point, zoom));
            break;
        case QEventPoint::Released:
            if (leads(*this, point.id())) {
                leadingTouch()->place = place;
                stopLeading(*this);
            }
            release(point.id(), touchEvent(event, point, zoom));
            break;
        default:
            break;
        }
    }
    return true;
}

bool TouchPresses::takesPresses() const
{
    return widget_.isEnabled() && !isBlockedByDialog(widget_);
}

bool TouchPresses::beginsHere(const QTouchEvent& event) const
{
    return std::ranges::any_of(event.points(), [&](const QEventPoint& point) {
        const QPointF place = point.position() / zoomOf(control_);
        return control_.surface().hits({place.x(), place.y()});
    });
}

std::int32_t TouchPresses::freeNumber() const
{
    const auto isTaken = [&](std::int32_t number) {
        return std::ranges::any_of(down_, [&](const auto& held) { return held.second.Touch == number; });
    };
    std::int32_t number = 1;
    while (isTaken(number)) {
        ++number;
    }
    return number;
}

void TouchPresses::press(int point, PointerEvent event)
{
    if (takesPresses() && control_.surface().hits({event.X, event.Y})) {
        event.Touch = freeNumber();
        down_[point] = event;
        dispatch([&] { control_.pointerDown(event); });
    }
}

void TouchPresses::move(int point, PointerEvent event)
{
    if (const auto held = down_.find(point); held != down_.end()) {
        event.Touch = held->second.Touch;
        held->second = event;
        dispatch([&] { control_.pointerMove(event); });
    }
}

void TouchPresses::release(int point, PointerEvent event)
{
    const auto held = down_.find(point);
    if (held == down_.end()) {
        return;
    }
    event.Touch = held->second.Touch;
    down_.erase(held);
    const auto control = std::static_pointer_cast<UserControl>(control_.shared_from_this());
    const QPointer<QWidget> widget(&widget_);
    dispatch([&] {
        control->pointerUp(event);
        if (widget && control->frame().peer() && takesPresses() &&
            control->surface().hits({event.X, event.Y})) {
            control->click();
        }
    });
}

void TouchPresses::cancel()
{
    stopLeading(*this);
    const auto control = control_.shared_from_this(); // a handler may close the window
    for (auto& [point, event] : std::exchange(down_, {})) {
        PointerEvent last = event;
        last.isCancelled = true;
        dispatch([&] { control->pointerUp(last); });
    }
}

} // namespace phial::qt
