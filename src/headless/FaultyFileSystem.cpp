#include "headless/FaultyFileSystem.h"

#include "core/RuntimeError.h"

#include <algorithm>
#include <utility>

namespace phial::headless
{

FaultyFileSystem::FaultyFileSystem(std::shared_ptr<FileSystem> behind) : behind_(std::move(behind)) {}

void FaultyFileSystem::failChanges()
{
    for (const FileStep step : {FileStep::Write, FileStep::Flush, FileStep::FlushFolder, FileStep::Rename,
                                FileStep::Remove, FileStep::CreateFolder}) {
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

void FaultyFileSystem::write(const std::filesystem::path& file, std::string_view bytes)
{
    change(FileStep::Write, file);
    if (bytesLeft_ && bytes.size() > *bytesLeft_) {
        behind_->write(file, bytes.substr(0, std::exchange(*bytesLeft_, 0)));
        throw RuntimeError(ErrorNumber::FileAccess, u"injected fault: disk full");
    }
    if (bytesLeft_) {
        *bytesLeft_ -= bytes.size();
    }
    behind_->write(file, bytes);
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
