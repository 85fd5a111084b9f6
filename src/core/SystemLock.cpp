#include "core/SystemLock.h"

#include <utility>

#if __has_include(<unistd.h>)
#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#else
#define NOMINMAX
#include <windows.h>
#endif

namespace phial
{

SystemLock::SystemLock(SystemLock&& other) noexcept
    : handle_(std::exchange(other.handle_, None)), file_(std::move(other.file_))
{
}

#if __has_include(<unistd.h>)

namespace
{

/// The file, made when it is not there; -1 when it cannot be opened. A file that another user made can be
/// locked though not written.
int openedFile(const std::filesystem::path& file)
{
    constexpr mode_t EverybodyReadsAndWrites = 0666;
    const int writable = ::open(file.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, EverybodyReadsAndWrites);
    return writable >= 0 || errno != EACCES ? writable : ::open(file.c_str(), O_RDONLY | O_CLOEXEC);
}

/// Whether the path still leads to the opened file. A holder that goes takes its file away, so that a lock
/// can be gained on a file that nobody finds any more.
bool isStillAt(const std::filesystem::path& file, int descriptor)
{
    struct stat opened = {};
    struct stat found = {};
    return ::fstat(descriptor, &opened) == 0 && ::stat(file.c_str(), &found) == 0 &&
           opened.st_ino == found.st_ino && opened.st_dev == found.st_dev;
}

} // namespace

SystemLock::Try SystemLock::take(const std::filesystem::path& file)
{
    release();
    const int descriptor = openedFile(file);
    if (descriptor < 0) {
        return Try::Impossible;
    }
    const bool locked = ::flock(descriptor, LOCK_EX | LOCK_NB) == 0;
    const bool refused = !locked && errno != EWOULDBLOCK && errno != EINTR;
    if (!locked || !isStillAt(file, descriptor)) {
        ::close(descriptor);
        return refused ? Try::Impossible : Try::Busy;
    }
    handle_ = descriptor;
    file_ = file;
    return Try::Taken;
}

void SystemLock::release() noexcept
{
    if (handle_ != None) {
        ::unlink(file_.c_str()); // while it is held: afterwards it could be another program's
        ::close(static_cast<int>(std::exchange(handle_, None)));
    }
}

#else

SystemLock::Try SystemLock::take(const std::filesystem::path& file)
{
    release();
    constexpr DWORD NobodyElse = 0;
    HANDLE handle = ::CreateFileW(file.c_str(), GENERIC_READ | GENERIC_WRITE | DELETE, NobodyElse, nullptr,
                                  OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL | FILE_FLAG_DELETE_ON_CLOSE, nullptr);
    if (handle != INVALID_HANDLE_VALUE) {
        handle_ = reinterpret_cast<std::intptr_t>(handle);
        file_ = file;
        return Try::Taken;
    }
    // A file that its holder is about to take away refuses access for a moment.
    const DWORD error = ::GetLastError();
    const bool isBusy = error == ERROR_SHARING_VIOLATION || error == ERROR_ACCESS_DENIED;
    return isBusy && std::filesystem::exists(file.parent_path()) ? Try::Busy : Try::Impossible;
}

void SystemLock::release() noexcept
{
    if (handle_ != None) {
        ::CloseHandle(reinterpret_cast<HANDLE>(std::exchange(handle_, None)));
    }
}

#endif

} // namespace phial
