#pragma once

#include "core/AudioOutput.h"
#include "core/Clock.h"

#include <memory>

namespace phial::qt
{

class SoundThread;
class VoiceBoard;

/// The loudspeakers of the desktop, whichever the user has chosen at the time when a sound begins. They are
/// asked for when the first sound is played, so a silent program costs nothing.
///
/// Sounds are handed to a thread of their own, so nothing here waits for a server of sounds, however long
/// that takes. Where there is no server, or it dies, nothing is heard and nothing is said. A voice that has
/// been given plays by the clock, until it turns out that it cannot be heard.
class QtAudioOutput final : public AudioOutput
{
public:
    /// The clock may be asked by every thread.
    explicit QtAudioOutput(std::shared_ptr<Clock> clock);
    /// Ends all sounds.
    ~QtAudioOutput() override;

    /// The first time it waits for the answer, for a twentieth of a second at most; false without one.
    bool available() const override;
    Voice start(std::shared_ptr<const Sound> sound) override;
    void gain(double value) override;
    void stop(Voice voice) override;
    bool isPlaying(Voice voice) const override;
    void waitForEnd(Voice voice) override;

private:
    void wake() const;

    std::shared_ptr<Clock> clock_;
    std::shared_ptr<VoiceBoard> board_;
    mutable std::shared_ptr<SoundThread> thread_; ///< null before it was needed
};

} // namespace phial::qt
