#include "core/SystemFile.h"

#if __has_include(<unistd.h>)
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace phial::system_file
{

namespace fs = std::filesystem;

#if __has_include(<unistd.h>)

namespace
{

std::error_code lastError()
{
    return {errno, std::generic_category()};
}

/// A descriptor that is closed with the object.
class OpenFile
{
public:
    OpenFile(const fs::path& path, int flags, mode_t mode = 0)
        : descriptor_(::open(path.c_str(), flags | O_CLOEXEC, mode))
    {
    }
    ~OpenFile() { close(); }
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    bool isOpen() const { return descriptor_ >= 0; }
    int descriptor() const { return descriptor_; }
    bool close()
    {
        const int descriptor = descriptor_;
        descriptor_ = -1;
        return descriptor < 0 || ::close(descriptor) == 0;
    }

private:
    int descriptor_;
};

FileStatus::Kind kindOf(mode_t mode)
{
    if (S_ISREG(mode)) {
        return FileStatus::Kind::File;
    }
    return S_ISDIR(mode) ? FileStatus::Kind::Folder : FileStatus::Kind::Other;
}

constexpr std::int64_t NanosecondsPerSecond = 1'000'000'000;

std::int64_t timeOf(const struct stat& found)
{
#ifdef __APPLE__
    const timespec& time = found.st_mtimespec;
#else
    const timespec& time = found.st_mtim;
#endif
    return std::int64_t{time.tv_sec} * NanosecondsPerSecond + time.tv_nsec;
}

bool writeAll(int descriptor, std::string_view bytes)
{
    while (!bytes.empty()) {
        const ssize_t written = ::write(descriptor, bytes.data(), bytes.size());
        if (written < 0 && errno != EINTR) {
            return false;
        }
        bytes.remove_prefix(static_cast<std::size_t>(written > 0 ? written : 0));
    }
    return true;
}

/// The rights that the file may have when it could not be given the model's group: its own group was outside
/// of the model's, so that it gets what all others had.
mode_t withoutGroup(mode_t mode)
{
    return (mode & ~mode_t{S_IRWXG}) | (mode & S_IRWXG & ((mode & S_IRWXO) << 3U));
}

/// Systems that know no rights refuse these steps, which does no harm there.
void giveRights(int descriptor, const struct stat& model)
{
    constexpr mode_t Rights = S_IRWXU | S_IRWXG | S_IRWXO;
    constexpr auto Unchanged = static_cast<uid_t>(-1);
    struct stat own = {};
    if (::fstat(descriptor, &own) != 0) {
        return;
    }
    mode_t mode = model.st_mode & Rights;
    if (own.st_gid != model.st_gid && ::fchown(descriptor, Unchanged, model.st_gid) != 0) {
        mode = withoutGroup(mode);
    }
    if (own.st_uid != model.st_uid) {
        [[maybe_unused]] const int onlyTheSuperUserMay =
            ::fchown(descriptor, model.st_uid, static_cast<gid_t>(-1));
    }
    ::fchmod(descriptor, mode);
}

} // namespace

FileStatus status(const fs::path& path, std::error_code& rError)
{
    struct stat found = {};
    if (::stat(path.c_str(), &found) != 0) {
        rError = lastError();
        return {};
    }
    rError.clear();
    const FileStatus::Kind kind = kindOf(found.st_mode);
    return {kind, timeOf(found),
            kind == FileStatus::Kind::File ? static_cast<std::uintmax_t>(found.st_size) : 0,
            static_cast<std::uint64_t>(found.st_ino)};
}

/// In a folder with the sticky bit only the owners of file and folder replace a file.
bool mayReplace(const fs::path& file)
{
    if (::access(file.c_str(), R_OK) != 0 && errno == EACCES) {
        return false;
    }
    const fs::path folder = file.parent_path();
    if (::access(folder.c_str(), W_OK | X_OK) != 0) {
        return errno != EACCES && errno != EROFS;
    }
    struct stat inFolder = {};
    struct stat old = {};
    if (::stat(folder.c_str(), &inFolder) != 0 || ::lstat(file.c_str(), &old) != 0) {
        return true;
    }
    const uid_t me = ::geteuid();
    return (inFolder.st_mode & S_ISVTX) == 0 || me == 0 || me == old.st_uid || me == inFolder.st_uid;
}

std::error_code writeLike(const fs::path& model, const fs::path& file, std::string_view bytes)
{
    struct stat rights = {};
    if (::stat(model.c_str(), &rights) != 0) {
        return lastError();
    }
    OpenFile target(file, O_WRONLY | O_CREAT | O_TRUNC, S_IRUSR | S_IWUSR);
    if (!target.isOpen() || !writeAll(target.descriptor(), bytes)) {
        return lastError();
    }
    giveRights(target.descriptor(), rights);
    return target.close() ? std::error_code() : lastError();
}

std::error_code setTime(const fs::path& file, std::int64_t time)
{
    std::int64_t seconds = time / NanosecondsPerSecond;
    std::int64_t nanoseconds = time % NanosecondsPerSecond;
    if (nanoseconds < 0) {
        nanoseconds += NanosecondsPerSecond;
        --seconds;
    }
    timespec times[2] = {};
    times[0].tv_nsec = UTIME_OMIT;
    times[1].tv_sec = static_cast<time_t>(seconds);
    times[1].tv_nsec = static_cast<long>(nanoseconds);
    return ::utimensat(AT_FDCWD, file.c_str(), times, 0) == 0 ? std::error_code() : lastError();
}

std::error_code synchronise(const fs::path& path)
{
    const OpenFile opened(path, O_RDONLY);
    const bool done = opened.isOpen() && ::fsync(opened.descriptor()) == 0;
    const bool isKnownStep = errno != EACCES && errno != EINVAL;
    return done || !isKnownStep ? std::error_code() : lastError();
}

#else

FileStatus status(const fs::path& path, std::error_code& rError)
{
    FileStatus found;
    const fs::file_status kind = fs::status(path, rError);
    if (kind.type() == fs::file_type::directory) {
        found.kind = FileStatus::Kind::Folder;
    } else if (kind.type() == fs::file_type::regular) {
        found.kind = FileStatus::Kind::File;
        found.size = fs::file_size(path, rError);
        found.time = rError ? 0 : fs::last_write_time(path, rError).time_since_epoch().count();
    } else if (kind.type() != fs::file_type::not_found) {
        found.kind = FileStatus::Kind::Other;
    } else if (!rError) {
        rError = std::make_error_code(std::errc::no_such_file_or_directory);
    }
    return rError ? FileStatus() : found;
}

bool mayReplace(const fs::path&)
{
    return true; // the system's rights are told by trying
}

std::error_code writeLike(const fs::path&, const fs::path&, std::string_view)
{
    return std::make_error_code(std::errc::function_not_supported); // files have the rights of their folder
}

std::error_code setTime(const fs::path& file, std::int64_t time)
{
    std::error_code error;
    fs::last_write_time(file, fs::file_time_type(fs::file_time_type::duration(time)), error);
    return error;
}

std::error_code synchronise(const fs::path&)
{
    return {};
}

#endif

} // namespace phial::system_file
