#pragma once

#include "core/String.h"
#include "core/WindowHandle.h"

#include <span>

namespace phial
{

/// Starts what lies outside of the program. Nothing is awaited and no failure is raised.
class Shell
{
public:
    virtual ~Shell() = default;

    /// Opens an address or a file with the desktop's own program for it. Gives whether that was started.
    virtual bool open(WindowHandle window, StringView address) = 0;

    /// Starts a program, given by its path or, without a backslash, by its name. Gives whether it was
    /// started.
    virtual bool start(StringView program, std::span<const String> arguments) = 0;
};

} // namespace phial
