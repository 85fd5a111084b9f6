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

void TimerQueue::tick(Time now, const std::function<void(const std::function<void()>&)>& run)
{
    Timers due;
    std::copy_if(timers_->begin(), timers_->end(), std::back_inserter(due),
                 [now](const auto& timer) { return !timer->running && timer->due <= now; });
    std::stable_sort(due.begin(), due.end(),
                     [](const auto& left, const auto& right) { return left->due < right->due; });
    for (const auto& timer : due) {
        // An earlier tick may have ended this timer, or run events in which it has ticked already.
        if (!timer->connected || timer->running || timer->due > now) {
            continue;
        }
        timer->due += timer->interval;
        if (timer->due <= now) {
            timer->due = now + timer->interval;
        }
        timer->running = true;
        run(timer->tick);
        timer->running = false;
    }
}

} // namespace phial
