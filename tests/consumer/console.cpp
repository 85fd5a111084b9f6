// A program outside the repository: the installed headers and libraries are all it has. It takes the folder
// of the installation tree as its argument.

#include "core/Variant.h"

#include <cstdio>
#include <filesystem>

int main(int argc, char** argv)
{
    if (argc != 2 || !std::filesystem::exists(std::filesystem::path(argv[1]) / "QVStart.exe")) {
        std::fprintf(stderr, "the installation tree is not where the package says\n");
        return 1;
    }
    const phial::Variant answer(phial::String(u"Wasser"));
    return answer.isText() ? 0 : 1;
}
