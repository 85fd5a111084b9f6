#pragma once

#include "core/AudioOutput.h"
#include "core/String.h"

#include <memory>
#include <vector>

namespace phial
{

class Clock;
class CurrentFolder;
class FileSystem;

/// The sound player: wave files, and what of them is being heard. All sounds of a session pass through it,
/// and its end is theirs. Nothing is raised; what cannot be played is silent.
class CoreSoundFacet
{
public:
    using Voice = AudioOutput::Voice;

    CoreSoundFacet(std::shared_ptr<AudioOutput> audio, std::shared_ptr<FileSystem> files,
                   std::shared_ptr<const Clock> clock, std::shared_ptr<const CurrentFolder> currentFolder);
    ~CoreSoundFacet();
    CoreSoundFacet(const CoreSoundFacet&) = delete;
    CoreSoundFacet& operator=(const CoreSoundFacet&) = delete;

    /// Plays a wave file beside what is playing already; see AudioOutput for how many mix. With `pWait` the
    /// call returns at the sound's end and runs no events meanwhile; without it the sound begins and the call
    /// returns. Gives whether the sound has begun.
    bool Play(StringView pPath, bool pWait);

    /// The sound of a file; null where there is none that can be read.
    std::shared_ptr<const Sound> load(StringView path) const;

    /// As AudioOutput does.
    Voice start(std::shared_ptr<const Sound> sound);
    bool isPlaying(Voice voice) const { return audio_->isPlaying(voice); }
    void stop(Voice voice) { audio_->stop(voice); }

    /// For a meter: how far the samples of the last twentieth of a second reach, 0 to 1, before the gain.
    /// Where several sounds play their peaks add up, at most to 1.
    double level() const;

private:
    struct Playing {
        Voice voice;
        std::shared_ptr<const Sound> sound;
        double begin; ///< by the clock
    };

    void forgetEnded();

    std::shared_ptr<AudioOutput> audio_;
    std::shared_ptr<FileSystem> files_;
    std::shared_ptr<const Clock> clock_;
    std::shared_ptr<const CurrentFolder> currentFolder_;
    std::vector<Playing> playing_;
};

} // namespace phial
