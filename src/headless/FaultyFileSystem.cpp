#include "headless/FaultyFileSystem.h"

#include "core/RuntimeError.h"

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

void FaultyFileSystem::repair()
{
    failing_.clear();
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

std::string FaultyFileSystem::read(const std::filesystem::path& file)
{
    begin(FileStep::Read);
    return behind_->read(file);
}

void FaultyFileSystem::write(const std::filesystem::path& file, std::string_view bytes)
{
    begin(FileStep::Write);
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
    begin(FileStep::Flush);
    behind_->flush(file);
}

void FaultyFileSystem::flushFolder(const std::filesystem::path& folder)
{
    begin(FileStep::FlushFolder);
    behind_->flushFolder(folder);
}

void FaultyFileSystem::rename(const std::filesystem::path& from, const std::filesystem::path& to)
{
    begin(FileStep::Rename);
    behind_->rename(from, to);
}

void FaultyFileSystem::remove(const std::filesystem::path& file)
{
    begin(FileStep::Remove);
    behind_->remove(file);
}

void FaultyFileSystem::createFolder(const std::filesystem::path& folder)
{
    begin(FileStep::CreateFolder);
    behind_->createFolder(folder);
}

} // namespace phial::headless
