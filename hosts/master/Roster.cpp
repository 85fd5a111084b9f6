#include "master/Roster.h"

#include <algorithm>
#include <iterator>
#include <optional>

namespace phial::master
{

std::vector<Pupil> withoutResult(const std::vector<Pupil>& pupils, const std::vector<HandedIn>& handedIn)
{
    std::vector<Pupil> missing;
    std::ranges::copy_if(pupils, std::back_inserter(missing), [&](const Pupil& pupil) {
        return std::ranges::none_of(handedIn, [&](const HandedIn& one) {
            // Moments are kept to the second, so the first one may seem to lie behind.
            constexpr double Second = 1.0 / (24 * 60 * 60);
            return equalsIgnoringCase(one.screenName, pupil.logOn.name) &&
                   one.latest.days >= pupil.first.days - Second;
        });
    });
    return missing;
}

std::vector<std::uint64_t> Roster::logOn(const LogOn& logOn)
{
    std::vector<std::uint64_t> replaced = replacedBy(logOn);
    Moment first = logOn.since;
    for (const std::uint64_t client : replaced) {
        const Pupil& pupil = entries_.at(client).pupil;
        if (isSame(pupil.logOn, logOn) && pupil.first < first) {
            first = pupil.first;
        }
        entries_.erase(client);
    }
    entries_[logOn.client] = {{logOn, first, logOn.since}};
    return replaced;
}

void Roster::logOff(std::uint64_t client)
{
    entries_.erase(client);
}

void Roster::rename(StringView from, const String& to)
{
    for (auto& [client, entry] : entries_) {
        if (equalsIgnoringCase(entry.pupil.logOn.name, from)) {
            entry.pupil.logOn.name = to;
        }
    }
}

void Roster::hear(std::uint64_t client, Moment at)
{
    if (const auto entry = entries_.find(client); entry != entries_.end()) {
        entry->second.pupil.heard = at;
    }
}

void Roster::connect(std::uint64_t client)
{
    ++connections_[client];
    if (const auto entry = entries_.find(client); entry != entries_.end()) {
        entry->second.hasLeft = false;
    }
}

void Roster::disconnect(std::uint64_t client, bool hasLeft)
{
    const auto connection = connections_.find(client);
    if (connection == connections_.end() || --connection->second > 0) {
        return;
    }
    connections_.erase(connection);
    if (const auto entry = entries_.find(client); entry != entries_.end()) {
        entry->second.hasLeft = hasLeft;
    }
}

std::vector<Pupil> Roster::pupils(Moment now) const
{
    std::vector<Pupil> sorted;
    sorted.reserve(entries_.size());
    for (const auto& [client, entry] : entries_) {
        sorted.push_back(entry.pupil);
        sorted.back().presence = presenceOf(entry, now);
    }
    std::ranges::sort(sorted, [](const Pupil& left, const Pupil& right) {
        const int names = compareIgnoringCase(left.logOn.name, right.logOn.name);
        return names != 0 ? names < 0 : left.logOn.client < right.logOn.client;
    });
    return sorted;
}

Presence Roster::presenceOf(const Entry& entry, Moment now) const
{
    if (entry.hasLeft) {
        return Presence::Gone;
    }
    const bool isConnected = connections_.contains(entry.pupil.logOn.client);
    const bool wasHeard = now.days - entry.pupil.heard.days <= SilentAfter;
    return isConnected && wasHeard ? Presence::There : Presence::Silent;
}

bool Roster::isSame(const LogOn& left, const LogOn& right)
{
    return left.address == right.address && equalsIgnoringCase(left.name, right.name);
}

std::vector<std::uint64_t> Roster::replacedBy(const LogOn& logOn)
{
    std::vector<std::uint64_t> replaced;
    const auto isQuieter = [](const Entry& entry, const std::optional<Pupil>& than) {
        return !than || entry.pupil.heard < than->heard;
    };
    std::optional<Pupil> quietest;
    std::optional<Pupil> quietestThere;
    std::size_t there = 0;
    for (const auto& [client, entry] : entries_) {
        const LogOn& other = entry.pupil.logOn;
        if (client == logOn.client) {
            continue;
        }
        if (isSame(other, logOn) || logOn.since.days - entry.pupil.heard.days > GoneAfter) {
            replaced.push_back(client);
            continue;
        }
        if (isQuieter(entry, quietest)) {
            quietest = entry.pupil;
        }
        if (other.address == logOn.address) {
            ++there;
            if (isQuieter(entry, quietestThere)) {
                quietestThere = entry.pupil;
            }
        }
    }
    const std::size_t others = entries_.size() - replaced.size() - (entries_.contains(logOn.client) ? 1 : 0);
    if (there >= ofComputer_) {
        replaced.push_back(quietestThere->logOn.client);
        ++crowdedOut_;
    } else if (others >= MaxPupils) {
        replaced.push_back(quietest->logOn.client);
        ++crowdedOut_;
    }
    return replaced;
}

} // namespace phial::master
