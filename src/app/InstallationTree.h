#pragma once

#include "core/String.h"

#include <optional>

/// How the folder of an installation is recognised, and found from a program's own place.
namespace phial::installationTree
{

/// Whether the folder (with a backslash at its end, or empty for the current one) has the marker file
/// "QVStart.exe" and the folder "Resources".
bool isRoot(StringView folder);

/// The tree that belongs to a program which lies in the folder: `..\share\phial\` of an installed program,
/// `..\tree\` of one in a build folder, or the program's folder itself; the first that is one. The result is
/// absolute and ends in a backslash.
std::optional<String> nearProgram(StringView programFolder);

} // namespace phial::installationTree
