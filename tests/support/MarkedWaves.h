#pragma once

#include "core/AudioOutput.h"
#include "support/WaveBytes.h"

#include <cmath>
#include <cstdint>
#include <string>

namespace phial::test
{

/// A wave file of 16 bits, mono, 8,000 frames a second, all of whose samples are `mark` 128ths, so that a
/// sound that is heard tells which file it is from.
inline std::string markedWave(double seconds, int mark = 64)
{
    constexpr std::uint32_t Rate = 8000;
    std::string data;
    for (int frame = 0; frame < static_cast<int>(std::lround(seconds * Rate)); ++frame) {
        data += littleEndian(static_cast<std::uint32_t>(mark * 256), 2);
    }
    return waveFile(WaveHeader{.rate = Rate}, data);
}

/// The mark of the file that a sound is from.
inline int markOf(const Sound& sound)
{
    return static_cast<int>(std::lround(static_cast<double>(sound.samples.at(0)) * 128));
}

} // namespace phial::test
