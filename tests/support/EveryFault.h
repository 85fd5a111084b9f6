#pragma once

#include "headless/FaultyFileSystem.h"

#include <cerrno>
#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <system_error>

namespace phial::test
{

/// The errors with which the systems refuse a step, "not found" among them.
inline constexpr std::errc RefusedSteps[] = {
    std::errc::io_error,
    std::errc::permission_denied,
    std::errc::too_many_symbolic_link_levels,
    std::errc::no_space_on_device,
    std::errc::no_such_file_or_directory,
#ifdef ESTALE
    static_cast<std::errc>(ESTALE),
#endif
};

/// Runs `work` again and again, each time behind `prepare`. Each time another step of its own fails once,
/// each step with each of the errors, until there is no such step; `check` looks at the result with
/// everything in order again. Gives how often that was.
inline int withEveryFault(headless::FaultyFileSystem& files, const std::function<void()>& prepare,
                          const std::function<void()>& work, const std::function<void()>& check)
{
    int faults = 0;
    for (const std::errc code : RefusedSteps) {
        bool reached = true;
        for (int step = 0; reached; ++step) {
            prepare();
            const int begin = files.steps();
            files.failOnce(step, code);
            work();
            reached = files.steps() > begin + step;
            files.repair();
            const ::testing::ScopedTrace where(__FILE__, __LINE__,
                                               "step " + std::to_string(step) + ", error " +
                                                   std::to_string(static_cast<int>(code)));
            check();
            faults += reached ? 1 : 0;
        }
    }
    return faults;
}

} // namespace phial::test
