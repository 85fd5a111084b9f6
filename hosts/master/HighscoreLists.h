#pragma once

#include "core/String.h"
#include "master/MasterSettings.h"
#include "master/MasterStore.h"
#include "master/Notices.h"

#include <map>
#include <memory>
#include <optional>
#include <set>
#include <vector>

namespace phial
{
class cls_DataScores;
}

namespace phial::master
{

/// An entry of a list, as a teacher sees it.
struct HighscoreRow {
    std::int32_t rank = 0;
    String name;
    String computer;
    String exercise;
    double points = 0;
    double pointsMax = 0;
    Moment at;
};

/// The highscores of all modules, ranked by the score list's own rules. A module is named without regard to
/// case; how long its list is, and whether it keeps only the best entry of each name, is set by the teacher.
///
/// Lists are bounded, so that nobody can take what others need:
/// - A list of the chosen app, or one that the teacher has set rules for, can always begin. Of others there
///   are MaxModules, and one computer begins MaxOfComputer of them. What is taken away makes room.
/// - An entry takes MaxEntryBytes in the list that goes out. One with longer further values is kept without
///   them, one with longer names is refused. So a list of MaxListLength entries fits into one answer.
///
/// Lists are read from the store when first needed and written back by `store`, each once however often it
/// has changed.
class HighscoreLists
{
public:
    static constexpr std::size_t MaxModuleLength = 64;
    static constexpr std::size_t MaxModules = 200;
    static constexpr std::size_t MaxOfComputer = 12;
    static constexpr std::size_t MaxEntryBytes = 4000;

    /// Both must outlive the object.
    HighscoreLists(MasterStore& store, const MasterSettings& settings);
    ~HighscoreLists();
    HighscoreLists(const HighscoreLists&) = delete;
    HighscoreLists& operator=(const HighscoreLists&) = delete;

    /// The name under which a module's list is kept.
    static String nameOf(StringView module);

    /// Whether a list of that name can always begin.
    bool isReal(const String& key) const;
    /// The modules whose lists can always begin.
    void modulesOfApp(std::set<String> modules) { modulesOfApp_ = std::move(modules); }

    /// Adds a result that came from that computer and gives its rank: "-1" for one that is not good enough,
    /// the empty text where the list keeps a better one of that name. No value when it is refused, which the
    /// notices then tell.
    std::optional<String> submit(StringView module, const Result& result, const String& address,
                                 std::vector<NoticeCase>& rNotices);

    /// The answer that hands the list out; an empty one for a module without a list.
    std::shared_ptr<const String> answer(StringView module);
    std::vector<HighscoreRow> rows(StringView module);
    /// The modules that have a list, sorted, with what is known of their origin.
    std::vector<ListOrigin> origins();

    /// Takes a list away; false when the module has none.
    bool remove(StringView module);
    /// Takes the entry of that rank away and gives what it was; no value when there is none.
    std::optional<HighscoreRow> removeEntry(StringView module, std::int32_t rank);
    /// Puts the new name in the place of each of the old ones; gives in how many entries.
    std::size_t rename(const std::set<String>& from, const String& to);
    /// The names in all lists.
    std::set<String> names();

    /// Hands the changed lists to the store.
    void store();
    /// Drops what is in memory, so that the store's lists hold again.
    void forget();

private:
    struct Kept;

    std::map<String, ListOrigin>& known();
    Kept* find(const String& key);
    bool mayBegin(const String& key, const String& address, std::vector<NoticeCase>& rNotices);
    Kept& begin(const String& key, const Result& result, const String& address,
                std::vector<NoticeCase>& rNotices);
    void load(const String& key, Kept& kept);
    void applyRules(const String& key, cls_DataScores& list) const;
    void changed(const String& key, Kept& kept);

    MasterStore& store_;
    const MasterSettings& settings_;
    std::set<String> modulesOfApp_;
    std::map<String, std::unique_ptr<Kept>> lists_;
    std::set<String> changed_;
    std::set<String> removed_;
    std::vector<ListOrigin> begun_;
    std::optional<std::map<String, ListOrigin>> known_;
};

} // namespace phial::master
