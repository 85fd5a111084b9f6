#include "visual/Timer.h"

#include "core/EventPump.h"
#include "core/Members.h"
#include "core/RuntimeError.h"
#include "core/SessionState.h"

namespace phial
{

Timer::Timer(String name, std::int32_t interval, bool enabled) : name_(std::move(name)), interval_(interval)
{
    Enabled(enabled);
}

void Timer::Interval(std::int32_t value)
{
    if (value < 0) {
        throw RuntimeError(ErrorNumber::InvalidArgument);
    }
    if (interval_ == value) {
        return;
    }
    interval_ = value;
    if (enabled_) {
        start();
    }
}

void Timer::Enabled(bool value)
{
    if (enabled_ == value) {
        return;
    }
    enabled_ = value;
    if (enabled_) {
        start();
    } else {
        running_.disconnect();
    }
}

void Timer::start()
{
    running_.disconnect();
    if (interval_ > 0) {
        running_ = SessionState::current().platform().pump->startTimer(interval_, [this] { Tick.raise(); });
    }
}

MemberTable Timer::members() const
{
    using members::property;
    static constexpr auto Table = std::to_array<Member>({
        property<Timer, String, &Timer::NAME, &Timer::NAME>(u"NAME"),
        property<Timer, String, &Timer::Tag, &Timer::Tag>(u"Tag"),
        property<Timer, std::int32_t, &Timer::Interval, &Timer::Interval>(u"Interval"),
        property<Timer, bool, &Timer::Enabled, &Timer::Enabled>(u"Enabled"),
    });
    return Table;
}

} // namespace phial
