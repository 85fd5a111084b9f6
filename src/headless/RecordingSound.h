#pragma once

#include "core/CoreSoundFacet.h"

#include <vector>

namespace phial::headless
{

/// A sound that was to be played.
struct PlayedSound {
    String path;
    bool wait = false;

    friend bool operator==(const PlayedSound&, const PlayedSound&) = default;
};

/// Plays nothing and remembers what was to be played.
class RecordingSound : public CoreSoundFacet
{
public:
    /// What the calls answer from now on; at first true.
    void answer(bool answer) { answer_ = answer; }
    const std::vector<PlayedSound>& played() const { return played_; }

    bool Play(StringView pPath, bool pWait) override
    {
        played_.push_back({String(pPath), pWait});
        return answer_;
    }

private:
    bool answer_ = true;
    std::vector<PlayedSound> played_;
};

} // namespace phial::headless
