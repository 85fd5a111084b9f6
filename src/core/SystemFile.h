#pragma once

#include "core/FileSystem.h"

#include <filesystem>
#include <optional>
#include <string_view>

namespace phial::system_file
{

/// What the systems do each in its own way, for `NativeFileSystem`. Errors are those of the system.

FileStatus status(const std::filesystem::path& path, std::error_code& rError);

/// Whether this user's rights suffice to read the file, if there is one, and to rename another one over it.
bool mayReplace(const std::filesystem::path& file);

/// Makes or replaces a file that has the rights of `model`: owner and group where this user may set them,
/// else at most what that group and others had.
std::error_code writeLike(const std::filesystem::path& model, const std::filesystem::path& file,
                          std::string_view bytes);

std::error_code setTime(const std::filesystem::path& file, std::int64_t time);

/// Brings what the system holds in memory for a file or folder to the disk. No error where it cannot be
/// opened for want of rights, or where the system has no such step.
std::error_code synchronise(const std::filesystem::path& path);

} // namespace phial::system_file
