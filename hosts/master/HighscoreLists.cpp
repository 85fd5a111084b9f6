#include "master/HighscoreLists.h"

#include "core/CoreParameters.h"
#include "core/NumberText.h"
#include "core/Variant.h"
#include "master/Packages.h"
#include "results/cls_DataScore.h"
#include "results/cls_DataScores.h"
#include "server/WireText.h"

#include <algorithm>

namespace phial::master
{

namespace
{

/// A text that stands where the list's rules would take the master's own login or computer for a missing one.
const String& orUnknown(const String& name)
{
    static const String Unknown = u"?";
    return name.empty() ? Unknown : name;
}

std::shared_ptr<cls_DataScores> emptyList()
{
    return std::make_shared<cls_DataScores>();
}

/// What an entry takes in the packed list, in UTF-8.
std::size_t bytesOf(const Result& result, const CoreParameters& additional)
{
    cls_DataScores list;
    const Sender& sender = result.sender;
    list.ADD(result.points, result.pointsMax, result.exercise, &additional, orUnknown(sender.userName),
             orUnknown(sender.computer), orUnknown(sender.screenName), result.at);
    return toUtf8(list.DATA()->Pack()).size();
}

HighscoreRow rowOf(const cls_DataScore& entry)
{
    return {entry.RANK(),   entry.SCREENNAME(), entry.COMPUTER(), entry.UEBM(),
            entry.POINTS(), entry.POINTSMAX(),  entry.TIMESTAMP()};
}

} // namespace

/// A list in memory, and the answer that hands it out until it changes.
struct HighscoreLists::Kept {
    std::shared_ptr<cls_DataScores> list = emptyList();
    std::shared_ptr<const String> answer;
};

HighscoreLists::HighscoreLists(MasterStore& store, const MasterSettings& settings)
    : store_(store), settings_(settings)
{
}

HighscoreLists::~HighscoreLists() = default;

String HighscoreLists::nameOf(StringView module)
{
    return upperCase(cleaned(module, MaxModuleLength + 1));
}

std::optional<String> HighscoreLists::submit(StringView module, const Result& result, const String& address,
                                             std::vector<NoticeCase>& rNotices)
{
    const String key = nameOf(module);
    CoreParameters additional;
    additional.Unpack(result.additional);
    const bool isShortened = bytesOf(result, additional) > MaxEntryBytes;
    if (isShortened) {
        additional.Clear();
        if (bytesOf(result, additional) > MaxEntryBytes) {
            rNotices.push_back({Notice::EntryTooLong, {address}});
            return std::nullopt;
        }
    }
    Kept* kept = find(key);
    if (kept == nullptr && !mayBegin(key, address, rNotices)) {
        return std::nullopt;
    }
    Kept& used = kept != nullptr ? *kept : begin(key, result, address, rNotices);
    applyRules(key, *used.list);
    const Sender& sender = result.sender;
    const Variant rank = used.list->ADD(result.points, result.pointsMax, result.exercise, &additional,
                                        orUnknown(sender.userName), orUnknown(sender.computer),
                                        orUnknown(sender.screenName), result.at);
    if (!rank.isEmpty()) {
        changed(key, used);
    }
    if (isShortened) {
        rNotices.push_back({Notice::EntryShortened, {sender.screenName, key}});
    }
    return rank.toText();
}

bool HighscoreLists::isReal(const String& key) const
{
    return modulesOfApp_.contains(key) || settings_.hasListRules(key);
}

bool HighscoreLists::mayBegin(const String& key, const String& address, std::vector<NoticeCase>& rNotices)
{
    if (key.empty() || key.size() > MaxModuleLength) {
        rNotices.push_back({Notice::NoPackage, {address}});
        return false;
    }
    if (isReal(key)) {
        return true;
    }
    const auto isOther = [this](const auto& entry) { return !isReal(entry.first); };
    const auto others = static_cast<std::size_t>(std::ranges::count_if(known(), isOther));
    const auto own = static_cast<std::size_t>(std::ranges::count_if(
        known(), [&](const auto& entry) { return isOther(entry) && entry.second.address == address; }));
    if (own >= MaxOfComputer) {
        rNotices.push_back({Notice::ListsOfComputer, {address, plainText(static_cast<std::int32_t>(own))}});
        return false;
    }
    if (others >= MaxModules) {
        rNotices.push_back({Notice::NoMoreLists, {plainText(static_cast<std::int32_t>(others)), key}});
        return false;
    }
    return true;
}

HighscoreLists::Kept& HighscoreLists::begin(const String& key, const Result& result, const String& address,
                                            std::vector<NoticeCase>& rNotices)
{
    const ListOrigin origin{key, address, result.at};
    known()[key] = origin;
    begun_.push_back(origin);
    if (!isReal(key)) {
        rNotices.push_back({Notice::ListBegun, {address, key}});
    }
    return *(lists_[key] = std::make_unique<Kept>());
}

std::shared_ptr<const String> HighscoreLists::answer(StringView module)
{
    const String key = nameOf(module);
    Kept* kept = find(key);
    Kept none;
    Kept& asked = kept != nullptr ? *kept : none;
    const std::int32_t maximum = asked.list->MAXIMUM();
    const bool once = asked.list->ONCE();
    applyRules(key, *asked.list);
    if (!asked.answer || maximum != asked.list->MAXIMUM() || once != asked.list->ONCE()) {
        asked.answer = std::make_shared<const String>(answerText(asked.list->DATA()->Pack()));
    }
    return asked.answer;
}

std::vector<HighscoreRow> HighscoreLists::rows(StringView module)
{
    std::vector<HighscoreRow> rows;
    if (const Kept* kept = find(nameOf(module))) {
        for (std::int32_t at = 1; at <= kept->list->COUNT(); ++at) {
            rows.push_back(rowOf(*kept->list->ITEM(at)));
        }
    }
    return rows;
}

std::vector<ListOrigin> HighscoreLists::origins()
{
    std::vector<ListOrigin> all;
    for (const auto& [key, origin] : known()) {
        all.push_back(origin);
    }
    return all;
}

bool HighscoreLists::remove(StringView module)
{
    const String key = nameOf(module);
    if (known().erase(key) == 0) {
        return false;
    }
    lists_.erase(key);
    changed_.erase(key);
    std::erase_if(begun_, [&](const ListOrigin& origin) { return origin.module == key; });
    removed_.insert(key);
    return true;
}

std::optional<HighscoreRow> HighscoreLists::removeEntry(StringView module, std::int32_t rank)
{
    const String key = nameOf(module);
    Kept* kept = find(key);
    if (kept == nullptr || rank < 1 || rank > kept->list->COUNT()) {
        return std::nullopt;
    }
    HighscoreRow row = rowOf(*kept->list->ITEM(rank));
    kept->list->REMOVE(rank, true);
    changed(key, *kept);
    return row;
}

std::size_t HighscoreLists::rename(const std::set<String>& from, const String& to)
{
    std::size_t renamed = 0;
    for (const auto& [key, origin] : known()) {
        Kept& kept = *find(key);
        for (std::int32_t at = 1; at <= kept.list->COUNT(); ++at) {
            const auto entry = kept.list->ITEM(at);
            if (from.contains(entry->SCREENNAME())) {
                entry->SCREENNAME(to);
                changed(key, kept);
                ++renamed;
            }
        }
    }
    return renamed;
}

std::set<String> HighscoreLists::names()
{
    std::set<String> names;
    for (const auto& [key, origin] : known()) {
        const Kept& kept = *find(key);
        for (std::int32_t at = 1; at <= kept.list->COUNT(); ++at) {
            names.insert(kept.list->ITEM(at)->SCREENNAME());
        }
    }
    return names;
}

void HighscoreLists::store()
{
    for (const String& key : removed_) {
        store_.removeScoreList(key);
    }
    for (const String& key : changed_) {
        store_.keepScoreList(key, lists_.at(key)->list->DATA()->Pack());
    }
    for (const ListOrigin& origin : begun_) {
        store_.keepListOrigin(origin);
    }
    removed_.clear();
    changed_.clear();
    begun_.clear();
}

void HighscoreLists::forget()
{
    lists_.clear();
    changed_.clear();
    removed_.clear();
    begun_.clear();
    known_.reset();
}

HighscoreLists::Kept* HighscoreLists::find(const String& key)
{
    if (!known().contains(key)) {
        return nullptr;
    }
    auto& kept = lists_[key];
    if (!kept) {
        auto loaded = std::make_unique<Kept>();
        load(key, *loaded);
        kept = std::move(loaded);
    }
    return kept.get();
}

/// Entries of other times that are too long lose their further values.
void HighscoreLists::load(const String& key, Kept& kept)
{
    const auto stored = store_.scoreList(key);
    if (!stored) {
        return;
    }
    kept.list->DATA()->Unpack(*stored);
    constexpr std::size_t BytesOfUnit = 3;
    if (stored->size() * BytesOfUnit <= std::size_t{MasterSettings::MaxListLength} * MaxEntryBytes) {
        return;
    }
    for (std::int32_t at = 1; at <= kept.list->COUNT(); ++at) {
        const auto entry = kept.list->ITEM(at);
        if (entry->DATA()->Pack().size() > MaxEntryBytes / BytesOfUnit) {
            entry->ADDITIONAL(std::make_shared<CoreParameters>());
        }
    }
}

std::map<String, ListOrigin>& HighscoreLists::known()
{
    if (!known_) {
        std::map<String, ListOrigin> known;
        for (const String& module : store_.modules()) {
            known[module] = {module, {}, {}};
        }
        for (const ListOrigin& origin : store_.listOrigins()) {
            if (const auto entry = known.find(origin.module); entry != known.end()) {
                entry->second = origin;
            }
        }
        known_ = std::move(known);
    }
    return *known_;
}

void HighscoreLists::applyRules(const String& key, cls_DataScores& list) const
{
    list.MAXIMUM(settings_.listLength(key));
    list.ONCE(settings_.keepsBestOnly(key));
}

void HighscoreLists::changed(const String& key, Kept& kept)
{
    kept.answer.reset();
    changed_.insert(key);
}

} // namespace phial::master
