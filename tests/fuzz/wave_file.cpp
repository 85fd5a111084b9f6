// Any bytes are a wave file: what is read lies within its limits, and takes no more memory than the bytes
// tell.

#include "core/AudioOutput.h"
#include "core/WaveFile.h"
#include "fuzz/FuzzInput.h"

#include <algorithm>

namespace
{

using namespace phial;
using fuzz::require;

void requirePlayable(const Sound& sound, std::size_t fileBytes)
{
    require(sound.sampleRate >= 8'000 && sound.sampleRate <= 192'000);
    require(sound.channels == 1 || sound.channels == 2);
    require(sound.samples.size() % static_cast<std::size_t>(sound.channels) == 0);
    require(sound.samples.capacity() <= fileBytes);
    require(sound.seconds() <= static_cast<double>(MaxWaveSeconds));
    require(std::all_of(sound.samples.begin(), sound.samples.end(),
                        [](float sample) { return sample >= -1 && sample <= 1; }));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    const auto sound = decodeWave(bytes);
    if (sound) {
        requirePlayable(*sound, size);
        // One byte less is a byte less of the samples, or of what stands behind them.
        const auto shorter = decodeWave(bytes.substr(0, size - 1));
        require(!shorter ||
                std::equal(shorter->samples.begin(), shorter->samples.end(), sound->samples.begin()));
        require(!shorter || shorter->samples.size() <= sound->samples.size());
    }
    return 0;
}
