#pragma once

#include "core/AudioOutput.h"
#include "core/Clock.h"

#include <memory>
#include <utility>
#include <vector>

namespace phial::headless
{

/// A sound that has begun, and how it went on.
struct HeardSound {
    std::shared_ptr<const Sound> sound;
    double begin = 0; ///< by the clock
    double end = 0;   ///< by the clock: its natural end, or when it was stopped or lost
};

/// A device that makes no sound and remembers what would be heard, by a clock. Voices end when the clock has
/// passed their length.
class FakeAudio final : public AudioOutput
{
public:
    explicit FakeAudio(std::shared_ptr<Clock> clock) : clock_(std::move(clock)) {}

    /// From now on there is a device, or none; what plays when it goes is lost. At first there is one.
    void available(bool value);
    /// All sounds that have begun, in their order.
    const std::vector<HeardSound>& heard() const { return heard_; }
    double gain() const { return gain_; }

    bool available() const override { return available_; }
    Voice start(std::shared_ptr<const Sound> sound) override;
    void gain(double value) override { gain_ = value; }
    void stop(Voice voice) override;
    bool isPlaying(Voice voice) const override;
    void waitForEnd(Voice voice) override;

private:
    std::vector<Voice> playing() const;
    HeardSound* find(Voice voice);
    const HeardSound* find(Voice voice) const { return const_cast<FakeAudio*>(this)->find(voice); }

    std::shared_ptr<Clock> clock_;
    std::vector<HeardSound> heard_; ///< a voice is the position, counted from 1
    double gain_ = 1;
    bool available_ = true;
};

} // namespace phial::headless
