#pragma once

#include "core/EventPump.h"
#include "qt/base/DispatchGuard.h"

#include <QObject>

#include <memory>

namespace phial::qt
{

/// The toolkit's event loop. Needs an application object while events run.
class QtEventPump final : public EventPump
{
public:
    /// Errors of ticks and tasks go to the guard.
    explicit QtEventPump(std::shared_ptr<DispatchGuard> guard);

    void pumpFor(double seconds) override;
    [[nodiscard]] Connection startTimer(std::int32_t milliseconds, std::function<void()> tick) override;
    /// A task that has not run when the pump ends is dropped.
    void post(std::function<void()> task) override;

private:
    std::shared_ptr<DispatchGuard> guard_;
    QObject context_; // ends what was posted when the pump ends
};

} // namespace phial::qt
