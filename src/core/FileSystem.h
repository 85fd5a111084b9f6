#pragma once

#include "core/String.h"
#include "core/SystemLock.h"

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>

namespace phial
{

/// What stands at a path, links followed.
struct FileStatus {
    enum class Kind : std::uint8_t { Absent, File, Folder, Other };

    Kind kind = Kind::Absent;
    std::int64_t time = 0;   ///< of the last change, in the system's own finest unit
    std::uintmax_t size = 0; ///< bytes of a file
    /// Differs between two files that bear one name after each other; 0 where the system does not tell.
    std::uint64_t identity = 0;

    friend bool operator==(const FileStatus&, const FileStatus&) = default;
};

/// Whether an error says that there is nothing at a path. All other errors leave that open.
bool meansAbsent(const std::error_code& error);

/// Raises 53 for an error that means absent, and 75 for every other one.
[[noreturn]] void raiseFileError(const std::error_code& error, StringView what,
                                 const std::filesystem::path& path);

/// The steps by which files are asked for and change, one call each, so that a test can let any of them fail.
///
/// Paths are native. A failing step raises 53 (what is needed is not there) or 75 (access refused, disk full,
/// any other failure).
class FileSystem
{
public:
    virtual ~FileSystem() = default;

    /// What stands at a path. Raises 75 when that cannot be told; only "not found" and "no such folder" mean
    /// that nothing is there.
    virtual FileStatus status(const std::filesystem::path& path) = 0;
    /// Whether this user may read the file, or there is none, and may put another one in its place. Raises
    /// nothing; what cannot be told counts as allowed.
    virtual bool mayReplace(const std::filesystem::path& file) = 0;
    /// The whole content of a file.
    virtual std::string read(const std::filesystem::path& file) = 0;
    /// Makes or replaces a file. Until `flush` the content may be lost in a power failure.
    virtual void write(const std::filesystem::path& file, std::string_view bytes) = 0;
    /// The same, with the rights of another file as far as this user may give them; nobody whom those rights
    /// keep out can read it at any moment.
    virtual void writeLike(const std::filesystem::path& model, const std::filesystem::path& file,
                           std::string_view bytes) = 0;
    /// Adds to the end of a file, or makes it.
    virtual void append(const std::filesystem::path& file, std::string_view bytes) = 0;
    /// Sets the time of the last change, as `status` tells it.
    virtual void setTime(const std::filesystem::path& file, std::int64_t time) = 0;
    /// Brings a file's content to the disk.
    virtual void flush(const std::filesystem::path& file) = 0;
    /// Brings a folder's list of names to the disk; nothing happens where systems do not know that step, or
    /// do not let this user take it.
    virtual void flushFolder(const std::filesystem::path& folder) = 0;
    /// Renames a file, replacing the target in one step.
    virtual void rename(const std::filesystem::path& from, const std::filesystem::path& to) = 0;
    virtual void remove(const std::filesystem::path& file) = 0;
    /// Makes one folder; it is no failure when it exists.
    virtual void createFolder(const std::filesystem::path& folder) = 0;
    /// Asks for a lock on a file, as `SystemLock::take` does. Raises nothing.
    virtual SystemLock::Try lock(SystemLock& lock, const std::filesystem::path& file) = 0;
};

/// The real one.
class NativeFileSystem : public FileSystem
{
public:
    FileStatus status(const std::filesystem::path& path) override;
    bool mayReplace(const std::filesystem::path& file) override;
    std::string read(const std::filesystem::path& file) override;
    void write(const std::filesystem::path& file, std::string_view bytes) override;
    void writeLike(const std::filesystem::path& model, const std::filesystem::path& file,
                   std::string_view bytes) override;
    void append(const std::filesystem::path& file, std::string_view bytes) override;
    void setTime(const std::filesystem::path& file, std::int64_t time) override;
    void flush(const std::filesystem::path& file) override;
    void flushFolder(const std::filesystem::path& folder) override;
    void rename(const std::filesystem::path& from, const std::filesystem::path& to) override;
    void remove(const std::filesystem::path& file) override;
    void createFolder(const std::filesystem::path& folder) override;
    SystemLock::Try lock(SystemLock& lock, const std::filesystem::path& file) override;
};

} // namespace phial
