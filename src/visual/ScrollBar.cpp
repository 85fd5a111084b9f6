#include "visual/ScrollBar.h"

#include "visual/Change.h"
#include "visual/PropertyRows.h"

#include <algorithm>

namespace phial
{

struct ScrollBar::Properties {
    static constexpr rows::Table Table{
        rows::property<u"Min">(&ScrollBar::min_).then(&ScrollBar::rangeChanged),
        rows::property<u"Max">(&ScrollBar::max_).then(&ScrollBar::rangeChanged),
        rows::property<u"Value">(&ScrollBar::Value, &ScrollBar::Value),
        rows::property<u"SmallChange">(&ScrollBar::smallChange_)
            .raisingUnless(rows::isPositive)
            .reports(ControlAspect::Range),
        rows::property<u"LargeChange">(&ScrollBar::largeChange_)
            .raisingUnless(rows::isPositive)
            .reports(ControlAspect::Range),
    };
};

ScrollBar::ScrollBar(ScrollDirection direction) : frame_(*this), direction_(direction)
{
    frame_.canFocus(true);
}

MemberTable ScrollBar::members() const
{
    return rows::membersOf<Properties>();
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

// One line a setter.
// clang-format off
void ScrollBar::Min(std::int32_t value) { rows::set<Properties, u"Min">(*this, value); }
void ScrollBar::Max(std::int32_t value) { rows::set<Properties, u"Max">(*this, value); }
// clang-format on

void ScrollBar::Value(std::int32_t value)
{
    if (limited(value) != value) {
        throw RuntimeError(ErrorNumber::InvalidPropertyValue);
    }
    if (change(value_, value)) {
        frame_.report(ControlAspect::Value);
        Change.raise();
    }
}

// One line a setter.
// clang-format off
void ScrollBar::SmallChange(std::int32_t value) { rows::set<Properties, u"SmallChange">(*this, value); }
void ScrollBar::LargeChange(std::int32_t value) { rows::set<Properties, u"LargeChange">(*this, value); }
// clang-format on

void ScrollBar::inputScroll(std::int32_t value)
{
    if (change(value_, limited(value))) {
        Scroll.raise();
    }
}

void ScrollBar::inputValue(std::int32_t value)
{
    value_ = limited(value);
    Change.raise();
}

} // namespace phial
