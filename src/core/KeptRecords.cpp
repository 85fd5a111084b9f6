#include "core/KeptRecords.h"

#include "core/NativePath.h"
#include "core/SessionState.h"

#include <algorithm>
#include <utility>

namespace phial
{

namespace
{

/// A file may have been seen in another spelling than the one in which it is looked for.
bool eraseNamed(std::set<std::filesystem::path>& rFiles, const String& name)
{
    return std::erase_if(rFiles,
                         [&](const auto& file) { return equalsIgnoringCase(systemPath(file), name); }) > 0;
}

} // namespace

std::vector<KeptRecord> KeptRecords::takeUntold()
{
    const std::size_t count = std::exchange(untold_, 0);
    return {all_.end() - static_cast<std::ptrdiff_t>(count), all_.end()};
}

void KeptRecords::add(KeptRecord record)
{
    if (all_.size() == Most) {
        all_.erase(all_.begin());
    }
    all_.push_back(std::move(record));
    untold_ = std::min(untold_ + 1, Most);
}

void KeptRecords::saw(const std::filesystem::path& file)
{
    seen_.insert(file);
    eraseNamed(gone_, systemPath(file));
}

bool KeptRecords::missed(const std::filesystem::path& file)
{
    const String name = systemPath(file);
    if (eraseNamed(seen_, name)) {
        gone_.insert(file);
        add({KeptRecord::Reason::Gone, name, {}});
        return true;
    }
    return std::ranges::any_of(gone_,
                               [&](const auto& gone) { return equalsIgnoringCase(systemPath(gone), name); });
}

KeptRecords& keptRecords()
{
    return SessionState::current().keptRecords();
}

} // namespace phial
