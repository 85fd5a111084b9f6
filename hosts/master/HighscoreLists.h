#pragma once

#include "core/CoreParameters.h"
#include "core/String.h"
#include "master/MasterStore.h"

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

/// The highscores of all modules, ranked by the score list's own rules. A module is named without regard to
/// case; its settings are `<module>.MAX`, how many entries the list keeps (10 unless set, at most
/// MaxListLength), and `<module>.ONCE`, whether it keeps only the best entry of each name.
///
/// Lists are read from the store when first needed and written back by `store`, each once however often it
/// has changed.
class HighscoreLists
{
public:
    static constexpr std::size_t MaxModuleLength = 64;
    static constexpr std::size_t MaxModules = 200;
    static constexpr int MaxListLength = 1000;

    /// Both must outlive the object.
    HighscoreLists(MasterStore& store, const CoreParameters& settings);
    ~HighscoreLists();
    HighscoreLists(const HighscoreLists&) = delete;
    HighscoreLists& operator=(const HighscoreLists&) = delete;

    /// The name under which a module's list is kept.
    static String nameOf(StringView module);

    /// Adds a result and gives its rank: "-1" for one that is not good enough, the empty text where the list
    /// keeps a better one of that name. No value when the module's name is too long, or the module would be
    /// one too many.
    std::optional<String> submit(StringView module, const Result& result);

    /// The list, empty for a module without one.
    std::shared_ptr<cls_DataScores> list(StringView module);
    /// Takes all entries out of a list; false when the module has none.
    bool reset(StringView module);

    /// Hands the changed lists to the store.
    void store();
    /// Drops what is in memory, so that the store's lists hold again.
    void forget();

private:
    /// The names of those that have a list.
    std::set<String>& modules();
    std::shared_ptr<cls_DataScores> known(const String& key);
    void applySettings(const String& key, cls_DataScores& list) const;

    MasterStore& store_;
    const CoreParameters& settings_;
    std::map<String, std::shared_ptr<cls_DataScores>> lists_;
    std::set<String> changed_;
    std::optional<std::set<String>> modules_;
};

} // namespace phial::master
