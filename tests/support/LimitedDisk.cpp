#include "support/LimitedDisk.h"

#include <string>
#include <utility>

#ifdef __linux__
#include <sched.h>
#include <sys/mount.h>
#include <unistd.h>
#endif

namespace phial::test
{

namespace
{

namespace fs = std::filesystem;

#ifdef __linux__

/// Mounts of this process are seen by nobody else from now on.
bool hasOwnMounts()
{
    static const bool owns =
        ::unshare(CLONE_NEWNS) == 0 && ::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
    return owns;
}

bool mountEmptyDisk(const fs::path& folder, std::size_t bytes)
{
    const std::string options = "size=" + std::to_string(bytes);
    return hasOwnMounts() && ::mount("tmpfs", folder.c_str(), "tmpfs", 0, options.c_str()) == 0;
}

bool mountReadOnly(const fs::path& folder)
{
    return hasOwnMounts() && ::mount(folder.c_str(), folder.c_str(), nullptr, MS_BIND, nullptr) == 0 &&
           ::mount(nullptr, folder.c_str(), nullptr, MS_REMOUNT | MS_BIND | MS_RDONLY, nullptr) == 0;
}

void unmount(const fs::path& folder)
{
    ::umount2(folder.c_str(), MNT_DETACH);
}

bool obeysPermissions()
{
    return ::geteuid() != 0;
}

#else

bool mountEmptyDisk(const fs::path&, std::size_t)
{
    return false;
}

bool mountReadOnly(const fs::path&)
{
    return false;
}

void unmount(const fs::path&) {}

bool obeysPermissions()
{
    return false;
}

#endif

} // namespace

LimitedDisk::LimitedDisk(fs::path folder, bool mounted, bool isProtected)
    : folder_(std::move(folder)), mounted_(mounted), protected_(isProtected)
{
}

LimitedDisk LimitedDisk::withRoom(const fs::path& folder, std::size_t bytes)
{
    return LimitedDisk(folder, mountEmptyDisk(folder, bytes), false);
}

LimitedDisk LimitedDisk::readOnly(const fs::path& folder)
{
    if (!obeysPermissions()) {
        return LimitedDisk(folder, mountReadOnly(folder), false);
    }
    fs::permissions(folder, fs::perms::owner_read | fs::perms::owner_exec);
    return LimitedDisk(folder, false, true);
}

LimitedDisk::~LimitedDisk()
{
    if (mounted_) {
        unmount(folder_);
    }
    if (protected_) {
        std::error_code ignored;
        fs::permissions(folder_, fs::perms::owner_all, ignored);
    }
}

} // namespace phial::test
