#include "core/CurrentFolder.h"

#include "core/NativePath.h"
#include "core/RuntimeError.h"

#include <filesystem>

namespace phial
{

namespace
{

String withBackslash(String path)
{
    if (path.empty() || path.back() != u'\\') {
        path += u'\\';
    }
    return path;
}

} // namespace

CurrentFolder::CurrentFolder()
{
    std::error_code ignored;
    path_ = withBackslash(systemPath(std::filesystem::current_path(ignored)));
}

void CurrentFolder::change(StringView folder)
{
    if (folder.empty()) {
        throw RuntimeError(ErrorNumber::InvalidArgument);
    }
    const std::filesystem::path native = nativePath(folder, path_);
    std::error_code ignored;
    if (!std::filesystem::is_directory(native, ignored)) {
        throw RuntimeError(ErrorNumber::FileNotFound, u"folder not found: " + String(folder));
    }
    path_ = withBackslash(systemPath(native));
}

void CurrentFolder::changeDrive(StringView drive)
{
    const StringView letter = drive.substr(0, 1);
    const bool present =
        path_.size() >= 2 && path_[1] == u':' && equalsIgnoringCase(path_.substr(0, 1), letter);
    if (letter.empty() || letter == u"\\" || present) {
        return;
    }
    change(String(letter) + u":\\");
}

} // namespace phial
