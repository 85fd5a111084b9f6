// Another user of the computer, where this one may become one: says "yes" or "no" to the question whether the
// file that is its argument may be replaced.

#include "core/FileSystem.h"

#include <cstdio>
#include <unistd.h>

int main(int argc, char** argv)
{
    constexpr uid_t Nobody = 65534;
    if (argc != 2 || (::geteuid() == 0 && (::setgid(Nobody) != 0 || ::setuid(Nobody) != 0))) {
        return 1;
    }
    std::puts(phial::NativeFileSystem().mayReplace(argv[1]) ? "yes" : "no");
    return 0;
}
