// What shaping sounds for a device takes: four voices for one second, which is what may play at a time. The
// aim is one hundredth of a processor.

#include "core/AudioOutput.h"
#include "media/VoiceFeed.h"

#include <benchmark/benchmark.h>
#include <memory>
#include <vector>

namespace
{

using namespace phial;

void fourVoices(benchmark::State& state, std::int32_t soundRate, std::int32_t deviceRate)
{
    const auto sound = std::make_shared<const Sound>(
        Sound{soundRate, 1, std::vector<float>(static_cast<std::size_t>(soundRate), 0.25F)});
    std::vector<float> piece(static_cast<std::size_t>(deviceRate) / 50 *
                             2); // 20 milliseconds of two channels
    for (auto step : state) {
        for (int voice = 0; voice < AudioOutput::MostVoices; ++voice) {
            VoiceFeed feed(sound, deviceRate, 2);
            while (feed.fill(piece, 0.5) > 0) {
                benchmark::DoNotOptimize(piece.data());
            }
        }
    }
}
BENCHMARK_CAPTURE(fourVoices, same, 44'100, 44'100)->Name("sound: four voices for a second, same rate");
BENCHMARK_CAPTURE(fourVoices, other, 44'100, 48'000)->Name("sound: four voices for a second, 44.1 to 48 kHz");

} // namespace
