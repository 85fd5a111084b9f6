#include "core/AtomicFile.h"

#include "core/FileSystem.h"
#include "core/Process.h"
#include "core/RuntimeError.h"

#include <charconv>
#include <optional>
#include <string>
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
    if (!fs::is_symlink(target, error)) {
        return target;
    }
    fs::path followed = fs::weakly_canonical(target, error);
    return error ? target : followed;
}

} // namespace

void replaceFile(FileSystem& files, const fs::path& target, std::string_view bytes)
{
    if (target.empty()) {
        throw RuntimeError(ErrorNumber::FileNotFound);
    }
    const fs::path file = withLinksFollowed(target);
    clearLeftOvers(files, file);
    const fs::path temporary = temporaryFor(file);
    try {
        files.write(temporary, bytes);
        files.flush(temporary);
        files.rename(temporary, file);
    } catch (const std::exception&) {
        ignoringErrors([&] { files.remove(temporary); });
        throw;
    }
    files.flushFolder(file.parent_path());
}

fs::path moveAside(FileSystem& files, const fs::path& file, std::string_view mark)
{
    std::error_code error;
    fs::path aside = file;
    aside += mark;
    for (int number = 2; fs::exists(fs::symlink_status(aside, error)); ++number) {
        aside = file;
        aside += std::string(mark) + std::to_string(number);
    }
    files.rename(file, aside);
    files.flushFolder(file.parent_path());
    return aside;
}

} // namespace phial
