#pragma once

#include "core/FileSystem.h"

#include <map>
#include <memory>
#include <optional>
#include <vector>

namespace phial::headless
{

/// What is raised where the power goes. It is no error, so that nobody tidies up behind it.
struct PowerCut {
    bool isInWrite = false; ///< and not in a step that happens at once
};

/// The files of one folder on a computer whose power goes in the middle of the work.
///
/// As disks do, it keeps nothing for certain that was not flushed: of a file the old content, a part of the
/// new, all of it, or as many zero bytes may be there afterwards, and each change of the folder's names may
/// have happened or not, whatever its order. `outcomes` counts these cases, `restart` makes one of them real.
class CrashingFileSystem : public FileSystem
{
public:
    /// What lies in the folder now is on the disk.
    explicit CrashingFileSystem(std::filesystem::path folder);

    /// The power goes in a later changing step: `step` further ones are done, the next one is not. If that is
    /// a write, this share of its bytes (0 to 1) was written.
    void cutPowerAt(int step, double share);

    /// How many cases there are if the power goes now.
    int outcomes() const;
    /// Leaves the folder as that case has it, from 0, with all of it on the disk; the power is back.
    void restart(int outcome);

    FileStatus status(const std::filesystem::path& path) override { return real_.status(path); }
    bool mayReplace(const std::filesystem::path& file) override { return real_.mayReplace(file); }
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
    SystemLock::Try lock(SystemLock& lock, const std::filesystem::path& file) override
    {
        return real_.lock(lock, file);
    }

private:
    /// A file's content, whatever its name.
    struct Content {
        std::string written;
        std::string onDisk;
    };
    using Names = std::map<std::filesystem::path, std::shared_ptr<Content>>;
    /// A name that was made (`from` is empty), changed, or removed (`to` is empty).
    struct NameChange {
        std::filesystem::path from;
        std::filesystem::path to;
        std::shared_ptr<Content> content;
    };

    bool isPowerGone();
    void put(const std::filesystem::path& file, std::string_view before, std::string_view bytes);
    void begin();
    void change(NameChange change);
    std::shared_ptr<Content> contentToWrite(const std::filesystem::path& file);

    std::filesystem::path folder_;
    NativeFileSystem real_;
    Names names_;
    Names namesOnDisk_;
    std::vector<NameChange> unflushedChanges_;
    std::vector<std::shared_ptr<Content>> unflushedContents_;
    std::optional<int> stepsLeft_;
    double share_ = 0;
};

} // namespace phial::headless
