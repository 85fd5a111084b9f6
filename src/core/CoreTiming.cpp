#include "core/CoreTiming.h"

namespace phial
{

CoreTiming::CoreTiming(std::shared_ptr<Clock> clock, std::shared_ptr<EventPump> pump)
    : clock_(std::move(clock)), pump_(std::move(pump))
{
}

void CoreTiming::Wait(double pSeconds, bool pPumpEvents)
{
    if (pPumpEvents) {
        pump_->pumpFor(pSeconds);
    } else {
        clock_->sleep(pSeconds);
    }
}

double CoreTiming::Now() const
{
    return clock_->seconds();
}

} // namespace phial
