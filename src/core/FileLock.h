#pragma once

#include "core/String.h"

#include <chrono>
#include <filesystem>
#include <memory>

namespace phial
{

/// Holds a file for this program from the constructor to the end of the object, so that of two programs on
/// one computer one loads, changes and saves it while the other waits.
///
/// The mark is a lock file beside the target, named after it with ".lock" at the end, on which the system
/// keeps an exclusive lock. The system drops that lock when the process ends in whatever way, so a program
/// that was killed keeps nobody out. The holder takes the lock file away again.
///
/// Within one process a second object for the same file holds it at once, however the path is written; the
/// file is free for others when the last of them has gone. Objects live on the user-interface thread.
/// Programs that do not ask for the lock are not kept out.
class FileLock
{
public:
    /// The longest wait for another program.
    static constexpr std::chrono::milliseconds MaxWait{3000};

    /// `file` as the system writes it; it need not exist, its folder must. While another living program holds
    /// it, events run, at most for `MaxWait`: handlers may take and let go the same lock meanwhile. Raises
    /// nothing: `held` is false when time ran out or the lock file cannot be made, and callers then go on
    /// without.
    explicit FileLock(StringView file);
    /// Releases.
    ~FileLock();
    FileLock(const FileLock&) = delete;
    FileLock& operator=(const FileLock&) = delete;

    bool held() const { return lock_ != nullptr; }

private:
    class LockFile;
    static std::shared_ptr<LockFile> take(const std::filesystem::path& path);

    std::shared_ptr<LockFile> lock_;
};

} // namespace phial
