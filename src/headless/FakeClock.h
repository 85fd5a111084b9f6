#pragma once

#include "core/Clock.h"

#include <chrono>

namespace phial::headless
{

/// A clock that stands still: time moves in waits and by hand only. It counts whole microseconds, so that
/// equal waits add up exactly.
class FakeClock : public Clock
{
public:
    /// Begins at second 0 and at the given date and time.
    explicit FakeClock(const CalendarTime& start = {2026, 3, 2, 8, 0, 0})
        : start_(Moment::fromCalendar(start))
    {
    }

    double seconds() const override { return std::chrono::duration<double>(elapsed_).count(); }
    Moment moment() const override
    {
        constexpr double SecondsPerDay = 86400;
        return Moment{start_.days + seconds() / SecondsPerDay};
    }
    void sleep(double seconds) override { advance(seconds); }

    /// Moves the time without running anything; a negative time is none.
    void advance(double seconds)
    {
        if (seconds > 0) {
            elapsed_ += std::chrono::round<std::chrono::microseconds>(std::chrono::duration<double>(seconds));
        }
    }

private:
    Moment start_;
    std::chrono::microseconds elapsed_{0};
};

} // namespace phial::headless
