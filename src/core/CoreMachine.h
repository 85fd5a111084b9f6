#pragma once

#include "core/String.h"

#include <cstdint>

namespace phial
{

/// Facts about this computer and who uses it. A fact that cannot be found out is the empty text.
class CoreMachine
{
public:
    virtual ~CoreMachine() = default;

    /// The logged-on user's name.
    virtual String UserName() const = 0;
    virtual String ComputerName() const = 0;
    /// The system's version as a text such as "6.1", which is also what systems other than Windows answer.
    virtual String OSVersion() const = 0;
    /// The primary language number in which the desktop speaks to the user, see Locale.h; 0 for a language
    /// that has none there, and for a desktop that does not tell.
    virtual std::int32_t UserLanguage() const = 0;
    /// A text that no other call gives, here or elsewhere. Both arguments are 0.
    virtual String NewUniqueID(std::int32_t pKind = 0, std::int32_t pOptions = 0) = 0;
};

} // namespace phial
