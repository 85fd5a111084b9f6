#pragma once

#include "core/String.h"

#include <cstdint>

namespace phial
{

/// Messages to the other programs of the suite on this computer.
class InterCom
{
public:
    virtual ~InterCom() = default;

    /// Sends a number and a text to a program by its name. Gives whether it was handed over; a target that is
    /// not running makes the call return at once. No answer is awaited and no failure is raised.
    virtual bool Send(StringView pTarget, std::int32_t pNumber, StringView pText) = 0;
};

} // namespace phial
