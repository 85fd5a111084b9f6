// A program that saves a record over and over until it is killed, and says "saved" after the first time. The
// file is the only argument, as the system writes it. The record holds one number again and again, so that a
// mixture of two saves is seen.

#include "core/CoreDataFile.h"
#include "core/SessionState.h"

#include <cstdio>
#include <exception>

namespace
{

void save(phial::StringView path, std::int32_t round)
{
    phial::CoreDataFile file;
    file.Open(path, phial::DataFileMode::Write);
    file.Write(u"2.0", round);
    for (std::int32_t count = 200 + round % 800; count > 0; --count) {
        file.Write(round);
    }
    file.Close();
}

} // namespace

int main(int argc, char** argv)
try {
    const phial::SessionState session{phial::Platform()};
    const phial::String path = phial::fromUtf8(argc > 1 ? argv[1] : "");
    for (std::int32_t round = 0;; ++round) {
        save(path, round);
        if (round == 0) {
            std::puts("saved");
            std::fflush(stdout);
        }
    }
} catch (const std::exception& error) {
    std::fputs(error.what(), stderr);
    return 1;
}
