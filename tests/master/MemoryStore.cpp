#include "MemoryStore.h"

#include <algorithm>
#include <set>

namespace phial::test
{

namespace
{

template <typename Entry>
std::vector<Entry> lastOf(const std::vector<Entry>& entries, std::size_t atMost)
{
    const auto count = static_cast<std::ptrdiff_t>(std::min(atMost, entries.size()));
    return {entries.end() - count, entries.end()};
}

} // namespace

void MemoryStore::commit()
{
    if (const auto call = std::exchange(onCommit_, nullptr)) {
        call();
    }
    if (failCommits_) {
        throw master::StoreError("the disk is full");
    }
    committed_ = content_;
    ++commits_;
}

std::vector<master::Result> MemoryStore::results() const
{
    std::vector<master::Result> results;
    for (const auto& [number, result] : committed_.results) {
        results.push_back(result);
    }
    return results;
}

std::optional<String> MemoryStore::answerTo(const FrameId& id)
{
    if (hasVanished_) {
        throw master::StoreError("no route", master::StoreError::Reason::Unreachable);
    }
    const auto entry = content_.answers.find(id);
    return entry == content_.answers.end() ? std::nullopt : std::optional(entry->second.second);
}

void MemoryStore::keepAnswer(const FrameId& id, const String& answer, Moment at)
{
    content_.answers[id] = {at, answer};
}

std::size_t MemoryStore::forgetAnswers(Moment before, std::size_t keep, std::size_t atMost)
{
    std::size_t forgotten = 0;
    while (forgotten < atMost && !content_.answers.empty()) {
        const auto oldest = std::ranges::min_element(content_.answers, {},
                                                     [](const auto& entry) { return entry.second.first; });
        if (oldest->second.first >= before && content_.answers.size() <= keep) {
            break;
        }
        content_.answers.erase(oldest);
        ++forgotten;
    }
    return forgotten;
}

void MemoryStore::addSubmission(const String& module, const master::Result& result, const String& rank)
{
    content_.submissions.push_back({module, result, rank});
}

void MemoryStore::addEvent(const master::PupilEvent& event)
{
    if (failEvents_) {
        throw master::StoreError("no such table");
    }
    if (content_.events.empty()) {
        resultsBeforeFirstEvent_ = content_.results.size();
    }
    content_.events.push_back(event);
}

std::vector<master::KeptResult> MemoryStore::latestResults(std::size_t atMost)
{
    std::vector<master::KeptResult> all;
    for (const auto& [number, result] : content_.results) {
        all.push_back({number, result});
    }
    return lastOf(all, atMost);
}

std::vector<master::KeptResult> MemoryStore::resultsAfter(std::int32_t number, std::size_t atMost)
{
    std::vector<master::KeptResult> found;
    for (auto entry = content_.results.upper_bound(number);
         entry != content_.results.end() && found.size() < atMost; ++entry) {
        found.push_back({entry->first, entry->second});
    }
    return found;
}

std::optional<master::Result> MemoryStore::result(std::int32_t number)
{
    const auto entry = content_.results.find(number);
    return entry == content_.results.end() ? std::nullopt : std::optional(entry->second);
}

std::vector<master::HandedIn> MemoryStore::handedInSince(Moment since)
{
    std::map<String, Moment> latest;
    for (const auto& [number, result] : content_.results) {
        if (result.at >= since) {
            Moment& moment = latest[result.sender.screenName];
            moment = std::max(moment, result.at);
        }
    }
    std::vector<master::HandedIn> all;
    for (const auto& [name, moment] : latest) {
        all.push_back({name, moment});
    }
    return all;
}

std::vector<String> MemoryStore::screenNames()
{
    std::set<String> names;
    for (const auto& [number, result] : content_.results) {
        names.insert(result.sender.screenName);
    }
    for (const auto& [client, logOn] : content_.logOns) {
        names.insert(logOn.name);
    }
    return {names.begin(), names.end()};
}

void MemoryStore::renamePupil(const String& from, const String& to)
{
    const auto rename = [&](String& name) { name = name == from ? to : name; };
    for (auto& [number, result] : content_.results) {
        rename(result.sender.screenName);
    }
    for (auto& [client, logOn] : content_.logOns) {
        rename(logOn.name);
    }
}

std::vector<master::PupilEvent> MemoryStore::latestEvents(std::size_t atMost)
{
    return lastOf(content_.events, atMost);
}

std::vector<master::Change> MemoryStore::latestChanges(std::size_t atMost)
{
    return lastOf(content_.changes, atMost);
}

std::vector<String> MemoryStore::modules()
{
    std::vector<String> names;
    for (const auto& [module, list] : content_.lists) {
        names.push_back(module);
    }
    return names;
}

std::optional<String> MemoryStore::scoreList(const String& module)
{
    const auto entry = content_.lists.find(module);
    return entry == content_.lists.end() ? std::nullopt : std::optional(entry->second);
}

void MemoryStore::keepScoreList(const String& module, const String& list)
{
    content_.lists[module] = list;
}

void MemoryStore::removeScoreList(const String& module)
{
    content_.lists.erase(module);
    content_.origins.erase(module);
}

std::vector<master::ListOrigin> MemoryStore::listOrigins()
{
    std::vector<master::ListOrigin> all;
    for (const auto& [module, origin] : content_.origins) {
        all.push_back(origin);
    }
    return all;
}

void MemoryStore::keepListOrigin(const master::ListOrigin& origin)
{
    content_.origins[origin.module] = origin;
}

std::vector<std::pair<String, String>> MemoryStore::settings()
{
    return {content_.settings.begin(), content_.settings.end()};
}

void MemoryStore::keepSetting(const String& name, const std::optional<String>& value)
{
    if (value) {
        content_.settings[name] = *value;
    } else {
        content_.settings.erase(name);
    }
}

std::vector<master::LogOn> MemoryStore::logOns()
{
    std::vector<master::LogOn> all;
    for (const auto& [client, logOn] : content_.logOns) {
        all.push_back(logOn);
    }
    return all;
}

void MemoryStore::forgetLogOns(Moment before)
{
    std::erase_if(content_.logOns, [&](const auto& entry) { return entry.second.since < before; });
}

} // namespace phial::test
