#pragma once

#include "core/CoreDatabase.h"
#include "core/CoreParameters.h"
#include "core/DATA.h"
#include "core/Moment.h"
#include "core/Object.h"
#include "core/RecordEntries.h"
#include "core/tmp_Data.h"
#include "core/tmp_Database.h"
#include "results/cls_DataEvent.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <utility>

namespace phial
{

/// The log of what users did, in the order of adding until one is removed: the last entry takes the place of
/// a removed one. A search finds an entry by the ID of its header; the empty text finds the first one without
/// ID, as `ADD` makes them.
class cls_DataEvents : public tmp_Data,
                       public tmp_Database,
                       public Object,
                       private DataOwner,
                       private DatabaseOwner
{
public:
    cls_DataEvents();

    std::shared_ptr<phial::DATA> DATA() override { return data_.get(); }
    void DATA(std::shared_ptr<phial::DATA> value) { data_.set(std::move(value)); }
    std::shared_ptr<CoreDatabase> DATABASE() override { return database_.get(); }
    void DATABASE(std::shared_ptr<CoreDatabase> value) { database_.set(std::move(value)); }

    /// The entry at a position, or with `pForceIndex` false the one with that ID; raises 9 when there is
    /// none.
    std::shared_ptr<cls_DataEvent> ITEM(const Variant& pID, bool pForceIndex = true);
    bool EXISTS(const Variant& pID) const { return database_.get()->Exists(pID); }
    std::int32_t COUNT() const { return database_.get()->Count(); }
    /// Removes the entry with that ID, or with `pForceIndex` the one at a position. False when there is none.
    bool REMOVE(const Variant& pID, bool pForceIndex = false);

    /// Adds an entry of this moment, whatever `pTimeStamp` says; empty names as in `cls_DataScores`. The
    /// result is the new entry, which has no ID.
    Variant ADD(StringView pAction, const CoreParameters* pAdditional = nullptr, StringView pUserName = {},
                StringView pComputerName = {}, StringView pScreenName = {}, Moment pTimeStamp = {});
    /// Adds an empty entry with that ID, or without one.
    std::shared_ptr<cls_DataEvent> CREATE(const std::optional<Variant>& pID = std::nullopt);
    void CLEAR();

    /// Reads the log from a record file, or writes it. False when any step fails.
    bool LOAD(StringView pFile, StringView pPW = {});
    bool SAVE(StringView pFile, StringView pPW = {});

    /// Shows position, login and action of each entry in a box.
    void DEBUGSHOW();
    /// The log as a text divided by tabs.
    String TEXT();
    /// Asks for a file and writes `TEXT` into it, in the dialog of score lists; false when the user does not
    /// choose one. A failing write is raised.
    bool EXPORT(StringView pFile = {});
    /// Prints the log in landscape under that title. A printer's failure is raised.
    void PRINTOUT(StringView pName);

    StringView typeName() const override { return u"cls_DataEvents"; }
    MemberTable members() const override;

private:
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
    RecordEntries<cls_DataEvent> entries_;
};

} // namespace phial
