#include "core/FileSystem.h"

#include "core/NativePath.h"
#include "core/RuntimeError.h"

#include <fstream>
#include <iterator>

#if __has_include(<unistd.h>)
#include <fcntl.h>
#include <unistd.h>
#define PHIAL_HAS_FSYNC 1
#endif

namespace phial
{

namespace
{

namespace fs = std::filesystem;

[[noreturn]] void raiseAccess(StringView what, const fs::path& path)
{
    throw RuntimeError(ErrorNumber::FileAccess, String(what) + u": " + systemPath(path));
}

[[noreturn]] void raiseFor(const std::error_code& error, StringView what, const fs::path& path)
{
    if (error == std::errc::no_such_file_or_directory) {
        throw RuntimeError(ErrorNumber::FileNotFound, String(what) + u": " + systemPath(path));
    }
    raiseAccess(what, path);
}

void raiseOn(const std::error_code& error, StringView what, const fs::path& path)
{
    if (error) {
        raiseFor(error, what, path);
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
        raiseFor(hasFolder ? error : make_error_code(std::errc::no_such_file_or_directory), u"cannot write",
                 file);
    }
}

/// Brings what the system holds in memory for a file or folder to the disk.
void synchronise([[maybe_unused]] const fs::path& path)
{
#ifdef PHIAL_HAS_FSYNC
    const int descriptor = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (descriptor < 0) {
        raiseAccess(u"cannot flush", path);
    }
    const bool flushed = ::fsync(descriptor) == 0;
    ::close(descriptor);
    if (!flushed) {
        raiseAccess(u"cannot flush", path);
    }
#endif
}

} // namespace

std::string NativeFileSystem::read(const fs::path& file)
{
    std::error_code error;
    if (!fs::is_regular_file(file, error)) {
        throw RuntimeError(ErrorNumber::FileNotFound, u"file not found: " + systemPath(file));
    }
    std::ifstream stream(file, std::ios::binary);
    // As many bytes as the file has now, at once, and then what it has grown by since.
    const std::uintmax_t size = fs::file_size(file, error);
    std::string bytes(error ? 0 : static_cast<std::size_t>(size), '\0');
    stream.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    bytes.resize(static_cast<std::size_t>(stream.gcount()));
    bytes.append(std::istreambuf_iterator<char>(stream), {});
    if (!stream.is_open() || stream.bad()) {
        raiseAccess(u"cannot read", file);
    }
    return bytes;
}

void NativeFileSystem::write(const fs::path& file, std::string_view bytes)
{
    writeThrough(file, bytes, std::ios::trunc);
}

void NativeFileSystem::append(const fs::path& file, std::string_view bytes)
{
    writeThrough(file, bytes, std::ios::app);
}

void NativeFileSystem::flush(const fs::path& file)
{
    synchronise(file);
}

void NativeFileSystem::flushFolder(const fs::path& folder)
{
    synchronise(folder);
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

} // namespace phial
