#pragma once

#include "core/CoreDatabase.h"
#include "core/RecordEntries.h"
#include "core/tmp_Database.h"
#include "results/cls_DataScore.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <utility>

namespace phial
{

enum class enm_ScoreListMode : std::int32_t {
    ID_ScoreList_Highscore = 1,
    ID_ScoreList_ResultList = 2,
};

/// The list of results of a learning module: a highscore of limited length, a list with one entry a user, or
/// an open list of results by time.
///
/// A search finds an entry by its shown name, whatever its case and outer blanks. After `SORT` the entry in
/// slot n of a list that is no result list has the rank n.
class cls_DataScores : public tmp_Data,
                       public tmp_Database,
                       public Object,
                       private DataOwner,
                       private DatabaseOwner
{
public:
    cls_DataScores();

    std::shared_ptr<phial::DATA> DATA() override { return data_.get(); }
    void DATA(std::shared_ptr<phial::DATA> value) { data_.set(std::move(value)); }
    std::shared_ptr<CoreDatabase> DATABASE() override { return database_.get(); }
    void DATABASE(std::shared_ptr<CoreDatabase> value) { database_.set(std::move(value)); }

    enm_ScoreListMode MODE() const { return mode_; }
    void MODE(enm_ScoreListMode value) { mode_ = value; }
    /// The highest rank that a highscore keeps; 10 at first.
    std::int32_t MAXIMUM() const { return maximum_; }
    void MAXIMUM(std::int32_t value) { maximum_ = value; }
    /// A highscore keeps only the best entry of each name.
    bool ONCE() const { return once_; }
    void ONCE(bool value) { once_ = value; }
    /// A highscore keeps one entry a name, the latest, without limit, ordered by login from Z to A.
    bool LIVE() const { return live_; }
    void LIVE(bool value) { live_ = value; }

    /// The entry at a position, or with `pForceIndex` false the first of that name; raises 9 when there is
    /// none.
    std::shared_ptr<cls_DataScore> ITEM(const Variant& pID, bool pForceIndex = true);
    bool EXISTS(const Variant& pID) const { return database_.get()->Exists(pID); }
    std::int32_t COUNT() const { return database_.get()->Count(); }
    /// Removes the first entry of a name, or with `pForceIndex` the one at a position, and sorts. False when
    /// there is none.
    bool REMOVE(const Variant& pID, bool pForceIndex = false);

    /// Adds an entry; empty names are those of the login, the computer and `cls_AppUser`, moment 0 is now.
    /// Gives the slot in which it stands then; when the list does not keep it, its rank (-1, or one beyond
    /// the end); the empty value when `ONCE` keeps a better one of that name, and nothing has changed. Raises
    /// 5 for points that are no finite number.
    Variant ADD(double pPoints, double pPointsMax, StringView pUEBM,
                const CoreParameters* pAdditional = nullptr, StringView pUserName = {},
                StringView pComputerName = {}, StringView pScreenName = {}, Moment pTimeStamp = {});

    /// Shortens a highscore to the limit, -1 being `MAXIMUM`; 0 and less do nothing.
    void CUT(std::int32_t pCutLimit = -1);
    void SORT();
    /// The rank that so many points would get: -1 when they beat nobody and the list is as good as full. The
    /// last place is reached only by beating somebody.
    std::int32_t RANK(double pPoints);
    void CLEAR();

    /// Reads the list from a record file, or writes it. False when any step fails.
    bool LOAD(StringView pFile, StringView pPW = {});
    bool SAVE(StringView pFile, StringView pPW = {});

    /// Shows rank, name and points of each entry in a box.
    void DEBUGSHOW();
    /// The list as a text divided by tabs.
    String TEXT();
    /// Asks for a file and writes `TEXT` into it; false when the user does not choose one. A failing write is
    /// raised.
    bool EXPORT(StringView pFile = {});
    /// Prints the list in landscape under that title. A printer's failure is raised.
    void PRINTOUT(StringView pName);

    /// Shows a copy of the list in a window, with the rank stressed. `SHOWLOCAL` offers to reset the list,
    /// which clears this one when the window has closed. Neither saves.
    void SHOW(StringView pTitle = {}, std::int32_t pRank = 0, std::optional<bool> pShowScore = std::nullopt);
    void SHOWLOCAL(StringView pTitle = {}, std::int32_t pRank = 0,
                   std::optional<bool> pShowScore = std::nullopt);

    StringView typeName() const override { return u"cls_DataScores"; }
    MemberTable members() const override;

private:
    void removeAll(const Variant& name);
    template <typename KeyOf>
    void sortBy(const KeyOf& keyOf);

    bool DataCopy(tmp_Data& pSource) override;
    String DataPACK() override;
    void DataUnpack(StringView pText) override;
    void DataStore(CoreDataStream& pStream) override;
    void DataRead(CoreDataStream& pStream) override;
    std::shared_ptr<tmp_Data> DataSpawn() override;

    void DatabaseClear() override;
    std::int32_t DatabaseCount() override;
    void DatabaseImport(const std::shared_ptr<tmp_Data>& pItem, const Variant* pID) override;
    std::shared_ptr<tmp_Data> DatabaseItem(std::int32_t pIndex) override;
    ObjectPtr DatabaseItemObj(std::int32_t pIndex) override;
    void DatabaseRemove(std::int32_t pIndex) override;
    std::int32_t DatabaseSearch(const Variant& pKey) override;

    DataHolder data_;
    DatabaseHolder database_;
    enm_ScoreListMode mode_ = enm_ScoreListMode::ID_ScoreList_Highscore;
    std::int32_t maximum_ = 10;
    bool once_ = false;
    bool live_ = false;
    RecordEntries<cls_DataScore> entries_;
};

} // namespace phial
