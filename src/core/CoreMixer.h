#pragma once

#include <cstdint>

namespace phial
{

/// A volume control: what it is addressed by, and the bounds of its value.
struct MixerControl {
    std::int32_t id = 0;
    std::int32_t minimum = 0;
    std::int32_t maximum = 0;
};

/// The lines of a mixer whose volume is asked for, by the numbers under which mixers know them.
enum class MixerLine : std::int32_t { Speakers = 4, Microphone = 0x1003 };

/// The volume controls of an output. Each call gives its result: 0, or a number that tells what failed; then
/// the out parameter keeps its value. Nothing is raised.
class CoreMixer
{
public:
    static constexpr std::int32_t Done = 0;

    virtual ~CoreMixer() = default;

    /// Before everything else.
    virtual std::int32_t Open() = 0;
    virtual void Close() = 0;

    virtual std::int32_t VolumeControl(MixerLine line, MixerControl& rControl) = 0;
    virtual std::int32_t Value(const MixerControl& control, std::int32_t& rValue) = 0;
    virtual std::int32_t SetValue(const MixerControl& control, std::int32_t value) = 0;
};

} // namespace phial
