#pragma once

#include "core/AudioOutput.h"
#include "media/Resampler.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>

namespace phial
{

/// Gives a sound piece by piece in the shape that a device takes: its rate, its number of channels, and as
/// loud as is wished at that moment.
///
/// One channel is heard from the first two alike; of two, a device with a single one gets the mean. Further
/// channels of a device stay silent. The first piece has its gain at once; a gain that changes later is
/// reached evenly within `GainSeconds`, for a jump would be heard as a crackle.
class VoiceFeed
{
public:
    static constexpr double GainSeconds = 0.01;

    /// `rate` in frames a second and `channels` of the device, both positive.
    VoiceFeed(std::shared_ptr<const Sound> sound, std::int32_t rate, std::int32_t channels);

    /// How many frames are still to come.
    std::size_t framesLeft() const { return frames_ - next_; }

    /// Writes the next frames, as many as there are and as fit into `samples`, whose length is a multiple of
    /// the device's channels; gives their number.
    std::size_t fill(std::span<float> samples, double gain);

private:
    float nextGain(float wanted);
    void fillFrame(std::span<float> frame, float gain) const;

    std::shared_ptr<const Sound> sound_;
    std::size_t soundChannels_;
    std::size_t channels_;
    Resampler resampler_;
    std::size_t frames_;
    std::size_t next_ = 0;
    float gainStep_; ///< in a frame, at most
    std::optional<float> gain_;
};

} // namespace phial
