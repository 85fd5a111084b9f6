#pragma once

#include <QCoreApplication>
#include <QElapsedTimer>

namespace phial::test
{

/// Runs events until the condition holds; gives whether it came to hold within five seconds.
template <typename Condition>
bool eventually(Condition condition)
{
    QElapsedTimer timer;
    timer.start();
    while (!condition() && timer.elapsed() < 5000) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 50);
    }
    return condition();
}

} // namespace phial::test
