// A program that holds a file's lock: says "held" or "refused", and lets go when its input ends. The file is
// the only argument, as the system writes it.

#include "core/FileLock.h"
#include "core/SessionState.h"

#include <cstdio>
#include <exception>

int main(int argc, char** argv)
try {
    const phial::SessionState session{phial::Platform()};
    const phial::FileLock lock(phial::fromUtf8(argc > 1 ? argv[1] : ""));
    std::puts(lock.held() ? "held" : "refused");
    std::fflush(stdout);
    while (std::getchar() != EOF) {
    }
    return 0;
} catch (const std::exception& error) {
    std::fputs(error.what(), stderr);
    return 1;
}
