#include "support/TemporaryFolder.h"

#include "core/NativePath.h"
#include "core/Process.h"

#include <algorithm>
#include <fstream>
#include <iterator>

namespace phial::test
{

namespace
{

namespace fs = std::filesystem;

fs::path freshFolder()
{
    static int number = 0;
    const fs::path base = fs::canonical(fs::temp_directory_path());
    fs::path folder;
    do {
        folder = base / ("phial-test-" + std::to_string(currentProcess()) + "-" + std::to_string(++number));
    } while (!fs::create_directory(folder));
    return folder;
}

/// Folders that a test made read-only must be writable to be cleared.
void makeWritable(const fs::path& folder)
{
    std::error_code ignored;
    fs::permissions(folder, fs::perms::owner_all, fs::perm_options::add, ignored);
    for (const auto& entry : fs::directory_iterator(folder, ignored)) {
        if (entry.is_directory(ignored) && !entry.is_symlink(ignored)) {
            makeWritable(entry.path());
        }
    }
}

} // namespace

TemporaryFolder::TemporaryFolder() : path_(freshFolder()), text_(systemPath(path_) + u'\\') {}

TemporaryFolder::~TemporaryFolder()
{
    makeWritable(path_);
    std::error_code ignored;
    fs::remove_all(path_, ignored);
}

void TemporaryFolder::write(const fs::path& file, std::string_view bytes) const
{
    const fs::path path = path_ / file;
    fs::create_directories(path.parent_path());
    std::ofstream stream(path, std::ios::binary);
    stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

std::string TemporaryFolder::read(const fs::path& file) const
{
    std::ifstream stream(path_ / file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

bool TemporaryFolder::has(const fs::path& entry) const
{
    return fs::exists(fs::symlink_status(path_ / entry));
}

std::vector<std::string> TemporaryFolder::names(const fs::path& folder) const
{
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(path_ / folder)) {
        names.push_back(entry.path().filename().string());
    }
    std::sort(names.begin(), names.end());
    return names;
}

} // namespace phial::test
