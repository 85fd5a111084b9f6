#pragma once

#include <cstddef>
#include <filesystem>
#include <memory>
#include <string_view>

namespace phial
{

class FileSystem;
struct Sound;

/// A file is no larger than this; a larger one is not read.
inline constexpr std::size_t MaxWaveBytes = std::size_t{64} * 1024 * 1024;
/// What a file holds beyond ten minutes is not read.
inline constexpr std::size_t MaxWaveSeconds = 600;

/// The sound in the bytes of a wave file (RIFF/WAVE): whole numbers of 8 to 32 bits or floating point numbers
/// of 32 or 64, told by the plain or by the extensible header, 8,000 to 192,000 frames a second. Of more than
/// two channels the first two are taken. Chunks may stand in any order but that the format comes before the
/// data; those that say something else are passed over. Where data are cut off, what is there is the sound,
/// whatever the head promises; a sound may have no samples at all.
///
/// Null for everything else.
std::shared_ptr<const Sound> decodeWave(std::string_view bytes);

/// The sound in a file; null where there is none that can be read. Raises nothing.
std::shared_ptr<const Sound> loadWave(FileSystem& files, const std::filesystem::path& file);

} // namespace phial
