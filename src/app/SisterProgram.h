#pragma once

#include "core/String.h"

#include <cstdint>

/// The other programs of the suite, which lie below the folder APPS. `app` is a program's path there, with or
/// without ".exe", or the name of its folder where the program is called like that; `parameters` is what
/// stands behind a program's name on a command line. They begin in the session's current folder.
///
/// Raise 5 for a path that leads out of APPS, 53 when there is no such program, 75 when it cannot be started.
namespace phial
{

/// Starts a program and gives the number of its process.
std::int32_t startSisterProgram(StringView app, StringView parameters);

/// Starts a program and returns at its end, with what it gave back, or -1 if it broke off. Events run
/// meanwhile.
std::int32_t runSisterProgram(StringView app, StringView parameters);

} // namespace phial
