#pragma once

#include "core/String.h"
#include "core/WindowHandle.h"

#include <cstdint>
#include <memory>
#include <vector>

namespace phial
{

/// How a program is started.
struct ProgramCall {
    /// Its path or, without a backslash, its name, which is looked for where the desktop keeps programs.
    String program;
    std::vector<String> arguments = {};
    /// The folder in which it begins; empty for that of this process.
    String folder = {};

    friend bool operator==(const ProgramCall&, const ProgramCall&) = default;
};

/// A program that was started and whose end is of interest. It goes on when this object goes.
class RunningProgram
{
public:
    /// What a program gives back that did not end by itself.
    static constexpr std::int32_t Broken = -1;

    virtual ~RunningProgram() = default;

    /// Learns of the end only while events run.
    virtual bool isRunning() const = 0;
    /// What it gave back at its end.
    virtual std::int32_t result() const = 0;
};

/// Starts what lies outside of the program. Nothing is awaited and no failure is raised.
class Shell
{
public:
    virtual ~Shell() = default;

    /// Opens an address or a file with the desktop's own program for it. Gives whether that was started.
    virtual bool open(WindowHandle window, StringView address) = 0;

    /// Starts a program that goes on when this one ends. Gives the number of its process, 0 if it was not
    /// started.
    virtual std::int64_t start(const ProgramCall& call) = 0;

    /// Starts a program whose end the caller waits for; null if it was not started.
    virtual std::unique_ptr<RunningProgram> startWatched(const ProgramCall& call) = 0;
};

} // namespace phial
