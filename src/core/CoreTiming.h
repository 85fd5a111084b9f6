#pragma once

#include "core/Clock.h"
#include "core/EventPump.h"

#include <memory>

namespace phial
{

/// Waiting, and time stamps for time-outs and slides.
class CoreTiming
{
public:
    CoreTiming(std::shared_ptr<Clock> clock, std::shared_ptr<EventPump> pump);

    /// Returns after the time. With `pPumpEvents` the program's events run meanwhile, so that the caller must
    /// allow for re-entry; without, nothing runs. A time of 0 and below runs what is pending, if at all.
    void Wait(double pSeconds, bool pPumpEvents);

    /// Seconds since some fixed point, never running backwards.
    double Now() const;

private:
    std::shared_ptr<Clock> clock_;
    std::shared_ptr<EventPump> pump_;
};

} // namespace phial
