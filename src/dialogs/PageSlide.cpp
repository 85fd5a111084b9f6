#include "dialogs/PageSlide.h"

#include "core/CoreNumbers.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace phial
{

void PageSlide::grab(double x)
{
    isRunning_ = false;
    turn_ = PageTurn::Stay;
    isGrabbed_ = true;
    grabbedX_ = x;
    grabbedOffset_ = offset_;
}

void PageSlide::drag(double x, double width, bool mayGoBack, bool mayGoNext)
{
    if (isGrabbed_) {
        offset_ = std::clamp(grabbedOffset_ + x - grabbedX_, mayGoNext ? -width : 0, mayGoBack ? width : 0);
    }
}

PageTurn PageSlide::release(double width)
{
    constexpr double LeastShare = 3;
    isGrabbed_ = false;
    if (std::abs(offset_) * LeastShare <= width) {
        return PageTurn::Stay;
    }
    return offset_ < 0 ? PageTurn::Next : PageTurn::Back;
}

void PageSlide::slide(PageTurn turn, double width, double now)
{
    isGrabbed_ = false;
    turn_ = turn;
    from_ = offset_;
    target_ = -width * static_cast<double>(turn);
    start_ = now;
    end_ = now + std::abs(from_ - target_) / Speed;
    isRunning_ = true;
}

bool PageSlide::isOverAt(double now)
{
    if (now >= end_) {
        offset_ = target_;
        return true;
    }
    offset_ = CoreNumbers::Lerp(now, start_, end_, from_, target_);
    return false;
}

PageTurn PageSlide::finish()
{
    const PageTurn turn = isRunning_ ? turn_ : PageTurn::Stay;
    stop();
    return turn;
}

void PageSlide::stop()
{
    *this = PageSlide();
}

} // namespace phial
