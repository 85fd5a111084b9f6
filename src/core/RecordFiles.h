#pragma once

#include "core/KeptRecords.h"
#include "core/RecordFormat.h"
#include "core/String.h"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace phial
{

class FileSystem;
struct Platform;
class RecordSeal;

/// What becomes of a file that is replaced.
enum class OldFile : std::uint8_t {
    Replace,
    Keep, ///< its content is kept aside, whatever it is
};

/// Record files on the disk.
///
/// A file is read whole and checked before its first value is handed out, and reading never changes anything.
/// Writing replaces the file in one step. What it would replace without having read it is kept aside, and
/// noted for people, under the file's name with
///
/// - ".damaged", when the file is damaged or no record file;
/// - ".kept", when it is whole but not ours to replace: of a later format, with a later version (the first
///   value, if that is a text such as "2.0"), sealed with another password, or not sealed when it now shall
///   be; and when the caller wishes it.
class RecordFiles
{
public:
    /// Works on the files and with the seal of a platform, and notes what is kept aside unless that is null.
    /// Both must outlive this object.
    explicit RecordFiles(const Platform& platform, KeptRecords* kept = nullptr);

    /// All values of a file. Raises 53 when there is none, 75 when it cannot be read or was not written with
    /// that password, 5 when it is damaged or of a later format.
    std::vector<Variant> read(const std::filesystem::path& file, StringView password) const;

    /// Makes the values the file's content. The empty password leaves it open; any other seals it, which
    /// raises 5 when the platform has no seal. Raises 75 when a step fails; the old file stays in its place.
    void write(const std::filesystem::path& file, StringView password, const RecordWriter& values,
               OldFile oldFile = OldFile::Replace) const;

private:
    std::string bytesOf(const std::filesystem::path& file, std::uintmax_t size) const;
    std::string framed(const std::string& body, StringView password) const;
    /// What `take` makes of the body; none when the password is not the one that the file was written with.
    template <typename Take>
    auto fromBody(const record_format::Frame& frame, StringView password, const Take& take) const
        -> std::optional<decltype(take(frame.body))>;
    std::optional<KeptRecord::Reason> reasonToKeep(const std::filesystem::path& file, StringView password,
                                                   const RecordWriter& values, OldFile oldFile) const;
    std::optional<KeptRecord::Reason> reasonToKeep(std::string_view bytes, StringView password,
                                                   const RecordWriter& values) const;

    FileSystem& files_;
    RecordSeal* seal_;
    KeptRecords* kept_;
};

} // namespace phial
