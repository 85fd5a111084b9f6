#include "core/FileSystem.h"

#include "core/NativePath.h"
#include "core/RuntimeError.h"
#include "core/SystemFile.h"

#include <array>
#include <fstream>

namespace phial
{

namespace
{

namespace fs = std::filesystem;

[[noreturn]] void raiseAccess(StringView what, const fs::path& path)
{
    throw RuntimeError(ErrorNumber::FileAccess, String(what) + u": " + systemPath(path));
}

void raiseOn(const std::error_code& error, StringView what, const fs::path& path)
{
    if (error) {
        raiseFileError(error, what, path);
    }
}

/// Opens the file as `mode` says and puts the bytes there.
void writeThrough(const fs::path& file, std::string_view bytes, std::ios::openmode mode)
{
    if (file.empty()) {
        throw RuntimeError(ErrorNumber::FileNotFound);
    }
    std::ofstream stream(file, std::ios::binary | mode);
    stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    stream.close();
    if (!stream) {
        std::error_code error;
        const bool hasFolder = fs::is_directory(file.parent_path(), error);
        raiseFileError(hasFolder ? make_error_code(std::errc::io_error)
                                 : make_error_code(std::errc::no_such_file_or_directory),
                       u"cannot write", file);
    }
}

} // namespace

bool meansAbsent(const std::error_code& error)
{
#ifdef _WIN32
    // A share that is away counts as not found in the standard's terms.
    constexpr int FileNotFound = 2;
    constexpr int PathNotFound = 3;
    if (error.category() == std::system_category()) {
        return error.value() == FileNotFound || error.value() == PathNotFound;
    }
#endif
    return error == std::errc::no_such_file_or_directory || error == std::errc::not_a_directory;
}

void raiseFileError(const std::error_code& error, StringView what, const fs::path& path)
{
    if (meansAbsent(error)) {
        throw RuntimeError(ErrorNumber::FileNotFound, String(what) + u": " + systemPath(path));
    }
    raiseAccess(what, path);
}

FileStatus NativeFileSystem::status(const fs::path& path)
{
    std::error_code error;
    const FileStatus found = system_file::status(path, error);
    if (error && !meansAbsent(error)) {
        raiseAccess(u"cannot be asked for", path);
    }
    return found;
}

bool NativeFileSystem::mayReplace(const fs::path& file)
{
    return system_file::mayReplace(file);
}

std::string NativeFileSystem::read(const fs::path& file)
{
    const FileStatus found = status(file);
    if (found.kind != FileStatus::Kind::File) {
        throw RuntimeError(ErrorNumber::FileNotFound, u"file not found: " + systemPath(file));
    }
    std::ifstream stream(file, std::ios::binary);
    // As many bytes as the file has now, at once, and then what it has grown by since.
    std::string bytes(static_cast<std::size_t>(found.size), '\0');
    stream.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    bytes.resize(static_cast<std::size_t>(stream.gcount()));
    std::array<char, 4096> more = {};
    while (stream) {
        stream.read(more.data(), more.size());
        bytes.append(more.data(), static_cast<std::size_t>(stream.gcount()));
    }
    if (!stream.is_open() || stream.bad()) {
        raiseAccess(u"cannot read", file);
    }
    return bytes;
}

void NativeFileSystem::write(const fs::path& file, std::string_view bytes)
{
    writeThrough(file, bytes, std::ios::trunc);
}

void NativeFileSystem::writeLike(const fs::path& model, const fs::path& file, std::string_view bytes)
{
    const std::error_code error = system_file::writeLike(model, file, bytes);
    if (error == std::errc::function_not_supported) {
        write(file, bytes);
    } else {
        raiseOn(error, u"cannot write", file);
    }
}

void NativeFileSystem::append(const fs::path& file, std::string_view bytes)
{
    writeThrough(file, bytes, std::ios::app);
}

void NativeFileSystem::setTime(const fs::path& file, std::int64_t time)
{
    raiseOn(system_file::setTime(file, time), u"cannot set the time", file);
}

void NativeFileSystem::flush(const fs::path& file)
{
    raiseOn(system_file::synchronise(file), u"cannot flush", file);
}

void NativeFileSystem::flushFolder(const fs::path& folder)
{
    raiseOn(system_file::synchronise(folder), u"cannot flush", folder);
}

void NativeFileSystem::rename(const fs::path& from, const fs::path& to)
{
    std::error_code error;
    fs::rename(from, to, error);
    raiseOn(error, u"cannot rename", from);
}

void NativeFileSystem::remove(const fs::path& file)
{
    std::error_code error;
    if (fs::is_directory(fs::symlink_status(file, error))) {
        raiseAccess(u"not a file", file);
    }
    const bool removed = fs::remove(file, error);
    raiseOn(error, u"cannot delete", file);
    if (!removed) {
        throw RuntimeError(ErrorNumber::FileNotFound, u"file not found: " + systemPath(file));
    }
}

void NativeFileSystem::createFolder(const fs::path& folder)
{
    if (folder.empty()) {
        throw RuntimeError(ErrorNumber::FileNotFound);
    }
    std::error_code error;
    fs::create_directory(folder, error);
    raiseOn(error, u"cannot create", folder);
    if (!fs::is_directory(folder, error)) {
        raiseAccess(u"not a folder", folder);
    }
}

SystemLock::Try NativeFileSystem::lock(SystemLock& lock, const fs::path& file)
{
    return lock.take(file);
}

} // namespace phial
