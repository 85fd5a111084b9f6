#include "core/FileLock.h"

#include "core/Clock.h"
#include "core/EventPump.h"
#include "core/FileSystem.h"
#include "core/NativePath.h"
#include "core/RuntimeError.h"
#include "core/SessionState.h"
#include "core/SystemLock.h"

#include <map>
#include <utility>

namespace phial
{

namespace fs = std::filesystem;

/// A lock file that this process holds, and its entry in the list of those.
class FileLock::LockFile
{
public:
    using List = std::map<fs::path, std::weak_ptr<LockFile>>;

    LockFile(fs::path path, SystemLock lock) : path_(std::move(path)), lock_(std::move(lock)) {}
    ~LockFile() { list().erase(path_); }
    LockFile(const LockFile&) = delete;
    LockFile& operator=(const LockFile&) = delete;

    /// What this process holds; entries go with their objects.
    static List& list()
    {
        static List held;
        return held;
    }

private:
    fs::path path_;
    SystemLock lock_;
};

namespace
{

constexpr double SecondsBetweenTries = 0.01;

/// One name for a file, whatever links lead to it. Raises 53 for a path that no file can have.
fs::path lockPathOf(StringView file)
{
    const fs::path target = nativePath(file);
    if (target.empty()) {
        throw RuntimeError(ErrorNumber::FileNotFound);
    }
    std::error_code error;
    fs::path path = fs::weakly_canonical(target, error);
    if (error) {
        path = target;
    }
    path += ".lock";
    return path;
}

} // namespace

std::shared_ptr<FileLock::LockFile> FileLock::take(const fs::path& path)
{
    const Platform& platform = SessionState::current().platform();
    const double end = platform.clock->seconds() + std::chrono::duration<double>(MaxWait).count();
    for (;;) {
        // A handler that runs during the wait may have taken it for this process.
        if (const auto own = LockFile::list().find(path); own != LockFile::list().end()) {
            return own->second.lock();
        }
        SystemLock lock;
        const SystemLock::Try tried = platform.files->lock(lock, path);
        if (tried == SystemLock::Try::Taken) {
            auto taken = std::make_shared<LockFile>(path, std::move(lock));
            LockFile::list().insert_or_assign(path, taken);
            return taken;
        }
        if (tried == SystemLock::Try::Impossible || platform.clock->seconds() >= end) {
            return nullptr;
        }
        platform.pump->pumpFor(SecondsBetweenTries);
    }
}

FileLock::FileLock(StringView file)
{
    ignoringErrors([&] { lock_ = take(lockPathOf(file)); });
}

FileLock::~FileLock() = default;

} // namespace phial
