#include "master/HighscoreLists.h"

#include "core/NumberText.h"
#include "core/Variant.h"
#include "master/Packages.h"
#include "results/cls_DataScores.h"

#include <algorithm>

namespace phial::master
{

namespace
{

constexpr int DefaultListLength = 10;

/// A text that stands where the list's rules would take the master's own login or computer for a missing one.
const String& orUnknown(const String& name)
{
    static const String Unknown = u"?";
    return name.empty() ? Unknown : name;
}

} // namespace

HighscoreLists::HighscoreLists(MasterStore& store, const CoreParameters& settings)
    : store_(store), settings_(settings)
{
}

HighscoreLists::~HighscoreLists() = default;

String HighscoreLists::nameOf(StringView module)
{
    return upperCase(cleaned(module, MaxModuleLength + 1));
}

std::optional<String> HighscoreLists::submit(StringView module, const Result& result)
{
    const String key = nameOf(module);
    if (key.empty() || key.size() > MaxModuleLength) {
        return std::nullopt;
    }
    auto list = known(key);
    if (!list) {
        if (modules().size() >= MaxModules) {
            return std::nullopt;
        }
        list = std::make_shared<cls_DataScores>();
        lists_[key] = list;
        modules().insert(key);
    }
    applySettings(key, *list);
    CoreParameters additional;
    additional.Unpack(result.additional);
    const Sender& sender = result.sender;
    const Variant rank =
        list->ADD(result.points, result.pointsMax, result.exercise, &additional, orUnknown(sender.userName),
                  orUnknown(sender.computer), orUnknown(sender.screenName), result.at);
    if (!rank.isEmpty()) {
        changed_.insert(key);
    }
    return rank.toText();
}

std::shared_ptr<cls_DataScores> HighscoreLists::list(StringView module)
{
    const String key = nameOf(module);
    auto list = known(key);
    if (!list) {
        list = std::make_shared<cls_DataScores>();
    }
    applySettings(key, *list);
    return list;
}

bool HighscoreLists::reset(StringView module)
{
    const String key = nameOf(module);
    const auto list = known(key);
    if (!list) {
        return false;
    }
    list->CLEAR();
    changed_.insert(key);
    return true;
}

void HighscoreLists::store()
{
    for (const String& key : changed_) {
        store_.keepScoreList(key, lists_.at(key)->DATA()->Pack());
    }
    changed_.clear();
}

void HighscoreLists::forget()
{
    lists_.clear();
    changed_.clear();
    modules_.reset();
}

std::shared_ptr<cls_DataScores> HighscoreLists::known(const String& key)
{
    if (!modules().contains(key)) {
        return nullptr;
    }
    auto& list = lists_[key];
    if (!list) {
        auto loaded = std::make_shared<cls_DataScores>();
        if (const auto packed = store_.scoreList(key)) {
            loaded->DATA()->Unpack(*packed);
        }
        list = std::move(loaded);
    }
    return list;
}

std::set<String>& HighscoreLists::modules()
{
    if (!modules_) {
        const auto stored = store_.modules();
        modules_.emplace(stored.begin(), stored.end());
    }
    return *modules_;
}

void HighscoreLists::applySettings(const String& key, cls_DataScores& list) const
{
    const NumberAtStart most = numberAtStart(settings_.Get(key + u".MAX").toText());
    const bool isSet = most.length > 0;
    list.MAXIMUM(isSet ? static_cast<int>(std::clamp(most.value, 1.0, double{MaxListLength}))
                       : DefaultListLength);
    list.ONCE(settings_.Get(key + u".ONCE", false).toBoolean());
}

} // namespace phial::master
