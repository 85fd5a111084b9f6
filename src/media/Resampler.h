#pragma once

#include "core/AudioOutput.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace phial
{

/// Tells what a sound would be like at another rate: how many frames it would have, and each of them.
///
/// Between two samples lies the value of the band-limited curve through all of them (a windowed sinc over 16
/// zero crossings to either side), so that pitch, loudness and timbre stay. What a lower rate cannot hold is
/// left out instead of coming back as another tone. At the same rate every sample is as it was.
class Resampler
{
public:
    /// Rates in frames a second, both positive.
    Resampler(std::int32_t from, std::int32_t to);

    /// How many frames of the new rate last as long as so many of the old one, the last one begun counted.
    std::size_t frames(std::size_t oldFrames) const;

    /// Sample `frame` of a channel at the new rate. `samples` are interleaved at the old rate, with silence
    /// before and behind.
    float sample(std::span<const float> samples, std::size_t channels, std::size_t channel,
                 std::size_t frame) const;

private:
    void fillPhase(std::size_t phase, double widening);

    std::uint64_t step_ = 1;      ///< old frames in a common period of both rates
    std::uint64_t newFrames_ = 1; ///< new frames in it
    std::size_t reach_ = 0;       ///< old frames to either side that count
    std::size_t phases_ = 1;      ///< places between two old frames that have weights of their own
    std::vector<float> weights_;  ///< 2 * reach_ for each phase
};

} // namespace phial
