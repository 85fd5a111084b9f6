#pragma once

#include "core/String.h"

#include <span>

namespace phial::qt
{

/// Starts a program that goes on when this one ends. A program with a backslash in its name is a path as the
/// system writes it, another one is looked for where the desktop keeps programs. Gives whether it was
/// started.
bool startProcess(StringView program, std::span<const String> arguments);

} // namespace phial::qt
