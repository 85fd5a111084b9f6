#include "headless/FakeAudio.h"

#include <algorithm>

namespace phial::headless
{

void FakeAudio::available(bool value)
{
    available_ = value;
    if (!available_) {
        for (const Voice voice : playing()) {
            stop(voice);
        }
    }
}

AudioOutput::Voice FakeAudio::start(std::shared_ptr<const Sound> sound)
{
    if (!available_ || !sound || sound->samples.empty()) {
        return Voice::None;
    }
    if (const std::vector<Voice> before = playing(); before.size() >= MostVoices) {
        stop(before.front());
    }
    const double now = clock_->seconds();
    const double end = now + sound->seconds();
    heard_.push_back({std::move(sound), now, end});
    return Voice{static_cast<std::int64_t>(heard_.size())};
}

void FakeAudio::stop(Voice voice)
{
    if (HeardSound* const sound = find(voice)) {
        sound->end = std::min(sound->end, clock_->seconds());
    }
}

bool FakeAudio::isPlaying(Voice voice) const
{
    const HeardSound* const sound = find(voice);
    return sound != nullptr && clock_->seconds() < sound->end;
}

void FakeAudio::waitForEnd(Voice voice)
{
    if (isPlaying(voice)) {
        clock_->sleep(find(voice)->end - clock_->seconds());
    }
}

/// The oldest first.
std::vector<AudioOutput::Voice> FakeAudio::playing() const
{
    std::vector<Voice> voices;
    for (std::size_t place = 1; place <= heard_.size(); ++place) {
        const Voice voice{static_cast<std::int64_t>(place)};
        if (isPlaying(voice)) {
            voices.push_back(voice);
        }
    }
    return voices;
}

HeardSound* FakeAudio::find(Voice voice)
{
    const auto place = static_cast<std::size_t>(voice);
    return place >= 1 && place <= heard_.size() ? &heard_[place - 1] : nullptr;
}

} // namespace phial::headless
