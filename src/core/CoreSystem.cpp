#include "core/CoreSystem.h"

#include "core/RuntimeError.h"

namespace phial
{

CoreSystem::CoreSystem(std::shared_ptr<phial::CoreFolders> folders,
                       std::shared_ptr<phial::CoreMachine> machine,
                       std::shared_ptr<phial::CoreWindowOps> windows, std::shared_ptr<Shell> shell)
    : folders_(std::move(folders)), machine_(std::move(machine)), windows_(std::move(windows)),
      shell_(std::move(shell))
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

bool CoreSystem::StartProgram(StringView pProgram, std::span<const String> pArguments)
{
    return shell_->start(pProgram, pArguments);
}

} // namespace phial
