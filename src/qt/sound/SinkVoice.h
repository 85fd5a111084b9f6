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

    /// Connects, which takes as long as the device likes, and waits to be fed. The sound has samples, a rate
    /// and channels; the clock outlives the voice.
    SinkVoice(const QAudioDevice& device, std::shared_ptr<const Sound> sound, const Clock& clock);
    ~SinkVoice();
    SinkVoice(const SinkVoice&) = delete;
    SinkVoice& operator=(const SinkVoice&) = delete;

    /// Whether the device did not take the sound, or has been lost while it played.
    bool isLost() const;
    /// Whether nothing of it can be heard any more, if it is not lost, or should be, since the device has
    /// been held up for too long. Letting go of a connection before takes the end away.
    bool hasRungOut() const;

    void feed(double gain);

private:
    bool isWanted() const;
    QByteArray nextPiece(double gain);

    const Clock& clock_;
    double length_;
    QAudioFormat format_;
    VoiceFeed feed_;
    std::size_t fed_ = 0; ///< frames
    std::size_t silence_; ///< frames still to come behind the sound
    std::vector<float> samples_;
    QByteArray waiting_; ///< shaped for the device, which had no room for it
    QAudioSink* sink_;
    QIODevice* device_;   ///< the sink's; null where it refused
    double begin_ = 0;    ///< when it was connected
    double fedUntil_ = 0; ///< when the last frames were written
};

/// Whether the device takes sounds now. A server of sounds that has gone keeps its devices on the list.
bool takesSounds(const QAudioDevice& device);

} // namespace phial::qt
