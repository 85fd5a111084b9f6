#pragma once

#include <compare>

namespace phial
{

/// Calendar fields of a moment, without time zone.
struct CalendarTime {
    int year = 1899;
    int month = 12; ///< 1 to 12
    int day = 30;   ///< 1 to 31
    int hour = 0;
    int minute = 0;
    int second = 0;
};

/// Date and time as a count of days; day 0 is 1899-12-30, the fraction is the time of day. Before day 0 the
/// fraction still counts forward from midnight of its day: -1.25 is 1899-12-29 06:00.
struct Moment {
    double days = 0;

    /// Raises 5 for fields outside the calendar (years 100 to 9999).
    static Moment fromCalendar(const CalendarTime& fields);
    /// The fields, rounded to the nearest second.
    CalendarTime calendar() const;

    // NOLINTNEXTLINE(modernize-use-nullptr): the checker takes the 0 within comparisons for a pointer
    friend auto operator<=>(const Moment&, const Moment&) = default;
};

} // namespace phial
