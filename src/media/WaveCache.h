#pragma once

#include "core/CoreStringList.h"
#include "core/CoreTokenList.h"
#include "core/String.h"

#include <optional>

namespace phial
{

/// Where wave files are played from. Sounds of an installation may lie on a slow shared folder, so each is
/// copied into the user's cache when it is first asked for in a run, unless a copy of it is there.
class WaveCache
{
public:
    /// Finds a file, sees to its copy, and keeps both; nothing is looked up for a name that is known. A name
    /// without extension is that of a wave file. It is looked for as it stands, below the folder of sounds,
    /// among the sounds of that folder, and among those of the program's own data. What is not found is not
    /// kept.
    void take(StringView file);

    /// The file to play for a name, as it was given to `take` and without regard to case: the copy, or the
    /// file itself where it has none (a failed copy, a place outside the folders of sounds and data). Empty
    /// for what was not found.
    String path(StringView file) const;

private:
    std::optional<String> find(const String& file);
    const CoreStringList& commonSounds();

    CoreTokenList paths_; ///< by upper-case name
    std::optional<CoreStringList> commonSounds_;
};

} // namespace phial
