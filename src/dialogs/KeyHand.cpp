#include "dialogs/KeyHand.h"

#include <algorithm>

namespace phial
{

/// At most one waits, since each press strikes the one before.
std::optional<std::int32_t> KeyHand::strikeBefore(std::int32_t finger)
{
    lift(finger); // it was never let go
    const auto waiting = std::ranges::find(down_, false, &Press::isUsed);
    if (waiting == down_.end()) {
        return std::nullopt;
    }
    waiting->isUsed = true;
    return waiting->index;
}

void KeyHand::press(std::int32_t finger, std::int32_t index)
{
    const KeyState before = board_.state(index);
    const bool isModifier = board_.press(index);
    down_.push_back({finger, index, before, isModifier});
    if (const auto modifier = board_.modifier(index)) {
        board_.hold(*modifier, true);
    }
}

std::optional<std::int32_t> KeyHand::release(std::int32_t finger)
{
    const auto press = lift(finger);
    return press && !press->isUsed ? std::optional(press->index) : std::nullopt;
}

std::optional<KeyHand::Press> KeyHand::lift(std::int32_t finger)
{
    const auto found = std::ranges::find(down_, finger, &Press::finger);
    if (found == down_.end()) {
        return std::nullopt;
    }
    const Press press = *found;
    down_.erase(found);
    const auto modifier = board_.modifier(press.index);
    if (modifier && !isDown(press.index)) {
        board_.hold(*modifier, false);
    }
    return press;
}

void KeyHand::drop(std::int32_t finger)
{
    if (const auto press = lift(finger)) {
        setBack(*press);
    }
}

void KeyHand::cancel()
{
    while (!down_.empty()) {
        drop(down_.back().finger);
    }
}

void KeyHand::setBack(const Press& press)
{
    if (const auto modifier = board_.modifier(press.index)) {
        board_.state(*modifier, press.before);
    }
}

bool KeyHand::isDown(std::int32_t index) const
{
    return std::ranges::find(down_, index, &Press::index) != down_.end();
}

std::optional<KeyHand::Held> KeyHand::held() const
{
    return down_.empty() ? std::nullopt
                         : std::optional(Held{down_.back().finger, down_.back().index, down_.back().isUsed});
}

void KeyHand::use()
{
    if (!down_.empty()) {
        down_.back().isUsed = true;
    }
}

} // namespace phial
