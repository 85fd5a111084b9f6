// Runs a fuzz target, the first argument, without libFuzzer over every file of the folders that follow, so
// that each input that once broke something stays a test in every build.

#include "ReplayTargets.h"

#include <algorithm>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace
{

namespace fs = std::filesystem;
using Bytes = std::vector<std::uint8_t>;

std::vector<fs::path> filesBelow(const fs::path& folder)
{
    std::vector<fs::path> files;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder)) {
        if (entry.is_regular_file()) {
            files.push_back(entry.path());
        }
    }
    std::sort(files.begin(), files.end());
    return files;
}

Bytes contentOf(const fs::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    if (!stream) {
        throw fs::filesystem_error("cannot read", file, std::make_error_code(std::errc::io_error));
    }
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

// An exception that leaves the target is a finding, as it is under libFuzzer; the input's name is printed
// first.
void replay(const ReplayTarget& target, const fs::path& file)
{
    const Bytes content = contentOf(file);
    std::printf("%s (%zu bytes)\n", file.c_str(), content.size());
    std::fflush(stdout);
    target.run(content.data(), content.size());
}

const ReplayTarget& targetNamed(std::string_view name)
{
    const auto* const found =
        std::find_if(std::begin(ReplayTargets), std::end(ReplayTargets),
                     [name](const ReplayTarget& target) { return name == target.name; });
    if (found == std::end(ReplayTargets)) {
        throw std::invalid_argument("there is no fuzz target " + std::string(name));
    }
    return *found;
}

} // namespace

int main(int argc, char** argv)
try {
    const ReplayTarget& target = targetNamed(argc > 1 ? argv[1] : "");
    std::size_t count = 0;
    for (int i = 2; i < argc; ++i) {
        for (const fs::path& file : filesBelow(argv[i])) {
            replay(target, file);
            ++count;
        }
    }
    std::printf("%zu inputs replayed\n", count);
    return count > 0 ? 0 : 1;
} catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 1;
}
