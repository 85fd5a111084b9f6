#pragma once

#include "core/String.h"

namespace phial
{

/// The current folder and drive of a session, against which paths without a root are read. It is virtual: the
/// folder of the process does not change.
class CurrentFolder
{
public:
    /// Begins with the folder of the process.
    CurrentFolder();

    /// As the system writes paths, with one backslash at its end.
    const String& path() const { return path_; }

    /// Goes to a folder, given absolutely or against the present one. The empty text raises 5, a folder that
    /// does not exist 53.
    void change(StringView folder);

    /// Goes to the drive of a text such as "E:". The empty text changes nothing, as does the present drive; a
    /// drive that does not exist raises 53.
    void changeDrive(StringView drive);

private:
    String path_;
};

} // namespace phial
