// The classroom master: `master`, or `master --help` for what it takes.

#include "master/MasterProgram.h"

#include <QCoreApplication>

#include <cstdio>
#include <exception>
#include <string>
#include <vector>

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    try {
        const std::vector<std::string> arguments(argv + 1, argv + argc);
        return phial::master::runMaster(arguments);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "master: %s\n", error.what());
        return 1;
    }
}
