#include "headless/CrashingFileSystem.h"

#include <algorithm>
#include <utility>

namespace phial::headless
{

namespace
{

namespace fs = std::filesystem;

/// What a disk can hold of a file that was not flushed.
constexpr int ContentOutcomes = 4;

std::string contentAfterCut(const std::string& onDisk, const std::string& written, int outcome)
{
    switch (outcome) {
    case 0:
        return onDisk;
    case 1:
        return written.substr(0, written.size() / 2);
    case 2:
        return std::string(written.size(), '\0');
    default:
        return written;
    }
}

template <typename Names, typename Change>
void renameIn(Names& names, const Change& change)
{
    if (!change.from.empty()) {
        names.erase(change.from);
    }
    if (!change.to.empty()) {
        names.insert_or_assign(change.to, change.content);
    }
}

} // namespace

CrashingFileSystem::CrashingFileSystem(fs::path folder) : folder_(std::move(folder))
{
    for (const fs::directory_entry& entry : fs::directory_iterator(folder_)) {
        const std::string bytes = real_.read(entry.path());
        names_.emplace(entry.path(), std::make_shared<Content>(Content{bytes, bytes}));
    }
    namesOnDisk_ = names_;
}

void CrashingFileSystem::cutPowerAt(int step, double share)
{
    stepsLeft_ = step;
    share_ = share;
}

int CrashingFileSystem::outcomes() const
{
    int count = 1 << unflushedChanges_.size();
    for (std::size_t content = 0; content < unflushedContents_.size(); ++content) {
        count *= ContentOutcomes;
    }
    return count;
}

void CrashingFileSystem::restart(int outcome)
{
    for (const NameChange& change : std::exchange(unflushedChanges_, {})) {
        if (outcome % 2 != 0) {
            renameIn(namesOnDisk_, change);
        }
        outcome /= 2;
    }
    for (const auto& content : std::exchange(unflushedContents_, {})) {
        content->onDisk = contentAfterCut(content->onDisk, content->written, outcome % ContentOutcomes);
        outcome /= ContentOutcomes;
    }
    for (const auto& [name, content] : names_) {
        fs::remove(name);
    }
    names_ = namesOnDisk_;
    for (const auto& [name, content] : names_) {
        content->written = content->onDisk;
        real_.write(name, content->onDisk);
    }
    stepsLeft_.reset();
}

bool CrashingFileSystem::isPowerGone()
{
    return stepsLeft_ && (*stepsLeft_)-- <= 0;
}

void CrashingFileSystem::begin()
{
    if (isPowerGone()) {
        throw PowerCut{false};
    }
}

void CrashingFileSystem::change(NameChange change)
{
    renameIn(names_, change);
    unflushedChanges_.push_back(std::move(change));
}

std::shared_ptr<CrashingFileSystem::Content> CrashingFileSystem::contentToWrite(const fs::path& file)
{
    const auto known = names_.find(file);
    if (known != names_.end()) {
        return known->second;
    }
    auto content = std::make_shared<Content>();
    change({{}, file, content});
    return content;
}

std::string CrashingFileSystem::read(const fs::path& file)
{
    return real_.read(file);
}

/// The file holds `before` and `bytes` from now on, as far as the power lasts.
void CrashingFileSystem::put(const fs::path& file, std::string_view before, std::string_view bytes)
{
    const bool isCut = isPowerGone();
    const auto length = static_cast<double>(bytes.size()) * (isCut ? share_ : 1);
    std::string written(before);
    written += bytes.substr(0, static_cast<std::size_t>(length));
    const auto content = contentToWrite(file);
    content->written = written;
    if (std::ranges::find(unflushedContents_, content) == unflushedContents_.end()) {
        unflushedContents_.push_back(content);
    }
    real_.write(file, written);
    if (isCut) {
        throw PowerCut{true};
    }
}

void CrashingFileSystem::write(const fs::path& file, std::string_view bytes)
{
    put(file, {}, bytes);
}

void CrashingFileSystem::writeLike(const fs::path& /*model*/, const fs::path& file, std::string_view bytes)
{
    put(file, {}, bytes);
}

void CrashingFileSystem::append(const fs::path& file, std::string_view bytes)
{
    const auto known = names_.find(file);
    put(file, known == names_.end() ? std::string() : std::string(known->second->written), bytes);
}

void CrashingFileSystem::setTime(const fs::path& file, std::int64_t time)
{
    begin();
    real_.setTime(file, time);
}

void CrashingFileSystem::flush(const fs::path& file)
{
    begin();
    const auto content = names_.at(file);
    content->onDisk = content->written;
    std::erase(unflushedContents_, content);
}

void CrashingFileSystem::flushFolder(const fs::path& /*folder*/)
{
    begin();
    namesOnDisk_ = names_;
    unflushedChanges_.clear();
}

void CrashingFileSystem::rename(const fs::path& from, const fs::path& to)
{
    begin();
    real_.rename(from, to);
    change({from, to, names_.at(from)});
}

void CrashingFileSystem::remove(const fs::path& file)
{
    begin();
    real_.remove(file);
    change({file, {}, nullptr});
}

void CrashingFileSystem::createFolder(const fs::path& folder)
{
    begin();
    real_.createFolder(folder);
}

} // namespace phial::headless
