#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string_view>

namespace phial
{

class FileSystem;

/// What else is wished of a replacement.
struct Replacement {
    /// The old file is not replaced but moved aside: its name with this mark, see `moveAside`.
    std::string_view keepOldAs = {};
    /// The time of the last change that the new file gets, as `FileStatus` has it; where the system does not
    /// let it be set, it is that of the replacement.
    std::optional<std::int64_t> time = std::nullopt;
};

/// Replaces a file in one step: the bytes go into a temporary file beside it, which gets the old file's
/// rights, is flushed and renamed over it, and then the folder is flushed. At every moment, a power failure
/// included, the old or the new file is there whole; only where the old one is kept aside the name may stand
/// for none in between. Temporary files that a program left behind when it ended early are cleared first. A
/// link is followed.
///
/// Raises what the file system raises, and takes its own temporary file away then; an old file that was moved
/// aside goes back. `rAside` is where the old file is kept when the call has ended, in either way.
void replaceFile(FileSystem& files, const std::filesystem::path& target, std::string_view bytes,
                 const Replacement& wishes, std::optional<std::filesystem::path>& rAside);
void replaceFile(FileSystem& files, const std::filesystem::path& target, std::string_view bytes,
                 const Replacement& wishes = {});

/// Renames a file so that it is kept and does not stand in the way: the mark is added to its name, and a
/// number where that name is taken. The new name is on the disk when this returns. Gives the new path. Raises
/// 75 when it cannot be done, or when a thousand names are taken; the file has its old name then.
std::filesystem::path moveAside(FileSystem& files, const std::filesystem::path& file,
                                std::string_view mark = ".damaged");

} // namespace phial
