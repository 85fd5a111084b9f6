#pragma once

#include "core/CoreFolders.h"
#include "core/CoreMachine.h"
#include "core/CoreWindowOps.h"
#include "core/Shell.h"

#include <memory>
#include <span>

namespace phial
{

/// The computer: its folders, facts and windows, and the start of other programs.
class CoreSystem
{
public:
    CoreSystem(std::shared_ptr<phial::CoreFolders> folders, std::shared_ptr<phial::CoreMachine> machine,
               std::shared_ptr<phial::CoreWindowOps> windows, std::shared_ptr<Shell> shell);

    /// Raise 91 when the platform has none.
    phial::CoreFolders& CoreFolders() const;
    phial::CoreMachine& CoreMachine() const;

    phial::CoreWindowOps& CoreWindowOps() const { return *windows_; }

    /// Opens an address or file with the desktop's own program. `pWindow` may be `None`. Gives whether that
    /// program was started; no failure is raised.
    bool ShellOpen(WindowHandle pWindow, StringView pAddress);

    /// Starts a program by path or name and goes on at once. Gives whether it was started.
    bool StartProgram(StringView pProgram, std::span<const String> pArguments = {});

private:
    std::shared_ptr<phial::CoreFolders> folders_;
    std::shared_ptr<phial::CoreMachine> machine_;
    std::shared_ptr<phial::CoreWindowOps> windows_;
    std::shared_ptr<Shell> shell_;
};

} // namespace phial
