#pragma once

#include <functional>

namespace phial
{

/// What the start and the end of a run ask of the classroom connection. A program without one leaves both
/// empty, and nothing is asked.
struct ServerContact {
    /// Prepares the network client; no message goes out. Called at the start, unless the kind of start or the
    /// command line forbids contact.
    std::function<void()> prepare;
    /// Logs off. Called at the end of every run, its errors ignored.
    std::function<void()> disconnect;
};

} // namespace phial
