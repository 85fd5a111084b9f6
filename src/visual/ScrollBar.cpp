#include "visual/ScrollBar.h"

#include "visual/Change.h"
#include "visual/FrameMembers.h"

#include <algorithm>

namespace phial
{

namespace
{

constexpr std::int32_t InvalidPropertyValue = 380;

constexpr auto Table = joinMembers(
    FrameMembers,
    std::to_array<Member>({
        members::property<ScrollBar, std::int32_t, &ScrollBar::Min, &ScrollBar::Min>(u"Min"),
        members::property<ScrollBar, std::int32_t, &ScrollBar::Max, &ScrollBar::Max>(u"Max"),
        members::property<ScrollBar, std::int32_t, &ScrollBar::Value, &ScrollBar::Value>(u"Value"),
        members::property<ScrollBar, std::int32_t, &ScrollBar::SmallChange, &ScrollBar::SmallChange>(
            u"SmallChange"),
        members::property<ScrollBar, std::int32_t, &ScrollBar::LargeChange, &ScrollBar::LargeChange>(
            u"LargeChange"),
    }));

void requireStep(std::int32_t value)
{
    if (value < 1) {
        throw RuntimeError(ErrorNumber::InvalidArgument);
    }
}

} // namespace

ScrollBar::ScrollBar(ScrollDirection direction) : frame_(*this), direction_(direction)
{
    frame_.canFocus(true);
}

MemberTable ScrollBar::members() const
{
    return Table;
}

std::int32_t ScrollBar::limited(std::int32_t value) const
{
    return std::clamp(value, std::min(min_, max_), std::max(min_, max_));
}

void ScrollBar::rangeChanged()
{
    frame_.report(ControlAspect::Range);
    Value(limited(value_));
}

void ScrollBar::Direction(ScrollDirection value)
{
    if (change(direction_, value)) {
        frame_.report(ControlAspect::Style);
    }
}

void ScrollBar::Min(std::int32_t value)
{
    if (change(min_, value)) {
        rangeChanged();
    }
}

void ScrollBar::Max(std::int32_t value)
{
    if (change(max_, value)) {
        rangeChanged();
    }
}

void ScrollBar::Value(std::int32_t value)
{
    if (limited(value) != value) {
        throw RuntimeError(InvalidPropertyValue, u"Invalid property value");
    }
    if (change(value_, value)) {
        frame_.report(ControlAspect::Value);
        Change.emit();
    }
}

void ScrollBar::SmallChange(std::int32_t value)
{
    requireStep(value);
    if (change(smallChange_, value)) {
        frame_.report(ControlAspect::Range);
    }
}

void ScrollBar::LargeChange(std::int32_t value)
{
    requireStep(value);
    if (change(largeChange_, value)) {
        frame_.report(ControlAspect::Range);
    }
}

void ScrollBar::inputScroll(std::int32_t value)
{
    if (change(value_, limited(value))) {
        Scroll.emit();
    }
}

void ScrollBar::inputValue(std::int32_t value)
{
    value_ = limited(value);
    Change.emit();
}

} // namespace phial
