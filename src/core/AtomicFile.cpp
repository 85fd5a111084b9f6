#include "core/AtomicFile.h"

#include "core/FileSystem.h"
#include "core/Process.h"
#include "core/RuntimeError.h"

#include <charconv>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace phial
{

namespace
{

namespace fs = std::filesystem;

constexpr std::string_view TemporaryMark = ".saving-";

/// Beside the target, since a rename cannot cross disks; named after the process, so that two programs that
/// save the same file do not write into one.
fs::path temporaryFor(const fs::path& target)
{
    fs::path temporary = target;
    temporary += std::string(TemporaryMark) + std::to_string(currentProcess());
    return temporary;
}

/// The process that a temporary file of the target is named after.
std::optional<std::int64_t> writerOf(const fs::path& candidate, const fs::path& target)
{
    const std::string name = candidate.filename().string();
    const std::string prefix = target.filename().string() + std::string(TemporaryMark);
    if (!name.starts_with(prefix)) {
        return std::nullopt;
    }
    std::int64_t process = 0;
    const char* const end = name.data() + name.size();
    const auto [stop, error] = std::from_chars(name.data() + prefix.size(), end, process);
    return error == std::errc() && stop == end ? std::optional(process) : std::nullopt;
}

void clearLeftOvers(FileSystem& files, const fs::path& target)
{
    std::vector<fs::path> leftOvers;
    std::error_code error;
    for (fs::directory_iterator entry(target.parent_path(), error);
         !error && entry != fs::directory_iterator(); entry.increment(error)) {
        const auto process = writerOf(entry->path(), target);
        if (process && (*process == currentProcess() || !isRunningProcess(*process))) {
            leftOvers.push_back(entry->path());
        }
    }
    for (const fs::path& file : leftOvers) {
        ignoringErrors([&] { files.remove(file); });
    }
}

fs::path withLinksFollowed(const fs::path& target)
{
    std::error_code error;
    const fs::file_type type = fs::symlink_status(target, error).type();
    if (error && !meansAbsent(error)) {
        raiseFileError(error, u"cannot be asked for", target);
    }
    if (type != fs::file_type::symlink) {
        return target;
    }
    fs::path followed = fs::weakly_canonical(target, error);
    return error ? target : followed;
}

void writeTemporary(FileSystem& files, const fs::path& temporary, const fs::path& file,
                    std::string_view bytes, const std::optional<std::int64_t>& time)
{
    if (files.status(file).kind == FileStatus::Kind::File) {
        files.writeLike(file, temporary, bytes);
    } else {
        files.write(temporary, bytes);
    }
    if (time) {
        ignoringErrors([&] { files.setTime(temporary, *time); });
    }
    files.flush(temporary);
}

void putBack(FileSystem& files, std::optional<fs::path>& rAside, const fs::path& file)
{
    if (rAside && ignoringErrors([&] { files.rename(*rAside, file); })) {
        rAside.reset();
    }
}

/// Whether a name is free; one that cannot be asked for counts as taken.
bool isFree(const fs::path& path)
{
    std::error_code error;
    return fs::symlink_status(path, error).type() == fs::file_type::not_found;
}

} // namespace

void replaceFile(FileSystem& files, const fs::path& target, std::string_view bytes, const Replacement& wishes,
                 std::optional<fs::path>& rAside)
{
    rAside.reset();
    if (target.empty()) {
        throw RuntimeError(ErrorNumber::FileNotFound);
    }
    const fs::path file = withLinksFollowed(target);
    clearLeftOvers(files, file);
    const fs::path temporary = temporaryFor(file);
    try {
        writeTemporary(files, temporary, file, bytes, wishes.time);
        if (!wishes.keepOldAs.empty()) {
            rAside = moveAside(files, file, wishes.keepOldAs);
        }
        files.rename(temporary, file);
    } catch (const std::exception&) {
        ignoringErrors([&] { files.remove(temporary); });
        putBack(files, rAside, file);
        throw;
    }
    // The file is replaced now, whatever becomes of this.
    ignoringErrors([&] { files.flushFolder(file.parent_path()); });
}

void replaceFile(FileSystem& files, const fs::path& target, std::string_view bytes, const Replacement& wishes)
{
    std::optional<fs::path> aside;
    replaceFile(files, target, bytes, wishes, aside);
}

fs::path moveAside(FileSystem& files, const fs::path& file, std::string_view mark)
{
    constexpr int MostNames = 1000;
    fs::path aside = file;
    aside += mark;
    for (int number = 2; !isFree(aside); ++number) {
        if (number > MostNames) {
            throw RuntimeError(ErrorNumber::FileAccess, u"too many files are kept aside");
        }
        aside = file;
        aside += std::string(mark) + std::to_string(number);
    }
    files.rename(file, aside);
    try {
        files.flushFolder(file.parent_path());
    } catch (const std::exception&) {
        if (ignoringErrors([&] { files.rename(aside, file); })) {
            throw;
        }
    }
    return aside;
}

} // namespace phial
