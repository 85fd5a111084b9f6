#pragma once

#include "core/Shell.h"

#include <vector>

namespace phial::headless
{

/// A program that was to be started.
struct StartedProgram {
    String program;
    std::vector<String> arguments;

    friend bool operator==(const StartedProgram&, const StartedProgram&) = default;
};

/// Starts nothing and remembers what was asked for.
class RecordingShell : public Shell
{
public:
    /// What the calls answer from now on; at first true.
    void answer(bool answer) { answer_ = answer; }
    const std::vector<String>& opened() const { return opened_; }
    const std::vector<StartedProgram>& started() const { return started_; }

    bool open(WindowHandle /*window*/, StringView address) override
    {
        opened_.emplace_back(address);
        return answer_;
    }
    bool start(StringView program, std::span<const String> arguments) override
    {
        started_.push_back({String(program), {arguments.begin(), arguments.end()}});
        return answer_;
    }

private:
    bool answer_ = true;
    std::vector<String> opened_;
    std::vector<StartedProgram> started_;
};

} // namespace phial::headless
