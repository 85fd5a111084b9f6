#pragma once

#include "core/String.h"

#include <optional>

/// How the folder of an installation is recognised, and found from a program's own place.
namespace phial::installationTree
{

/// Whether the folder (with a backslash at its end, or empty for the current one) has the marker file
/// "QVStart.exe" and the folder "Resources".
bool isRoot(StringView folder);

/// The tree that belongs to a program which lies in the folder: the tree in which the program has a folder of
/// its own (`..\..\`, as in apps\<identifier>\), the program's folder itself, or the tree beside it, of an
/// installed program (`..\share\phial\`) or in a build folder (`..\tree\`); the first that is one. The result
/// is absolute and ends in a backslash.
std::optional<String> nearProgram(StringView programFolder);

} // namespace phial::installationTree
