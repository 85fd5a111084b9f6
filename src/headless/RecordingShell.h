#pragma once

#include "core/Shell.h"

#include <algorithm>
#include <memory>
#include <vector>

namespace phial::headless
{

/// Starts nothing and remembers what was asked for.
class RecordingShell : public Shell
{
public:
    /// Whether things can be opened and started from now on; at first they can.
    void answer(bool answer) { answer_ = answer; }
    /// From now on programs of that name (as it is given when they are started) cannot be started.
    void isMissing(StringView program) { missing_.emplace_back(program); }
    /// From now on watched programs run until `endPrograms`; at first they end at once, giving 0.
    void keepRunning() { state_->isRunning = true; }
    void endPrograms(std::int32_t result) { *state_ = {false, result}; }

    const std::vector<String>& opened() const { return opened_; }
    const std::vector<ProgramCall>& started() const { return started_; }

    bool open(WindowHandle /*window*/, StringView address) override
    {
        opened_.emplace_back(address);
        return answer_;
    }
    /// Numbers count from 1.
    std::int64_t start(const ProgramCall& call) override
    {
        return remember(call) ? static_cast<std::int64_t>(started_.size()) : 0;
    }
    std::unique_ptr<RunningProgram> startWatched(const ProgramCall& call) override
    {
        return remember(call) ? std::make_unique<Running>(state_) : nullptr;
    }

private:
    struct State {
        bool isRunning = false;
        std::int32_t result = 0;
    };
    class Running : public RunningProgram
    {
    public:
        explicit Running(std::shared_ptr<const State> state) : state_(std::move(state)) {}
        bool isRunning() const override { return state_->isRunning; }
        std::int32_t result() const override { return state_->result; }

    private:
        std::shared_ptr<const State> state_;
    };

    /// Keeps the call, also one that fails, and gives whether the program is started.
    bool remember(const ProgramCall& call)
    {
        started_.push_back(call);
        return answer_ && std::ranges::find(missing_, call.program) == missing_.end();
    }

    bool answer_ = true;
    std::vector<String> missing_;
    std::vector<String> opened_;
    std::vector<ProgramCall> started_;
    std::shared_ptr<State> state_ = std::make_shared<State>();
};

} // namespace phial::headless
