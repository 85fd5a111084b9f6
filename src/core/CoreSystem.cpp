#include "core/CoreSystem.h"

#include "core/RuntimeError.h"

namespace phial
{

CoreSystem::CoreSystem(std::shared_ptr<phial::CoreFolders> folders,
                       std::shared_ptr<phial::CoreMachine> machine,
                       std::shared_ptr<phial::CoreWindowOps> windows, std::shared_ptr<Shell> shell,
                       std::shared_ptr<EventPump> pump)
    : folders_(std::move(folders)), machine_(std::move(machine)), windows_(std::move(windows)),
      shell_(std::move(shell)), pump_(std::move(pump))
{
}

phial::CoreFolders& CoreSystem::CoreFolders() const
{
    if (!folders_) {
        throw RuntimeError(ErrorNumber::ObjectNotSet);
    }
    return *folders_;
}

phial::CoreMachine& CoreSystem::CoreMachine() const
{
    if (!machine_) {
        throw RuntimeError(ErrorNumber::ObjectNotSet);
    }
    return *machine_;
}

bool CoreSystem::ShellOpen(WindowHandle pWindow, StringView pAddress)
{
    return shell_->open(pWindow, pAddress);
}

std::int64_t CoreSystem::StartProgram(const ProgramCall& pCall)
{
    return shell_->start(pCall);
}

std::optional<std::int32_t> CoreSystem::RunProgram(const ProgramCall& pCall)
{
    constexpr double SecondsBetweenLooks = 0.05;
    const std::unique_ptr<RunningProgram> program = shell_->startWatched(pCall);
    if (!program) {
        return std::nullopt;
    }
    while (program->isRunning()) {
        pump_->pumpFor(SecondsBetweenLooks);
    }
    return program->result();
}

} // namespace phial
