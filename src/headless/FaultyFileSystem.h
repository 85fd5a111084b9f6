#pragma once

#include "core/FileSystem.h"

#include <cstdint>
#include <map>
#include <memory>
#include <optional>

namespace phial::headless
{

/// The steps of `FileSystem`. `Write` stands for both ways of writing.
enum class FileStep : std::uint8_t {
    Status,
    MayReplace,
    Read,
    Write,
    Append,
    SetTime,
    Flush,
    FlushFolder,
    Rename,
    Remove,
    CreateFolder,
    Lock,
};

/// A file system in which steps fail as a test wishes, with the error that a system would give. What does not
/// fail is done by the file system behind it. A status that fails with an error that means absent says so, a
/// lock that fails is impossible, and a question for rights that fails is answered with no.
class FaultyFileSystem : public FileSystem
{
public:
    explicit FaultyFileSystem(std::shared_ptr<FileSystem> behind);

    /// Every step of that kind fails from now on.
    void fail(FileStep step, std::errc code = std::errc::io_error) { failing_.insert_or_assign(step, code); }
    /// The one step behind so many further ones of any kind fails, once.
    void failOnce(int stepsBefore, std::errc code) { once_ = Once{steps_ + stepsBefore, code}; }
    /// Another program has every lock from now on.
    void keepLocksBusy() { locksBusy_ = true; }
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

private:
    struct Once {
        int step;
        std::errc code;
    };

    std::error_code faultOf(FileStep step);
    bool isProtected(const std::filesystem::path& path) const;
    void begin(FileStep step, const std::filesystem::path& path);
    void change(FileStep step, const std::filesystem::path& path);
    std::string_view whatFits(std::string_view bytes);

    std::shared_ptr<FileSystem> behind_;
    std::map<FileStep, std::errc> failing_;
    std::optional<Once> once_;
    bool locksBusy_ = false;
    std::filesystem::path protected_;
    std::optional<int> stepsLeft_;
    std::optional<std::size_t> bytesLeft_;
    int steps_ = 0;
};

} // namespace phial::headless
