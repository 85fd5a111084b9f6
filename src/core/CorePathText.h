#pragma once

#include "core/String.h"

namespace phial
{

/// Paths as text: parts are divided by backslashes, folders end in one, so that paths are joined by putting
/// texts together. Slashes divide parts too; folders that are given back have backslashes. Nothing is looked
/// up on disk. A root is a drive (`C:`), a share (`\\server\share`) or a leading separator. Comparison
/// disregards case.
class CorePathText
{
public:
    /// The text ending in exactly one backslash; the empty text gives "\".
    static String WithBackslash(StringView pText);
    /// "C:" or "\\server\share", else empty.
    static String Drive(StringView pPath);
    /// The path up to its last separator, that included; empty without one.
    static String Folder(StringView pPath);
    /// What follows the last separator.
    static String FileName(StringView pPath);
    /// The file name without its extension. A point at the very beginning of a name begins no extension.
    static String BaseName(StringView pPath);
    static String WithoutExtension(StringView pPath);
    /// The extension without its point; empty when there is none.
    static String Extension(StringView pPath);
    /// The folder of the path as seen from the base folder, with "..\" where needed; empty for the base
    /// itself. Without a common root the path's folder stays as it is.
    static String Relative(StringView pPath, StringView pBase);
    /// The folder that the relative one means, seen from the base, ending in a backslash and free of "." and
    /// "..". A relative path with a root of its own stands alone; ".." does not climb above a root.
    static String Absolute(StringView pBase, StringView pRelative);
};

} // namespace phial
