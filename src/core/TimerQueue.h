#pragma once

#include "core/Event.h"

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace phial
{

/// Timers and when each is due. It has no clock and no loop of its own: whoever runs the loop tells the time.
///
/// A timer that is late ticks once and goes on from there. One whose tick is still running, since that tick
/// runs events itself, is not due.
class TimerQueue
{
public:
    using Time = std::chrono::microseconds;

    /// A timer that is first due one interval (at least a millisecond) from now; it ends with the connection.
    [[nodiscard]] Connection add(Time now, Time interval, std::function<void()> tick);

    /// When the next timer is due; no value without timers.
    std::optional<Time> nextDue() const;

    /// Lets each timer that is due tick once, in order of their due times. `run` calls the tick it is given.
    void tick(Time now, const std::function<void(const std::function<void()>&)>& run);

private:
    struct Timer {
        Time due;
        Time interval;
        std::function<void()> tick;
        bool running = false;
        bool connected = true;
    };
    using Timers = std::vector<std::shared_ptr<Timer>>;

    std::shared_ptr<Timer> firstDue(Time now) const;

    std::shared_ptr<Timers> timers_ = std::make_shared<Timers>();
};

} // namespace phial
