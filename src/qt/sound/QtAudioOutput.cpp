#include "qt/sound/QtAudioOutput.h"

#include "qt/sound/ModuleMessages.h"
#include "qt/sound/SoundThread.h"
#include "qt/sound/VoiceBoard.h"

#include <algorithm>
#include <utility>

namespace phial::qt
{

namespace
{

constexpr std::chrono::milliseconds FirstLook{50};
constexpr double WaitPiece = 0.02; // seconds; a sound may be lost while it is waited for

bool isPlayable(const Sound* sound)
{
    return sound != nullptr && sound->sampleRate > 0 && sound->channels > 0 && !sound->samples.empty();
}

} // namespace

QtAudioOutput::QtAudioOutput(std::shared_ptr<Clock> clock)
    : clock_(std::move(clock)), board_(std::make_shared<VoiceBoard>())
{
    silenceSoundModule();
}

QtAudioOutput::~QtAudioOutput()
{
    board_->close();
    if (thread_) {
        wake();
    }
}

/// Has the thread of sounds look at the board, and at the device.
void QtAudioOutput::wake() const
{
    if (!thread_) {
        thread_ = SoundThread::shared();
        thread_->loudspeakers().serve(board_, clock_);
    }
    thread_->loudspeakers().wake();
}

bool QtAudioOutput::available() const
{
    wake();
    return board_->hasDeviceWithin(FirstLook).value_or(false);
}

AudioOutput::Voice QtAudioOutput::start(std::shared_ptr<const Sound> sound)
{
    if (!isPlayable(sound.get())) {
        return Voice::None;
    }
    const Voice voice = board_->hasDevice().value_or(true)
                            ? board_->add(std::move(sound), clock_->seconds())
                            : Voice::None; // by the next time the device may be back
    wake();
    return voice;
}

void QtAudioOutput::gain(double value)
{
    board_->gain(value);
}

void QtAudioOutput::stop(Voice voice)
{
    if (isPlaying(voice)) {
        board_->stop(voice);
        wake();
    }
}

bool QtAudioOutput::isPlaying(Voice voice) const
{
    return board_->isPlaying(voice, clock_->seconds());
}

void QtAudioOutput::waitForEnd(Voice voice)
{
    while (isPlaying(voice)) {
        const double left = board_->end(voice).value_or(0) - clock_->seconds();
        clock_->sleep(std::min(left, WaitPiece));
    }
}

} // namespace phial::qt
