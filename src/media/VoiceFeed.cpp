#include "media/VoiceFeed.h"

#include <algorithm>
#include <utility>

namespace phial
{

VoiceFeed::VoiceFeed(std::shared_ptr<const Sound> sound, std::int32_t rate, std::int32_t channels)
    : sound_(std::move(sound)), soundChannels_(static_cast<std::size_t>(sound_->channels)),
      channels_(static_cast<std::size_t>(channels)), resampler_(sound_->sampleRate, rate),
      frames_(resampler_.frames(sound_->samples.size() / soundChannels_)),
      gainStep_(static_cast<float>(1 / (GainSeconds * rate)))
{
}

std::size_t VoiceFeed::fill(std::span<float> samples, double gain)
{
    const auto wanted = static_cast<float>(std::clamp(gain, 0.0, 1.0));
    const std::size_t count = std::min(samples.size() / channels_, framesLeft());
    for (std::size_t frame = 0; frame < count; ++frame, ++next_) {
        fillFrame(samples.subspan(frame * channels_, channels_), nextGain(wanted));
    }
    return count;
}

float VoiceFeed::nextGain(float wanted)
{
    const float before = gain_.value_or(wanted);
    gain_ = std::clamp(wanted, before - gainStep_, before + gainStep_);
    return *gain_;
}

void VoiceFeed::fillFrame(std::span<float> frame, float gain) const
{
    const auto sample = [this, gain](std::size_t channel) {
        return gain * resampler_.sample(sound_->samples, soundChannels_, channel, next_);
    };
    const float left = sample(0);
    const float right = soundChannels_ > 1 ? sample(1) : left;
    std::fill(frame.begin(), frame.end(), 0.0F);
    if (frame.size() == 1) {
        frame[0] = (left + right) / 2;
    } else {
        frame[0] = left;
        frame[1] = right;
    }
}

} // namespace phial
