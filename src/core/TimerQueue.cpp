#include "core/TimerQueue.h"

#include <algorithm>

namespace phial
{

Connection TimerQueue::add(Time now, Time interval, std::function<void()> tick)
{
    const Time period = std::max<Time>(interval, std::chrono::milliseconds(1));
    auto timer = std::make_shared<Timer>(Timer{now + period, period, std::move(tick)});
    timers_->push_back(timer);
    return Connection([timers = std::weak_ptr<Timers>(timers_), timer] {
        timer->connected = false;
        if (const auto list = timers.lock()) {
            std::erase(*list, timer);
        }
    });
}

std::optional<TimerQueue::Time> TimerQueue::nextDue() const
{
    std::optional<Time> next;
    for (const auto& timer : *timers_) {
        if (!timer->running && (!next || timer->due < *next)) {
            next = timer->due;
        }
    }
    return next;
}

/// One that has ticked is due after `now`, and so are those that are added meanwhile.
void TimerQueue::tick(Time now, const std::function<void(const std::function<void()>&)>& run)
{
    while (const auto timer = firstDue(now)) {
        timer->due += timer->interval;
        if (timer->due <= now) {
            timer->due = now + timer->interval;
        }
        timer->running = true;
        run(timer->tick);
        timer->running = false;
    }
}

std::shared_ptr<TimerQueue::Timer> TimerQueue::firstDue(Time now) const
{
    std::shared_ptr<Timer> first;
    for (const auto& timer : *timers_) {
        if (!timer->running && timer->due <= now && (!first || timer->due < first->due)) {
            first = timer;
        }
    }
    return first;
}

} // namespace phial
