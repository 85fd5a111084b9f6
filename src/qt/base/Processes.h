#pragma once

#include "core/Shell.h"

/// Other programs. One with a backslash in its name is a path as the system writes it, another one is looked
/// for where the desktop keeps programs.
namespace phial::qt
{

/// Starts a program that goes on when this one ends. Gives the number of its process, 0 if it was not
/// started.
std::int64_t startProcess(const ProgramCall& call);

/// Starts a program whose end is of interest; null if it was not started.
std::unique_ptr<RunningProgram> startWatchedProcess(const ProgramCall& call);

} // namespace phial::qt
