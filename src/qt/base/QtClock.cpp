#include "qt/base/QtClock.h"

#include <QDateTime>

#include <chrono>
#include <thread>

namespace phial::qt
{

double QtClock::seconds() const
{
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration<double>(now).count();
}

Moment QtClock::moment() const
{
    constexpr double MillisecondsOfDay = 24.0 * 60 * 60 * 1000;
    const QDate dayZero(1899, 12, 30);
    const QDateTime now = QDateTime::currentDateTime();
    return Moment{static_cast<double>(dayZero.daysTo(now.date())) +
                  now.time().msecsSinceStartOfDay() / MillisecondsOfDay};
}

void QtClock::sleep(double seconds)
{
    if (seconds > 0) {
        std::this_thread::sleep_for(std::chrono::duration<double>(seconds));
    }
}

} // namespace phial::qt
