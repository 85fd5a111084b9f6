#pragma once

#include "core/Event.h"

#include <cstdint>
#include <functional>

namespace phial
{

/// The program's event loop: whatever the user, the timers and the network bring runs inside of it.
///
/// A handler's exception ends at the pump, which reports it as its platform sees fit and goes on.
class EventPump
{
public:
    virtual ~EventPump() = default;

    /// Runs events for that time in seconds; 0 runs what is pending. May be called from within a handler.
    virtual void pumpFor(double seconds) = 0;

    /// Calls `tick` again and again, first after one interval, until the connection ends. Missed ticks are
    /// not caught up, and a tick does not begin while an earlier one of the same timer is still running. An
    /// interval below 1 counts as 1.
    [[nodiscard]] virtual Connection startTimer(std::int32_t milliseconds, std::function<void()> tick) = 0;

    /// Calls `task` once, when events run next.
    virtual void post(std::function<void()> task) = 0;
};

} // namespace phial
