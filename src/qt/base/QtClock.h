#pragma once

#include "core/Clock.h"

namespace phial::qt
{

/// The computer's clock, in the time zone of the desktop.
class QtClock final : public Clock
{
public:
    double seconds() const override;
    Moment moment() const override;
    void sleep(double seconds) override;
};

} // namespace phial::qt
