#pragma once

#include "core/AudioOutput.h"
#include "core/Clock.h"

#include <QTimer>

#include <memory>
#include <vector>

namespace phial::qt
{

class SinkVoice;

/// The loudspeakers of the desktop, whichever the user has chosen at the time when a sound begins. They are
/// asked for when the first sound is played, so a silent program costs nothing.
///
/// Sounds are mixed by the desktop's own server, each on its own connection, which is kept until the sound
/// has rung out. Where there is no server, or it dies, nothing is heard and nothing is said.
class QtAudioOutput final : public AudioOutput
{
public:
    explicit QtAudioOutput(std::shared_ptr<Clock> clock);
    /// Ends all sounds.
    ~QtAudioOutput() override;

    bool available() const override;
    Voice start(std::shared_ptr<const Sound> sound) override;
    void gain(double value) override { gain_ = value; }
    void stop(Voice voice) override;
    bool isPlaying(Voice voice) const override;
    void waitForEnd(Voice voice) override;

private:
    struct Sounding {
        Voice voice;
        std::unique_ptr<SinkVoice> sink;
    };
    const SinkVoice* find(Voice voice) const;
    void endOldest();
    void feed();

    std::shared_ptr<Clock> clock_;
    std::vector<Sounding> sounding_; ///< the oldest first; those that ring out too
    std::int64_t lastVoice_ = 0;
    double gain_ = 1;
    bool isLost_ = false; ///< the last that was heard of the device
    QTimer feeding_;
};

} // namespace phial::qt
