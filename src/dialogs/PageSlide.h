#pragma once

#include <cstdint>

namespace phial
{

/// Which page comes: the one before, none other, or the next.
enum class PageTurn : std::int32_t { Back = -1, Stay = 0, Next = 1 };

/// How far the page in view stands from its rest while it is swiped and while it slides, in pixels to the
/// right. A slide runs by the time, so that a slow machine shows fewer steps and is not later. All times are
/// seconds of the same clock.
class PageSlide
{
public:
    /// Pixels a second.
    static constexpr double Speed = 3200;

    double offset() const { return offset_; }
    bool isRunning() const { return isRunning_; }
    bool isGrabbed() const { return isGrabbed_; }

    /// A press on the page; it stands still from here on.
    void grab(double x);
    /// The pointer is at x: the page follows by up to its width, and only to where a page may come from.
    void drag(double x, double width, bool mayGoBack, bool mayGoNext);
    /// Lets go: more than a third of the width turns the page, anything less does not.
    PageTurn release(double width);

    /// Sets out from where the page is, one width along for a turn.
    void slide(PageTurn turn, double width, double now);
    /// Moves on to that time; gives whether the slide is over.
    bool isOverAt(double now);
    /// The page is at rest again, and the turn that was under way is given.
    PageTurn finish();
    /// At rest without any turn.
    void stop();

private:
    double offset_ = 0;
    double grabbedOffset_ = 0;
    double grabbedX_ = 0;
    bool isGrabbed_ = false;
    bool isRunning_ = false;
    PageTurn turn_ = PageTurn::Stay;
    double from_ = 0;
    double target_ = 0;
    double start_ = 0;
    double end_ = 0;
};

} // namespace phial
