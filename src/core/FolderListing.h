#pragma once

#include "core/CoreStringList.h"
#include "core/String.h"

#include <cstdint>
#include <filesystem>
#include <vector>

namespace phial
{

/// Whether a file name fits a pattern with `*` (any units, none too) and `?` (exactly one). Case does not
/// count.
/// "*.*" fits every name, as the empty pattern does.
bool matchesPattern(StringView name, StringView pattern);

/// The entries of a native folder that fit a pattern, sorted without regard to case and, where that leaves
/// two equal, in order of the text. Entries whose native names cannot be written inside the system (a
/// backslash in the name, bytes that are no UTF-8) are left out, and what cannot be read counts as empty.
class FolderListing
{
public:
    enum class Depth : std::uint8_t { ThisFolder, Subfolders };

    FolderListing(std::filesystem::path folder, StringView pattern);

    /// Folders within this one, each with a backslash at its end.
    CoreStringList subfolders() const;
    /// Plain names of files.
    CoreStringList names(Depth depth) const;
    /// Paths of files, beginning with `prefix` and relative to the folder behind it.
    CoreStringList paths(Depth depth, StringView prefix) const;

private:
    struct File {
        String folder; ///< relative to the listed one, with a backslash at its end; empty for that one
        String name;
    };
    std::vector<File> files(Depth depth) const;

    std::filesystem::path folder_;
    String pattern_;
};

} // namespace phial
