#include "master/Roster.h"

#include <algorithm>

namespace phial::master
{

std::vector<std::uint64_t> Roster::logOn(const LogOn& logOn)
{
    std::vector<std::uint64_t> replaced = replacedBy(logOn);
    for (const std::uint64_t client : replaced) {
        pupils_.erase(client);
    }
    pupils_[logOn.client] = {logOn, logOn.since};
    return replaced;
}

void Roster::logOff(std::uint64_t client)
{
    pupils_.erase(client);
}

void Roster::hear(std::uint64_t client, Moment at)
{
    if (const auto entry = pupils_.find(client); entry != pupils_.end()) {
        entry->second.heard = at;
    }
}

std::vector<Pupil> Roster::pupils() const
{
    std::vector<Pupil> sorted;
    sorted.reserve(pupils_.size());
    for (const auto& [client, pupil] : pupils_) {
        sorted.push_back(pupil);
    }
    std::ranges::sort(sorted, [](const Pupil& left, const Pupil& right) {
        const int names = compareIgnoringCase(left.logOn.name, right.logOn.name);
        return names != 0 ? names < 0 : left.logOn.client < right.logOn.client;
    });
    return sorted;
}

std::vector<std::uint64_t> Roster::replacedBy(const LogOn& logOn) const
{
    std::vector<std::uint64_t> replaced;
    auto longestSilent = pupils_.end();
    for (auto entry = pupils_.begin(); entry != pupils_.end(); ++entry) {
        const auto& [client, pupil] = *entry;
        const bool startedAgain =
            pupil.logOn.address == logOn.address && equalsIgnoringCase(pupil.logOn.name, logOn.name);
        if (client != logOn.client && (startedAgain || logOn.since.days - pupil.heard.days > GoneAfter)) {
            replaced.push_back(client);
        } else if (longestSilent == pupils_.end() || pupil.heard < longestSilent->second.heard) {
            longestSilent = entry;
        }
    }
    if (pupils_.size() - replaced.size() >= MaxPupils && !pupils_.contains(logOn.client)) {
        replaced.push_back(longestSilent->first);
    }
    return replaced;
}

} // namespace phial::master
