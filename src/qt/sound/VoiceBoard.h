#pragma once

#include "core/AudioOutput.h"

#include <chrono>
#include <condition_variable>
#include <cstddef>
#include <memory>
#include <mutex>
#include <optional>
#include <utility>
#include <vector>

namespace phial::qt
{

/// What stands between the thread of the user interface, which says what is to be heard, and the thread of
/// sounds, which may be held up by a server for as long as that likes. Neither waits for the other here.
///
/// Times are seconds of one clock. A voice ends by the clock, whenever the thread of sounds comes to begin
/// it.
class VoiceBoard
{
public:
    using Voice = AudioOutput::Voice;
    /// A sound that could not begin so long is not heard any more: it would have nothing to do with what goes
    /// on then. Loudspeakers that have to wake up first take up to a second.
    static constexpr double LatestSeconds = 2;
    /// So many wait at most for the thread of sounds; a further one takes the place of the oldest.
    static constexpr std::size_t MostWaiting = 16;

    struct Waiting {
        Voice voice = Voice::None;
        std::shared_ptr<const Sound> sound;
        double begin = 0; ///< when it was to begin

        bool isTooLate(double now) const { return now > begin + LatestSeconds; }
    };
    /// What the thread of sounds has to do.
    struct Work {
        std::vector<Waiting> begun; ///< in their order
        std::vector<Voice> stopped; ///< begun before, and to be cut off
        bool isClosed = false;      ///< there is no more to come
    };

    // For the thread of the user interface.

    /// A sound with samples begins now. What plays too much is ended, the oldest first.
    Voice add(std::shared_ptr<const Sound> sound, double now);
    void stop(Voice voice);
    bool isPlaying(Voice voice, double now) const;
    /// When it ends by the clock; nothing for one that has ended already.
    std::optional<double> end(Voice voice) const;
    void gain(double value);
    /// Ends all sounds, and that was all.
    void close();

    /// Whether there is a loudspeaker that takes sounds, as far as is known; none before the first look at
    /// it.
    std::optional<bool> hasDevice() const;
    /// The same, waiting for the first look, but no longer than that.
    std::optional<bool> hasDeviceWithin(std::chrono::milliseconds patience) const;

    // For the thread of sounds.

    /// What has come up since it was asked last.
    Work take(double now);
    double gain() const;
    /// The loudspeaker is there, or not.
    void hasDevice(bool value);
    /// The loudspeaker has been lost, or takes no sound now, and with it this voice.
    void lose(Voice voice);

private:
    struct Entry {
        Waiting waiting; ///< without its sound when the thread of sounds has taken it
        double end = 0;

        Voice voice() const { return waiting.voice; }
        bool isWaiting() const { return waiting.sound != nullptr; }
    };

    void endOldest(double now);
    void endWaiting();
    void forgetOver(double now);
    void erase(std::vector<Entry>::iterator entry);
    std::vector<Entry>::const_iterator find(Voice voice) const;

    mutable std::mutex mutex_; ///< for all that follows
    mutable std::condition_variable looked_;
    std::vector<Entry> entries_; ///< the oldest first
    std::vector<Voice> stopped_;
    std::optional<bool> hasDevice_;
    std::int64_t lastVoice_ = 0;
    double gain_ = 1;
    bool isClosed_ = false;
};

} // namespace phial::qt
