#include "core/KeptRecords.h"

#include "core/NativePath.h"
#include "core/SessionState.h"

#include <algorithm>
#include <utility>

namespace phial
{

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

bool KeptRecords::missed(const std::filesystem::path& file)
{
    // It may have been seen in another spelling than the one in which it is looked for.
    const String name = systemPath(file);
    const bool wasThere = std::erase_if(seen_, [&](const auto& seen) {
                              return equalsIgnoringCase(systemPath(seen), name);
                          }) > 0;
    if (wasThere) {
        add({KeptRecord::Reason::Gone, name, {}});
    }
    return wasThere;
}

KeptRecords& keptRecords()
{
    return SessionState::current().keptRecords();
}

} // namespace phial
