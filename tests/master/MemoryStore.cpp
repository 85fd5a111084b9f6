#include "MemoryStore.h"

#include <algorithm>

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
    if (failCommits_) {
        throw master::StoreError("the disk is full");
    }
    committed_ = content_;
    ++commits_;
}

std::optional<String> MemoryStore::answerTo(const FrameId& id)
{
    const auto entry = content_.answers.find(id);
    return entry == content_.answers.end() ? std::nullopt : std::optional(entry->second.second);
}

void MemoryStore::keepAnswer(const FrameId& id, const String& answer, Moment at)
{
    content_.answers[id] = {at, answer};
}

void MemoryStore::forgetAnswers(Moment before, std::size_t keep)
{
    std::erase_if(content_.answers, [&](const auto& entry) { return entry.second.first < before; });
    while (content_.answers.size() > keep) {
        content_.answers.erase(std::ranges::min_element(
            content_.answers, {}, [](const auto& entry) { return entry.second.first; }));
    }
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

std::vector<master::Result> MemoryStore::latestResults(std::size_t atMost)
{
    return lastOf(content_.results, atMost);
}

std::vector<master::PupilEvent> MemoryStore::latestEvents(std::size_t atMost)
{
    return lastOf(content_.events, atMost);
}

void MemoryStore::visitResults(const std::function<void(const master::Result&)>& visit)
{
    std::ranges::for_each(content_.results, visit);
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
