#pragma once

#include "app/Session.h"
#include "core/MemorySettingsStore.h"
#include "qt/desktop/DesktopApplication.h"

#include <benchmark/benchmark.h>
#include <memory>

/// A program with windows and settings that leave nothing behind.
class BenchSession
{
public:
    BenchSession(int& argc, char** argv) : application_(argc, argv, u"Bench"), session_(platform()) {}

private:
    phial::Platform platform()
    {
        phial::Platform platform = application_.platform();
        platform.settings = std::make_shared<phial::MemorySettingsStore>();
        return platform;
    }

    phial::qt::DesktopApplication application_;
    phial::Session session_;
};

/// All that have been registered; gives the program's exit code.
inline int runBenchmarks(int& argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
