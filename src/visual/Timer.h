#pragma once

#include "core/Event.h"
#include "core/Object.h"

#include <cstdint>
#include <memory>

namespace phial
{

/// Raises `Tick` again and again while it is enabled, first after one interval; runs whether or not its form
/// is shown. Enabling an enabled timer does not restart it; a new interval does. Missed ticks are not caught
/// up.
class Timer final : public Object
{
public:
    explicit Timer(String name = {}, std::int32_t interval = 0, bool enabled = false);
    Timer(const Timer&) = delete;
    Timer& operator=(const Timer&) = delete;

    String NAME() const { return name_; }
    void NAME(String value) { name_ = std::move(value); }
    String Tag() const { return tag_; }
    void Tag(String value) { tag_ = std::move(value); }

    /// Milliseconds; 0 stops the ticks. A negative one raises 5.
    std::int32_t Interval() const { return interval_; }
    void Interval(std::int32_t value);
    bool Enabled() const { return enabled_; }
    void Enabled(bool value);

    Event<> Tick;

    StringView typeName() const override { return u"Timer"; }
    MemberTable members() const override;

private:
    void start();

    String name_;
    String tag_;
    std::int32_t interval_;
    bool enabled_ = false;
    Connection running_;
};

} // namespace phial
