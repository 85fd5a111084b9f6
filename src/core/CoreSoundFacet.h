#pragma once

#include "core/String.h"

namespace phial
{

/// The sound player.
class CoreSoundFacet
{
public:
    virtual ~CoreSoundFacet() = default;

    /// Plays a wave file. With `pWait` the call returns at the sound's end and runs no events meanwhile;
    /// without it the sound begins and the call returns. A new sound ends one that is playing. Gives whether
    /// the sound could be started; no failure is raised.
    virtual bool Play(StringView pPath, bool pWait) = 0;
};

} // namespace phial
