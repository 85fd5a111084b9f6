#pragma once

#include "core/String.h"

#include <exception>
#include <functional>

namespace phial::qt
{

/// Where errors of handlers end: no exception crosses the toolkit's event loop.
///
/// Every call from the loop into the system runs inside of `run`. What is raised there is told to the
/// reporter, and the loop goes on. An error that comes while another one is being reported (the box runs
/// events, a timer fails at each tick) goes to the standard error stream instead, so that boxes never pile
/// up.
class DispatchGuard
{
public:
    /// Told the error as text for people.
    using Reporter = std::function<void(const String& text)>;

    /// The reporter writes to the standard error stream.
    DispatchGuard();

    void setReporter(Reporter reporter) { reporter_ = std::move(reporter); }

    /// Runs the handler, which raises nothing but standard exceptions; gives whether it came to its end.
    template <typename Handler>
    bool run(Handler&& handler)
    {
        try {
            handler();
            return true;
        } catch (const std::exception& error) {
            report(error);
            return false;
        }
    }

    void report(const std::exception& error) noexcept;

private:
    Reporter reporter_;
    bool reporting_ = false;
};

} // namespace phial::qt
