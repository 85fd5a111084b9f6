#include "headless/FaultyFileSystem.h"

#include "core/RuntimeError.h"

#include <algorithm>
#include <utility>

namespace phial::headless
{

namespace
{

void raiseIfCut(std::string_view written, std::string_view bytes)
{
    if (written.size() < bytes.size()) {
        throw RuntimeError(ErrorNumber::FileAccess, u"injected fault: disk full");
    }
}

} // namespace

FaultyFileSystem::FaultyFileSystem(std::shared_ptr<FileSystem> behind) : behind_(std::move(behind)) {}

void FaultyFileSystem::failChanges()
{
    using enum FileStep;
    for (const FileStep step :
         {MayReplace, Write, Append, SetTime, Flush, FlushFolder, Rename, Remove, CreateFolder, Lock}) {
        fail(step);
    }
}

void FaultyFileSystem::protect(std::filesystem::path folder)
{
    protected_ = std::move(folder);
}

void FaultyFileSystem::repair()
{
    failing_.clear();
    once_.reset();
    locksBusy_ = false;
    protected_.clear();
    stepsLeft_.reset();
    bytesLeft_.reset();
}

std::error_code FaultyFileSystem::faultOf(FileStep step)
{
    const int number = steps_++;
    if (once_ && once_->step == number) {
        return std::make_error_code(once_->code);
    }
    if (stepsLeft_ && (*stepsLeft_)-- <= 0) {
        return std::make_error_code(std::errc::io_error);
    }
    const auto failing = failing_.find(step);
    return failing == failing_.end() ? std::error_code() : std::make_error_code(failing->second);
}

void FaultyFileSystem::begin(FileStep step, const std::filesystem::path& path)
{
    if (const std::error_code fault = faultOf(step)) {
        raiseFileError(fault, u"injected fault", path);
    }
}

bool FaultyFileSystem::isProtected(const std::filesystem::path& path) const
{
    const auto [protectedEnd, pathEnd] = std::ranges::mismatch(protected_, path);
    return !protected_.empty() && protectedEnd == protected_.end();
}

void FaultyFileSystem::change(FileStep step, const std::filesystem::path& path)
{
    begin(step, path);
    if (isProtected(path)) {
        throw RuntimeError(ErrorNumber::FileAccess, u"injected fault: protected folder");
    }
}

FileStatus FaultyFileSystem::status(const std::filesystem::path& path)
{
    const std::error_code fault = faultOf(FileStep::Status);
    if (meansAbsent(fault)) {
        return {};
    }
    if (fault) {
        raiseFileError(fault, u"injected fault", path);
    }
    return behind_->status(path);
}

bool FaultyFileSystem::mayReplace(const std::filesystem::path& file)
{
    return !faultOf(FileStep::MayReplace) && !isProtected(file) && behind_->mayReplace(file);
}

std::string FaultyFileSystem::read(const std::filesystem::path& file)
{
    begin(FileStep::Read, file);
    return behind_->read(file);
}

/// The beginning of the bytes for which the disk has room, which they take.
std::string_view FaultyFileSystem::whatFits(std::string_view bytes)
{
    if (!bytesLeft_) {
        return bytes;
    }
    const std::string_view fitting = bytes.substr(0, *bytesLeft_);
    *bytesLeft_ -= fitting.size();
    return fitting;
}

void FaultyFileSystem::write(const std::filesystem::path& file, std::string_view bytes)
{
    change(FileStep::Write, file);
    const std::string_view fitting = whatFits(bytes);
    behind_->write(file, fitting);
    raiseIfCut(fitting, bytes);
}

void FaultyFileSystem::writeLike(const std::filesystem::path& model, const std::filesystem::path& file,
                                 std::string_view bytes)
{
    change(FileStep::Write, file);
    const std::string_view fitting = whatFits(bytes);
    behind_->writeLike(model, file, fitting);
    raiseIfCut(fitting, bytes);
}

void FaultyFileSystem::append(const std::filesystem::path& file, std::string_view bytes)
{
    change(FileStep::Append, file);
    const std::string_view fitting = whatFits(bytes);
    behind_->append(file, fitting);
    raiseIfCut(fitting, bytes);
}

void FaultyFileSystem::setTime(const std::filesystem::path& file, std::int64_t time)
{
    change(FileStep::SetTime, file);
    behind_->setTime(file, time);
}

void FaultyFileSystem::flush(const std::filesystem::path& file)
{
    change(FileStep::Flush, file);
    behind_->flush(file);
}

void FaultyFileSystem::flushFolder(const std::filesystem::path& folder)
{
    change(FileStep::FlushFolder, folder);
    behind_->flushFolder(folder);
}

void FaultyFileSystem::rename(const std::filesystem::path& from, const std::filesystem::path& to)
{
    change(FileStep::Rename, to);
    behind_->rename(from, to);
}

void FaultyFileSystem::remove(const std::filesystem::path& file)
{
    change(FileStep::Remove, file);
    behind_->remove(file);
}

void FaultyFileSystem::createFolder(const std::filesystem::path& folder)
{
    change(FileStep::CreateFolder, folder);
    behind_->createFolder(folder);
}

SystemLock::Try FaultyFileSystem::lock(SystemLock& lock, const std::filesystem::path& file)
{
    if (faultOf(FileStep::Lock) || isProtected(file)) {
        return SystemLock::Try::Impossible;
    }
    return locksBusy_ ? SystemLock::Try::Busy : behind_->lock(lock, file);
}

} // namespace phial::headless
