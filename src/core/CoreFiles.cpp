#include "core/CoreFiles.h"

#include "core/AtomicFile.h"
#include "core/CoreStringList.h"
#include "core/CurrentFolder.h"
#include "core/FileSystem.h"
#include "core/FolderListing.h"
#include "core/NativePath.h"
#include "core/RuntimeError.h"
#include "core/Utf8Text.h"

#include <vector>

namespace phial
{

namespace
{

namespace fs = std::filesystem;

bool endsInSeparator(StringView path)
{
    return !path.empty() && (path.back() == u'\\' || path.back() == u'/');
}

bool isWriteProtected(const fs::path& file)
{
    std::error_code error;
    const fs::perms permissions = fs::status(file, error).permissions();
    return !error && (permissions & fs::perms::owner_write) == fs::perms::none;
}

} // namespace

CoreFiles::CoreFiles(std::shared_ptr<FileSystem> fileSystem,
                     std::shared_ptr<const CurrentFolder> currentFolder)
    : fileSystem_(std::move(fileSystem)), currentFolder_(std::move(currentFolder))
{
}

fs::path CoreFiles::native(StringView path) const
{
    return nativePath(path, currentFolder_->path());
}

bool CoreFiles::Exists(StringView pPath) const
{
    return !endsInSeparator(pPath) && status(pPath).kind == FileStatus::Kind::File;
}

bool CoreFiles::FolderExists(StringView pPath) const
{
    return status(pPath).kind == FileStatus::Kind::Folder;
}

void CoreFiles::CreateFolder(StringView pPath, bool pIsFile)
{
    fs::path folder = native(pPath);
    if (pIsFile) {
        folder = folder.parent_path();
    }
    std::vector<fs::path> missing;
    std::error_code error;
    while (!folder.empty() && !fs::is_directory(folder, error) && folder != folder.parent_path()) {
        missing.push_back(folder);
        folder = folder.parent_path();
    }
    if (folder.empty()) {
        throw RuntimeError(ErrorNumber::FileAccess, u"cannot create: " + String(pPath));
    }
    for (auto next = missing.rbegin(); next != missing.rend(); ++next) {
        fileSystem_->createFolder(*next);
    }
}

bool CoreFiles::Delete(StringView pPath, bool pProtectedToo)
{
    const fs::path file = native(pPath);
    if (endsInSeparator(pPath) || (isWriteProtected(file) && !pProtectedToo)) {
        return false;
    }
    return ignoringErrors([&] { fileSystem_->remove(file); });
}

String CoreFiles::ReadText(StringView pPath, StringView /*pCharset*/, std::int32_t /*pOptions*/) const
{
    return fromUtf8(withoutMark(fileSystem_->read(native(pPath))));
}

bool CoreFiles::WriteText(StringView pPath, StringView pText, StringView /*pCharset*/, bool pMark)
{
    const std::string bytes = (pMark ? std::string(Utf8Mark) : std::string()) + toUtf8(pText);
    return !endsInSeparator(pPath) &&
           ignoringErrors([&] { replaceFile(*fileSystem_, native(pPath), bytes); });
}

bool CoreFiles::WriteScratch(StringView pPath, StringView pText)
{
    if (endsInSeparator(pPath)) {
        return false;
    }
    const fs::path file = native(pPath);
    const bool written = ignoringErrors([&] { fileSystem_->write(file, toUtf8(pText)); });
    if (!written) {
        ignoringErrors([&] { fileSystem_->remove(file); });
    }
    return written;
}

bool CoreFiles::AppendText(StringView pPath, StringView pText)
{
    return !endsInSeparator(pPath) &&
           ignoringErrors([&] { fileSystem_->append(native(pPath), toUtf8(pText)); });
}

void CoreFiles::Copy(StringView pFrom, StringView pTo)
{
    const fs::path from = native(pFrom);
    // Asked for before the content is read: a change in between makes the copy an old one, not a current one.
    const FileStatus found = fileSystem_->status(from);
    replaceFile(*fileSystem_, native(pTo), fileSystem_->read(from), {.time = found.time});
}

/// What cannot be asked for counts as missing.
FileStatus CoreFiles::status(StringView path) const
{
    FileStatus found;
    ignoringErrors([&] { found = fileSystem_->status(native(path)); });
    return found;
}

FileStamp CoreFiles::Changed(StringView pPath) const
{
    const FileStatus found = status(pPath);
    const bool exists = found.kind == FileStatus::Kind::File;
    return exists ? FileStamp{true, found.time, found.size} : FileStamp();
}

CoreStringList CoreFiles::List(StringView pPattern, bool pFolders, bool pPaths, bool pFlat) const
{
    const std::size_t lastSeparator = pPattern.find_last_of(u"\\/");
    const std::size_t nameBegin = lastSeparator == StringView::npos ? 0 : lastSeparator + 1;
    const StringView folder = pPattern.substr(0, nameBegin);
    const FolderListing listing(native(folder), pPattern.substr(nameBegin));
    if (pFolders) {
        return listing.subfolders();
    }
    const auto depth = pFlat ? FolderListing::Depth::ThisFolder : FolderListing::Depth::Subfolders;
    if (!pPaths) {
        return listing.names(depth);
    }
    return listing.paths(depth, pFlat ? folder : StringView());
}

} // namespace phial
