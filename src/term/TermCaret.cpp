#include "term/TermCaret.h"

#include <algorithm>
#include <cmath>

namespace phial
{

std::int32_t TermCaret::indexAt(double x) const
{
    return std::ranges::min_element(places_, {},
                                    [x](const TermCaretPlace& place) { return std::abs(place.x - x); })
        ->index;
}

TermCaretPlace TermCaret::shownAt(std::int32_t index) const
{
    const auto behind = std::ranges::upper_bound(places_, index, {}, &TermCaretPlace::index);
    return behind == places_.begin() ? places_.front() : *std::prev(behind);
}

std::int32_t TermCaret::left() const
{
    return std::ranges::min_element(places_, {}, &TermCaretPlace::x)->x;
}

std::int32_t TermCaret::right() const
{
    return std::ranges::max_element(places_, {}, &TermCaretPlace::x)->x;
}

} // namespace phial
