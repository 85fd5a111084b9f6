#pragma once

#include "core/String.h"
#include "core/Variant.h"

#include <cstdint>
#include <filesystem>
#include <memory>

namespace phial
{

class CoreStringList;
class CurrentFolder;
class FileSystem;
struct FileStatus;

/// When and how a file last changed; compared for equality only.
struct FileStamp {
    bool exists = false;
    std::int64_t time = 0; ///< in the file system's own finest unit
    std::uintmax_t size = 0;

    friend bool operator==(const FileStamp&, const FileStamp&) = default;
};

/// Files and folders. Paths are as the system writes them (see NativePath.h), patterns have `*` and `?` in
/// their last component, which match without regard to case; "*.*" matches every name. The questions whether
/// something is there, and how it last changed, take what cannot be asked for as missing.
class CoreFiles
{
public:
    CoreFiles(std::shared_ptr<FileSystem> fileSystem, std::shared_ptr<const CurrentFolder> currentFolder);

    /// Whether the path is a file, links followed.
    bool Exists(StringView pPath) const;
    /// Whether the path is a folder; the empty path is the current one.
    bool FolderExists(StringView pPath) const;

    /// Makes a folder with its parents; one that exists is left alone. With `pIsFile` the last component is a
    /// file name and is left out. Raises 75 when it cannot be made.
    void CreateFolder(StringView pPath, bool pIsFile = false);

    /// Deletes a file; one that is write-protected only with `pProtectedToo`. Gives whether this call has
    /// removed it.
    bool Delete(StringView pPath, bool pProtectedToo = false);

    /// The whole text of a file: UTF-8, with or without its mark. The empty name of a character set and the
    /// number 0 say so. Raises 53 when there is none, 75 when it cannot be read.
    String ReadText(StringView pPath, StringView pCharset = {}, std::int32_t pOptions = 0) const;

    /// Replaces a file by a text, in UTF-8, so that at every moment the old or the new file is there whole.
    /// `pMark` puts the UTF-8 mark in front. Gives whether it was written.
    bool WriteText(StringView pPath, StringView pText, StringView pCharset = {}, bool pMark = false);

    /// Writes a text to a file at once and in place, without bringing it to the disk: for what need not
    /// outlive the next moment, such as a probe. Gives whether it was written; if not, no part of it stays.
    bool WriteScratch(StringView pPath, StringView pText);

    /// Adds a text to the end of a file, in UTF-8, or makes the file; nothing is brought to the disk. Gives
    /// whether it was written. For logs.
    bool AppendText(StringView pPath, StringView pText);

    /// Copies a file with the time of its last change, replacing the target as `WriteText` does. Raises 53
    /// or 75.
    void Copy(StringView pFrom, StringView pTo);

    /// A missing file has a stamp of its own that equals that of any other missing file.
    FileStamp Changed(StringView pPath) const;

    /// What matches a pattern such as `\data\*.wav`, sorted without regard to case, and in order of the text
    /// where that leaves two names equal.
    ///
    /// | pFolders | pPaths | pFlat | gives |
    /// |---|---|---|---|
    /// | false | true | false | files, those in subfolders too; paths relative to the pattern's folder |
    /// | true | false | false | subfolders, each with a backslash at its end |
    /// | false | true | true | files of the folder, with full paths |
    /// | false | false | true | files of the folder, plain names |
    ///
    /// Without any flag it gives the plain names of files, those in subfolders too. With `pFolders` the other
    /// flags do not count: it is always the names of the folder's own subfolders. Full paths begin with the
    /// pattern's folder as it was written. A folder that is missing or cannot be read gives an empty list.
    /// Links to folders are not entered.
    CoreStringList List(StringView pPattern, bool pFolders, bool pPaths, bool pFlat) const;

    /// The native path of one of the system's.
    std::filesystem::path native(StringView path) const;

private:
    FileStatus status(StringView path) const;

    std::shared_ptr<FileSystem> fileSystem_;
    std::shared_ptr<const CurrentFolder> currentFolder_;
};

} // namespace phial
