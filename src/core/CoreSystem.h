#pragma once

#include "core/CoreFolders.h"
#include "core/CoreMachine.h"
#include "core/CoreWindowOps.h"
#include "core/EventPump.h"
#include "core/Shell.h"

#include <cstdint>
#include <memory>
#include <optional>

namespace phial
{

/// The computer: its folders, facts and windows, and the start of other programs.
class CoreSystem
{
public:
    CoreSystem(std::shared_ptr<phial::CoreFolders> folders, std::shared_ptr<phial::CoreMachine> machine,
               std::shared_ptr<phial::CoreWindowOps> windows, std::shared_ptr<Shell> shell,
               std::shared_ptr<EventPump> pump);

    /// Raise 91 when the platform has none.
    phial::CoreFolders& CoreFolders() const;
    phial::CoreMachine& CoreMachine() const;

    phial::CoreWindowOps& CoreWindowOps() const { return *windows_; }

    /// Opens an address or file with the desktop's own program. `pWindow` may be `None`. Gives whether that
    /// program was started; no failure is raised.
    bool ShellOpen(WindowHandle pWindow, StringView pAddress);

    /// Starts a program and goes on at once. Gives the number of its process, 0 if it was not started.
    std::int64_t StartProgram(const ProgramCall& pCall);

    /// Starts a program and returns at its end, with what it gave back; nothing if it was not started. Events
    /// of this program run meanwhile.
    std::optional<std::int32_t> RunProgram(const ProgramCall& pCall);

private:
    std::shared_ptr<phial::CoreFolders> folders_;
    std::shared_ptr<phial::CoreMachine> machine_;
    std::shared_ptr<phial::CoreWindowOps> windows_;
    std::shared_ptr<Shell> shell_;
    std::shared_ptr<EventPump> pump_;
};

} // namespace phial
