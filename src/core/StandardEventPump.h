#pragma once

#include "core/Clock.h"
#include "core/EventPump.h"
#include "core/TimerQueue.h"

#include <exception>
#include <functional>
#include <memory>
#include <vector>

namespace phial
{

/// An event loop without a user: it runs timers and posted tasks on a clock. With the real clock it serves
/// batch programs; with one that stands still until somebody waits, tests.
class StandardEventPump : public EventPump
{
public:
    /// `reportError` takes what handlers raise.
    StandardEventPump(std::shared_ptr<Clock> clock, std::function<void(const std::exception&)> reportError);

    void pumpFor(double seconds) override;
    [[nodiscard]] Connection startTimer(std::int32_t milliseconds, std::function<void()> tick) override;
    void post(std::function<void()> task) override;

private:
    TimerQueue::Time now() const;
    void runPending();
    void runHandler(const std::function<void()>& handler) const;
    void sleepUntil(TimerQueue::Time end);

    std::shared_ptr<Clock> clock_;
    std::function<void(const std::exception&)> reportError_;
    TimerQueue timers_;
    std::vector<std::function<void()>> tasks_;
};

} // namespace phial
