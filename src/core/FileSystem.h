#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace phial
{

/// The steps by which files change, one call each, so that a test can let any of them fail. Questions that
/// change nothing are asked of the real file system directly.
///
/// Paths are native. A failing step raises 53 (what is needed is not there) or 75 (access refused, disk full,
/// any other failure).
class FileSystem
{
public:
    virtual ~FileSystem() = default;

    /// The whole content of a file.
    virtual std::string read(const std::filesystem::path& file) = 0;
    /// Makes or replaces a file. Until `flush` the content may be lost in a power failure.
    virtual void write(const std::filesystem::path& file, std::string_view bytes) = 0;
    /// Adds to the end of a file, or makes it.
    virtual void append(const std::filesystem::path& file, std::string_view bytes) = 0;
    /// Brings a file's content to the disk.
    virtual void flush(const std::filesystem::path& file) = 0;
    /// Brings a folder's list of names to the disk; nothing happens where systems do not know that step.
    virtual void flushFolder(const std::filesystem::path& folder) = 0;
    /// Renames a file, replacing the target in one step.
    virtual void rename(const std::filesystem::path& from, const std::filesystem::path& to) = 0;
    virtual void remove(const std::filesystem::path& file) = 0;
    /// Makes one folder; it is no failure when it exists.
    virtual void createFolder(const std::filesystem::path& folder) = 0;
};

/// The real one.
class NativeFileSystem : public FileSystem
{
public:
    std::string read(const std::filesystem::path& file) override;
    void write(const std::filesystem::path& file, std::string_view bytes) override;
    void append(const std::filesystem::path& file, std::string_view bytes) override;
    void flush(const std::filesystem::path& file) override;
    void flushFolder(const std::filesystem::path& folder) override;
    void rename(const std::filesystem::path& from, const std::filesystem::path& to) override;
    void remove(const std::filesystem::path& file) override;
    void createFolder(const std::filesystem::path& folder) override;
};

} // namespace phial
