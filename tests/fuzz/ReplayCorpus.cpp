// Runs a fuzz target without libFuzzer over every file of the folders named on the command line, so that each
// input that once broke something stays a test in every build.

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

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
void replay(const fs::path& file)
{
    const Bytes content = contentOf(file);
    std::printf("%s (%zu bytes)\n", file.c_str(), content.size());
    std::fflush(stdout);
    LLVMFuzzerTestOneInput(content.data(), content.size());
}

} // namespace

int main(int argc, char** argv)
try {
    std::size_t count = 0;
    for (int i = 1; i < argc; ++i) {
        for (const fs::path& file : filesBelow(argv[i])) {
            replay(file);
            ++count;
        }
    }
    std::printf("%zu inputs replayed\n", count);
    return count > 0 ? 0 : 1;
} catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 1;
}
