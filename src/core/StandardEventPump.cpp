#include "core/StandardEventPump.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace phial
{

namespace
{

using Time = TimerQueue::Time;

Time fromSeconds(double seconds)
{
    return Time(std::llround(seconds * 1e6));
}

double toSeconds(Time time)
{
    return std::chrono::duration<double>(time).count();
}

} // namespace

StandardEventPump::StandardEventPump(std::shared_ptr<Clock> clock,
                                     std::function<void(const std::exception&)> reportError)
    : clock_(std::move(clock)), reportError_(std::move(reportError))
{
}

void StandardEventPump::pumpFor(double seconds)
{
    const Time end = now() + fromSeconds(std::max(seconds, 0.0));
    runPending();
    while (now() < end) {
        sleepUntil(end);
        runPending();
    }
}

Connection StandardEventPump::startTimer(std::int32_t milliseconds, std::function<void()> tick)
{
    return timers_.add(now(), std::chrono::milliseconds(milliseconds), std::move(tick));
}

void StandardEventPump::post(std::function<void()> task)
{
    tasks_.push_back(std::move(task));
}

Time StandardEventPump::now() const
{
    return fromSeconds(clock_->seconds());
}

void StandardEventPump::runPending()
{
    // Tasks posted by these run in the next round, so that a round ends.
    for (const auto& task : std::exchange(tasks_, {})) {
        runHandler(task);
    }
    timers_.tick(now(), [this](const std::function<void()>& tick) { runHandler(tick); });
}

void StandardEventPump::runHandler(const std::function<void()>& handler) const
{
    try {
        handler();
    } catch (const std::exception& error) {
        reportError_(error);
    }
}

/// Sleeps until something may be due, at most until `end`.
void StandardEventPump::sleepUntil(Time end)
{
    constexpr Time Shortest = std::chrono::milliseconds(1);
    Time wake = tasks_.empty() ? timers_.nextDue().value_or(end) : now() + Shortest;
    wake = std::clamp(wake, now(), end);
    clock_->sleep(toSeconds(std::max(wake - now(), Time(1))));
}

} // namespace phial
