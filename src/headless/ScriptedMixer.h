#pragma once

#include "core/CoreMixer.h"

#include <string>
#include <vector>

namespace phial::headless
{

/// A mixer with bounds, failures and values by script, which notes each call as a line such as "set 1 40".
class ScriptedMixer final : public CoreMixer
{
public:
    /// What every failing call gives.
    static constexpr std::int32_t Failure = 7;

    /// From now on.
    void opens(bool value) { opens_ = value; }
    /// Both lines have the bounds; the microphone's control is addressed by 2, that of the speakers by 1.
    void bounds(std::int32_t minimum, std::int32_t maximum)
    {
        minimum_ = minimum;
        maximum_ = maximum;
    }
    void hasSpeakers(bool value) { hasSpeakers_ = value; }
    void takesValues(bool value) { takesValues_ = value; }
    void value(std::int32_t value) { value_ = value; }
    std::int32_t value() const { return value_; }

    const std::vector<std::string>& calls() const { return calls_; }
    void forgetCalls() { calls_.clear(); }

    std::int32_t Open() override { return note("open", opens_); }
    void Close() override { calls_.emplace_back("close"); }
    std::int32_t VolumeControl(MixerLine line, MixerControl& rControl) override
    {
        const bool isSpeakers = line == MixerLine::Speakers;
        if (!isSpeakers || hasSpeakers_) {
            rControl = {isSpeakers ? 1 : 2, minimum_, maximum_};
        }
        return note("control " + std::to_string(static_cast<std::int32_t>(line)),
                    !isSpeakers || hasSpeakers_);
    }
    std::int32_t Value(const MixerControl& control, std::int32_t& rValue) override
    {
        if (hasSpeakers_) {
            rValue = value_;
        }
        return note("get " + std::to_string(control.id), hasSpeakers_);
    }
    std::int32_t SetValue(const MixerControl& control, std::int32_t value) override
    {
        if (takesValues_) {
            value_ = value;
        }
        return note("set " + std::to_string(control.id) + " " + std::to_string(value), takesValues_);
    }

private:
    std::int32_t note(std::string call, bool works)
    {
        calls_.push_back(std::move(call));
        return works ? Done : Failure;
    }

    bool opens_ = true;
    bool hasSpeakers_ = true;
    bool takesValues_ = true;
    std::int32_t minimum_ = 0;
    std::int32_t maximum_ = 65535;
    std::int32_t value_ = 65535;
    std::vector<std::string> calls_;
};

} // namespace phial::headless
