#pragma once

#include "core/Moment.h"

namespace phial
{

/// The computer's clock.
class Clock
{
public:
    virtual ~Clock() = default;

    /// Seconds since some fixed point, never running backwards.
    virtual double seconds() const = 0;
    /// Date and time on the wall.
    virtual Moment moment() const = 0;
    /// Returns after the time, in seconds, and runs no events. Nothing happens for 0 and below.
    virtual void sleep(double seconds) = 0;
};

} // namespace phial
