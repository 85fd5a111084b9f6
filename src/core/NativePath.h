#pragma once

#include "core/String.h"

#include <filesystem>

namespace phial
{

/// Components are separated by backslashes; a slash is taken for one too.
constexpr bool isPathSeparator(char16_t unit)
{
    return unit == u'\\' || unit == u'/';
}

/// The one mapping between paths as the system writes them and native ones.
///
/// Where the native separator is a slash:
///
/// | the system's path | native |
/// |---|---|
/// | `\home\x\a.txt` | `/home/x/a.txt` |
/// | `data\a.txt`, with the current folder `\home\x\` | `/home/x/data/a.txt` |
/// | `..\a.txt`, with the same | `/home/a.txt` |
/// | `E:\a.txt`, `\\server\a.txt`, a path with NUL in it | the empty path, which no file has |
///
/// "." and ".." are resolved in the text, before links are followed. Where a component does not exist as
/// written but one exists that differs only in case, that one is meant (the first in order of its text if
/// there are several); components that do not exist stay as written.
std::filesystem::path nativePath(StringView path, StringView currentFolder);

/// The same, with the current folder of the open session; raises 91 when none is open.
std::filesystem::path nativePath(StringView path);

/// A native path as the system writes it. Nothing is added at its end.
String systemPath(const std::filesystem::path& path);

} // namespace phial
