// What it takes to have a sound played, up to its place in the queue: a file that is known, and one of a
// category, which is at most two listings of its folders.

#include "app/Session.h"
#include "app/cls_App.h"
#include "app/cls_AppConfig.h"
#include "app/cls_AppURL.h"
#include "app/sys_Global.h"
#include "core/CoreFiles.h"
#include "core/CoreRoot.h"
#include "core/CoreStringList.h"
#include "core/NativePath.h"
#include "headless/HeadlessPlatform.h"
#include "media/cls_AppMedia.h"

#include <benchmark/benchmark.h>
#include <filesystem>

namespace
{

using namespace phial;

/// A run with the installed sounds, whose cache lies in a folder of its own.
class Player
{
public:
    Player() : outside_(systemPath(cache_) + u"\\"), session_(outside_.platform())
    {
        QVAPP()->URL()->INITROOT(systemPath(cache_) + u"\\");
        QVAPP()->URL()->RESOURCESFX(systemPath(std::filesystem::path(PHIAL_BENCH_TREE) / "Resources/sfx/"));
        QVAPP()->CONFIG()->SOUND(true);
    }
    ~Player() { std::filesystem::remove_all(cache_); }
    Player(const Player&) = delete;
    Player& operator=(const Player&) = delete;

    cls_AppMedia& media() { return *QVAPP()->MEDIA(); }
    /// Plays what waits.
    void rest() { outside_.advance(1); }

private:
    const std::filesystem::path cache_ = std::filesystem::temp_directory_path() / "phial_media_bench";
    headless::HeadlessPlatform outside_;
    Session session_;
};

void knownSound(benchmark::State& state)
{
    Player player;
    const String file = QVAPP()->URL()->RESOURCESFX() + u"click\\tick.wav";
    player.media().CACHE(file);
    for (auto step : state) {
        player.media().CACHE(file);
    }
}
BENCHMARK(knownSound)->Name("sound: CACHE of a known file");

void soundOfACategory(benchmark::State& state)
{
    Player player;
    std::int64_t played = 0;
    for (auto step : state) {
        player.media().PLAYCATEGORY(u"correct", false);
        if (++played % 16 == 0) {
            state.PauseTiming();
            player.rest();
            state.ResumeTiming();
        }
    }
}
BENCHMARK(soundOfACategory)->Name("sound: PLAYCATEGORY")->Unit(benchmark::kMicrosecond);

void twoListings(benchmark::State& state)
{
    const Player player;
    const CoreFiles& files = coreRoot().CoreFiles();
    const String folder = QVAPP()->URL()->RESOURCESFX();
    for (auto step : state) {
        benchmark::DoNotOptimize(files.List(folder + u"*", true, false, false));
        benchmark::DoNotOptimize(files.List(folder + u"correct\\*.wav", false, true, true));
    }
}
BENCHMARK(twoListings)->Name("sound: two listings of those folders")->Unit(benchmark::kMicrosecond);

} // namespace
