#pragma once

#include "core/String.h"

namespace phial
{

/// The computer's special folders by role, as the system writes paths, each with one backslash at its end.
/// None of them is created by asking.
class CoreFolders
{
public:
    virtual ~CoreFolders() = default;

    /// Installed programs.
    virtual String ProgramFiles() const = 0;
    /// The user's own writable documents.
    virtual String UserDocuments() const = 0;
    /// The user's application data.
    virtual String UserAppData() const = 0;
    /// Application data of all users.
    virtual String CommonAppData() const = 0;
    /// Temporary files.
    virtual String Temp() const = 0;
};

} // namespace phial
