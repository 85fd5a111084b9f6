#pragma once

#include "core/String.h"

namespace phial
{

/// The environment of the process.
class Environment
{
public:
    virtual ~Environment() = default;

    /// A variable's value; the empty text when it is not set. A value that is one absolute path comes as the
    /// system writes paths.
    virtual String variable(StringView name) const = 0;
};

} // namespace phial
