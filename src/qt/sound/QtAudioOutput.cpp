#include "qt/sound/QtAudioOutput.h"

#include "qt/sound/ModuleMessages.h"
#include "qt/sound/SinkVoice.h"

#include <QMediaDevices>

#include <algorithm>
#include <utility>

namespace phial::qt
{

namespace
{

constexpr int FeedMilliseconds = 20;

bool isPlayable(const Sound* sound)
{
    return sound != nullptr && sound->sampleRate > 0 && sound->channels > 0 && !sound->samples.empty();
}

} // namespace

QtAudioOutput::QtAudioOutput(std::shared_ptr<Clock> clock) : clock_(std::move(clock))
{
    silenceSoundModule();
    feeding_.setTimerType(Qt::PreciseTimer);
    feeding_.setInterval(FeedMilliseconds);
    QObject::connect(&feeding_, &QTimer::timeout, &feeding_, [this] { feed(); });
}

QtAudioOutput::~QtAudioOutput() = default;

bool QtAudioOutput::available() const
{
    const bool isLost = isLost_ || std::any_of(sounding_.begin(), sounding_.end(),
                                               [](const Sounding& each) { return each.sink->isLost(); });
    const QAudioDevice device = QMediaDevices::defaultAudioOutput();
    return !device.isNull() && (!isLost || takesSounds(device));
}

AudioOutput::Voice QtAudioOutput::start(std::shared_ptr<const Sound> sound)
{
    const QAudioDevice device = QMediaDevices::defaultAudioOutput();
    if (device.isNull() || !isPlayable(sound.get())) {
        return Voice::None;
    }
    auto sink = std::make_unique<SinkVoice>(device, std::move(sound), gain_, *clock_);
    isLost_ = sink->isLost();
    if (isLost_) {
        return Voice::None;
    }
    endOldest();
    sounding_.push_back({Voice{++lastVoice_}, std::move(sink)});
    feeding_.start();
    return sounding_.back().voice;
}

/// Makes room for one more voice.
void QtAudioOutput::endOldest()
{
    const auto isPlaying = [](const Sounding& each) { return each.sink->isPlaying(); };
    if (std::count_if(sounding_.begin(), sounding_.end(), isPlaying) >= MostVoices) {
        sounding_.erase(std::find_if(sounding_.begin(), sounding_.end(), isPlaying));
    }
}

void QtAudioOutput::stop(Voice voice)
{
    if (isPlaying(voice)) {
        std::erase_if(sounding_, [voice](const Sounding& each) { return each.voice == voice; });
    }
}

const SinkVoice* QtAudioOutput::find(Voice voice) const
{
    const auto found = std::find_if(sounding_.begin(), sounding_.end(),
                                    [voice](const Sounding& each) { return each.voice == voice; });
    return found == sounding_.end() ? nullptr : found->sink.get();
}

bool QtAudioOutput::isPlaying(Voice voice) const
{
    const SinkVoice* const sink = find(voice);
    return sink != nullptr && sink->isPlaying();
}

void QtAudioOutput::waitForEnd(Voice voice)
{
    while (isPlaying(voice)) {
        clock_->sleep(std::min(find(voice)->end() - clock_->seconds(), FeedMilliseconds / 1000.0));
        feed();
    }
}

void QtAudioOutput::feed()
{
    for (const Sounding& each : sounding_) {
        each.sink->feed(gain_);
        isLost_ = isLost_ || each.sink->isLost();
    }
    std::erase_if(sounding_, [](const Sounding& each) { return each.sink->hasRungOut(); });
    if (sounding_.empty()) {
        feeding_.stop();
    }
}

} // namespace phial::qt
