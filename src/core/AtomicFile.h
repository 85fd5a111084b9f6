#pragma once

#include <filesystem>
#include <string_view>

namespace phial
{

class FileSystem;

/// Replaces a file in one step: the bytes go into a temporary file beside it, which is flushed and renamed
/// over it, and then the folder is flushed. At every moment, a power failure included, the old or the new
/// file is there whole. Temporary files that a program left behind when it ended early are cleared first. A
/// link is followed. Raises what the file system raises, and takes its own temporary file away then.
void replaceFile(FileSystem& files, const std::filesystem::path& target, std::string_view bytes);

/// Renames a damaged file so that it is kept and does not stand in the way: the mark is added to its name,
/// and a number where that name is taken. The new name is on the disk when this returns. Gives the new path.
std::filesystem::path moveAside(FileSystem& files, const std::filesystem::path& file,
                                std::string_view mark = ".damaged");

} // namespace phial
