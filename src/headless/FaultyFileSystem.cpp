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
    for (const FileStep step : {FileStep::Write, FileStep::Append, FileStep::Flush, FileStep::FlushFolder,
                                FileStep::Rename, FileStep::Remove, FileStep::CreateFolder}) {
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
    protected_.clear();
    stepsLeft_.reset();
    bytesLeft_.reset();
}

void FaultyFileSystem::begin(FileStep step)
{
    ++steps_;
    const bool ended = stepsLeft_ && (*stepsLeft_)-- <= 0;
    if (ended || failing_.contains(step)) {
        throw RuntimeError(ErrorNumber::FileAccess, u"injected fault");
    }
}

void FaultyFileSystem::change(FileStep step, const std::filesystem::path& path)
{
    begin(step);
    const auto [protectedEnd, pathEnd] = std::ranges::mismatch(protected_, path);
    if (!protected_.empty() && protectedEnd == protected_.end()) {
        throw RuntimeError(ErrorNumber::FileAccess, u"injected fault: protected folder");
    }
}

std::string FaultyFileSystem::read(const std::filesystem::path& file)
{
    begin(FileStep::Read);
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

void FaultyFileSystem::append(const std::filesystem::path& file, std::string_view bytes)
{
    change(FileStep::Append, file);
    const std::string_view fitting = whatFits(bytes);
    behind_->append(file, fitting);
    raiseIfCut(fitting, bytes);
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

} // namespace phial::headless
