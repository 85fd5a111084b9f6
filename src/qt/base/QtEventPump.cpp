#include "qt/base/QtEventPump.h"

#include "qt/base/Milliseconds.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QTimer>

#include <algorithm>

namespace phial::qt
{

namespace
{

// Keeps the handler alive while it runs: a tick may end its own timer.
struct Ticker {
    std::function<void()> tick;
    bool running = false;
};

void runTick(const std::shared_ptr<Ticker>& ticker, DispatchGuard& guard)
{
    if (!ticker->running) {
        ticker->running = true;
        guard.run(ticker->tick);
        ticker->running = false;
    }
}

} // namespace

QtEventPump::QtEventPump(std::shared_ptr<DispatchGuard> guard) : guard_(std::move(guard)) {}

void QtEventPump::pumpFor(double seconds)
{
    if (!(seconds > 0)) {
        QCoreApplication::processEvents();
        return;
    }
    QEventLoop loop;
    QTimer::singleShot(milliseconds(seconds), Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec();
}

Connection QtEventPump::startTimer(std::int32_t interval, std::function<void()> tick)
{
    auto timer = std::make_shared<QTimer>();
    auto ticker = std::make_shared<Ticker>(Ticker{std::move(tick)});
    timer->setTimerType(Qt::PreciseTimer);
    timer->setInterval(std::max(interval, 1));
    QObject::connect(timer.get(), &QTimer::timeout, &context_,
                     [ticker, guard = guard_] { runTick(ticker, *guard); });
    timer->start();
    return Connection([timer] { timer->stop(); });
}

void QtEventPump::post(std::function<void()> task)
{
    QMetaObject::invokeMethod(
        &context_, [task = std::move(task), guard = guard_] { guard->run(task); }, Qt::QueuedConnection);
}

} // namespace phial::qt
