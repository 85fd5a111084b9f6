#pragma once

#include "core/AudioOutput.h"
#include "core/Clock.h"
#include "media/VoiceFeed.h"

#include <QAudioDevice>
#include <QAudioFormat>
#include <QByteArray>

#include <memory>
#include <vector>

class QAudioSink;
class QIODevice;

namespace phial::qt
{

/// One sound on a connection of its own to the device. A new one begins with what it is given first, so it is
/// heard at once whatever else plays; and one that has played once would lose its end when played again.
///
/// It is fed `LeadSeconds` ahead: long enough for a busy program, and short enough for a gain that changes.
class SinkVoice
{
public:
    static constexpr double LeadSeconds = 0.2;

    /// Begins. The sound has samples, a rate and channels; the clock outlives the voice.
    SinkVoice(const QAudioDevice& device, std::shared_ptr<const Sound> sound, double gain,
              const Clock& clock);
    ~SinkVoice();
    SinkVoice(const SinkVoice&) = delete;
    SinkVoice& operator=(const SinkVoice&) = delete;

    /// Whether the device did not take the sound, or has been lost while it played.
    bool isLost() const;
    /// By the clock since the start, as nothing else tells the place: the device reports what it has taken,
    /// not what is heard.
    bool isPlaying() const;
    /// When it ends, by the clock, if it is not lost.
    double end() const { return end_; }
    /// Whether nothing of it can be heard any more. Letting go of a connection before takes the end away.
    bool hasRungOut() const;

    void feed(double gain);

private:
    bool isWanted() const;
    QByteArray nextPiece(double gain);

    const Clock& clock_;
    double begin_;
    double end_;
    double fedUntil_; ///< when the last frames were written
    QAudioFormat format_;
    VoiceFeed feed_;
    std::size_t fed_ = 0; ///< frames
    std::size_t silence_; ///< frames still to come behind the sound
    std::vector<float> samples_;
    QByteArray waiting_; ///< shaped for the device, which had no room for it
    QAudioSink* sink_;
    QIODevice* device_; ///< the sink's; null where it refused
};

/// Whether the device takes sounds now. A server of sounds that has gone keeps its devices on the list.
bool takesSounds(const QAudioDevice& device);

} // namespace phial::qt
