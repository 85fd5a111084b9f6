#pragma once

#include "core/FileSystem.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <set>

namespace phial::headless
{

/// The steps of `FileSystem`.
enum class FileStep : std::uint8_t { Read, Write, Append, Flush, FlushFolder, Rename, Remove, CreateFolder };

/// A file system in which steps fail as a test wishes. What does not fail is done by the file system behind
/// it.
class FaultyFileSystem : public FileSystem
{
public:
    explicit FaultyFileSystem(std::shared_ptr<FileSystem> behind);

    /// Every step of that kind fails from now on.
    void fail(FileStep step) { failing_.insert(step); }
    /// Every changing step fails from now on, as on a medium that is read-only.
    void failChanges();
    /// Every changing step in that folder and below fails from now on, as in a folder that others own.
    void protect(std::filesystem::path folder);
    /// So many further steps of any kind succeed, all later ones fail, as if the program had ended there.
    void failAfter(int steps) { stepsLeft_ = steps; }
    /// So many further bytes can be written; a longer write leaves what fits and fails, as on a full disk.
    void freeBytes(std::size_t bytes) { bytesLeft_ = bytes; }
    /// Nothing fails any more.
    void repair();

    /// Steps begun so far, failed ones included.
    int steps() const { return steps_; }

    std::string read(const std::filesystem::path& file) override;
    void write(const std::filesystem::path& file, std::string_view bytes) override;
    void append(const std::filesystem::path& file, std::string_view bytes) override;
    void flush(const std::filesystem::path& file) override;
    void flushFolder(const std::filesystem::path& folder) override;
    void rename(const std::filesystem::path& from, const std::filesystem::path& to) override;
    void remove(const std::filesystem::path& file) override;
    void createFolder(const std::filesystem::path& folder) override;

private:
    void begin(FileStep step);
    void change(FileStep step, const std::filesystem::path& path);
    std::string_view whatFits(std::string_view bytes);

    std::shared_ptr<FileSystem> behind_;
    std::set<FileStep> failing_;
    std::filesystem::path protected_;
    std::optional<int> stepsLeft_;
    std::optional<std::size_t> bytesLeft_;
    int steps_ = 0;
};

} // namespace phial::headless
