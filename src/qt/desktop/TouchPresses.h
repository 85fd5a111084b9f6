#pragma once

#include "visual/UserControl.h"

#include <QPoint>

#include <map>

class QTouchEvent;
class QWidget;

namespace phial::qt
{

/// The touch points on a painted control that takes touch: each is a press of its own, with its move, its
/// release and, where it is let go on the control, its click. Nothing that is disabled meanwhile, or that a
/// dialog blocks, is pressed or clicked, but what is down always comes up.
class TouchPresses
{
public:
    TouchPresses(QWidget& widget, UserControl& control) : widget_(widget), control_(control) {}
    ~TouchPresses();
    TouchPresses(const TouchPresses&) = delete;
    TouchPresses& operator=(const TouchPresses&) = delete;

    /// Gives whether the points are the control's. Touch that begins where the control lets through what lies
    /// below is not; the toolkit makes the mouse of it.
    bool take(const QTouchEvent& event);
    /// Touch is over without the fingers: what is down comes up where it was last, but is no click.
    void cancel();

private:
    bool takesPresses() const;
    bool beginsHere(const QTouchEvent& event) const;
    void press(int point, PointerEvent event);
    void move(int point, PointerEvent event);
    void release(int point, PointerEvent event);
    std::int32_t freeNumber() const;

    QWidget& widget_;
    UserControl& control_;
    std::map<int, PointerEvent> down_; ///< the last of each of the toolkit's points
};

/// Where the pointer is: the mouse, or, until the mouse moves again, the touch point that was pressed last.
QPoint pointerPlace();

} // namespace phial::qt
