#include "core/ProgramMixer.h"

#include <utility>

namespace phial
{

namespace
{

constexpr MixerControl OwnLevel{1, 0, 65535};

// The results by which mixers tell what failed.
constexpr std::int32_t InvalidControl = 1025;
constexpr std::int32_t InvalidValue = 1026;
constexpr std::int32_t InvalidLine = 1024;

} // namespace

ProgramMixer::ProgramMixer(std::shared_ptr<AudioOutput> audio)
    : audio_(std::move(audio)), level_(OwnLevel.maximum)
{
}

std::int32_t ProgramMixer::VolumeControl(MixerLine line, MixerControl& rControl)
{
    if (line != MixerLine::Speakers) {
        return InvalidLine;
    }
    rControl = OwnLevel;
    return Done;
}

std::int32_t ProgramMixer::Value(const MixerControl& control, std::int32_t& rValue)
{
    if (control.id != OwnLevel.id) {
        return InvalidControl;
    }
    rValue = level_;
    return Done;
}

std::int32_t ProgramMixer::SetValue(const MixerControl& control, std::int32_t value)
{
    if (control.id != OwnLevel.id) {
        return InvalidControl;
    }
    if (value < OwnLevel.minimum || value > OwnLevel.maximum) {
        return InvalidValue;
    }
    level_ = value;
    audio_->gain(static_cast<double>(level_) / OwnLevel.maximum);
    return Done;
}

} // namespace phial
