#include "core/CoreSoundFacet.h"

#include "core/Clock.h"
#include "core/CurrentFolder.h"
#include "core/NativePath.h"
#include "core/WaveFile.h"

#include <algorithm>
#include <cmath>
#include <span>
#include <utility>

namespace phial
{

namespace
{

/// The largest sample, whatever its sign, in the seconds from `begin` up to `end`.
double peakOf(const Sound& sound, double begin, double end)
{
    const auto sampleAt = [&](double seconds) {
        const double frames = std::ceil(std::max(0.0, seconds) * sound.sampleRate);
        return std::min(sound.samples.size(), static_cast<std::size_t>(frames * sound.channels));
    };
    const std::size_t first = sampleAt(begin);
    const std::size_t behind = std::max(first, sampleAt(end));
    double peak = 0;
    for (const float sample : std::span(sound.samples).subspan(first, behind - first)) {
        peak = std::max(peak, std::fabs(static_cast<double>(sample)));
    }
    return peak;
}

} // namespace

CoreSoundFacet::CoreSoundFacet(std::shared_ptr<AudioOutput> audio, std::shared_ptr<FileSystem> files,
                               std::shared_ptr<const Clock> clock,
                               std::shared_ptr<const CurrentFolder> currentFolder)
    : audio_(std::move(audio)), files_(std::move(files)), clock_(std::move(clock)),
      currentFolder_(std::move(currentFolder))
{
}

CoreSoundFacet::~CoreSoundFacet()
{
    for (const Playing& playing : playing_) {
        audio_->stop(playing.voice);
    }
}

bool CoreSoundFacet::Play(StringView pPath, bool pWait)
{
    const Voice voice = start(load(pPath));
    if (pWait) {
        audio_->waitForEnd(voice);
    }
    return voice != Voice::None;
}

std::shared_ptr<const Sound> CoreSoundFacet::load(StringView path) const
{
    return loadWave(*files_, nativePath(path, currentFolder_->path()));
}

CoreSoundFacet::Voice CoreSoundFacet::start(std::shared_ptr<const Sound> sound)
{
    if (!sound) {
        return Voice::None;
    }
    forgetEnded();
    const Voice voice = audio_->start(sound);
    if (voice != Voice::None) {
        playing_.push_back({voice, std::move(sound), clock_->seconds()});
    }
    return voice;
}

double CoreSoundFacet::level() const
{
    constexpr double Window = 0.05;
    double level = 0;
    for (const Playing& playing : playing_) {
        if (audio_->isPlaying(playing.voice)) {
            const double position = clock_->seconds() - playing.begin;
            level += peakOf(*playing.sound, position - Window, position);
        }
    }
    return std::min(level, 1.0);
}

void CoreSoundFacet::forgetEnded()
{
    std::erase_if(playing_, [this](const Playing& playing) { return !audio_->isPlaying(playing.voice); });
}

} // namespace phial
