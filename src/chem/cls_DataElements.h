#pragma once

#include "chem/cls_DataElement.h"
#include "core/CoreDatabase.h"
#include "core/CoreTokenList.h"
#include "core/RecordEntries.h"
#include "core/tmp_Database.h"

#include <cstdint>
#include <memory>
#include <optional>

namespace phial
{

class CoreDataFile;
class ElementFileReader;

/// The table of elements: an ordered list record, counted from 1, and what is computed from it.
///
/// A table filled from a file has the elements in the order of their proton numbers, with one-decimal molar
/// masses. Nothing keeps a symbol from standing in it twice; a search finds the first. Searching disregards
/// case and outer blanks, so "CO" finds cobalt.
class cls_DataElements : public tmp_Data,
                         public tmp_Database,
                         public Object,
                         private DataOwner,
                         private DatabaseOwner
{
public:
    cls_DataElements();

    /// The record's header and its list engine. Setting null raises 91.
    std::shared_ptr<phial::DATA> DATA() override { return data_.get(); }
    void DATA(std::shared_ptr<phial::DATA> value) { data_.set(std::move(value)); }
    std::shared_ptr<CoreDatabase> DATABASE() override { return database_.get(); }
    void DATABASE(std::shared_ptr<CoreDatabase> value) { database_.set(std::move(value)); }

    /// The entry at a position, or with `pForceIndex` false the one whose symbol is searched. Raises 9 when
    /// there is none. Never null.
    std::shared_ptr<cls_DataElement> ITEM(const Variant& pID, bool pForceIndex = true);
    /// Whether a search finds the symbol.
    bool EXISTS(const Variant& pID) const { return database_.get()->Exists(pID); }
    std::int32_t COUNT() const { return database_.get()->Count(); }

    /// Removes an entry, found by its symbol or with `pForceIndex` by its position; the last entry takes its
    /// place. False when there is none.
    bool REMOVE(const Variant& pID, bool pForceIndex = false);

    /// Appends the entry (91 for null). An ID that is given becomes its symbol.
    std::shared_ptr<cls_DataElement> ADD(const std::shared_ptr<cls_DataElement>& pEntry,
                                         const std::optional<Variant>& pID = std::nullopt);

    /// Appends a new element. `pName` is a name or a list `Name*Alternative*...`; the mass is taken as it is.
    std::shared_ptr<cls_DataElement> CREATE(StringView pSymbol, StringView pName, std::int32_t pProtons,
                                            double pMol);
    std::shared_ptr<cls_DataElement> CREATE2(StringView pSymbol, StringView pName, std::int32_t pProtons,
                                             std::int32_t pPeri, std::int32_t pGrup, double pMol);

    /// Reads the table from a record file, or writes it. False when any step fails; what was read until then
    /// stays.
    bool LOAD(StringView pFile, StringView pPW = {});
    bool SAVE(StringView pFile, StringView pPW = {});

    /// Appends the elements of a text file with three lines (`IMPORT`) or five lines (`IMPORT2`) an element;
    /// see `ElementFileReader`. A file named "ELEMENTS2.DAT" or "ELEMENTS.DAT", whatever its case, has the
    /// format that its name tells, whichever operation is called. The proton number is the place in the file.
    /// An unfinished record at its end is dropped. True at the end; a file that cannot be read raises its
    /// error (53 if it is not there).
    bool IMPORT(StringView pFile);
    bool IMPORT2(StringView pFile);

    /// The symbols in a sum formula in plain notation, in order of appearance, repeats included. They need
    /// not be in the table.
    CoreStringList ELEMENTS(StringView pReagent) const;

    /// The atoms of each element in a formula, one token a symbol, in the order of first appearance; the
    /// token's first value is the count, which may be 0. `AtomCounts` tells how a formula is read. Raises 6
    /// for a number behind a group that does not fit into 32 bits.
    CoreTokenList ELEMENTSCOUNT(StringView pReagent) const;

    /// The molar mass of a formula in g/mol, not rounded. If it holds a symbol that the table lacks, the user
    /// is asked once, and what he enters is the result for the whole formula. Raises 6 as `ELEMENTSCOUNT`.
    double MOL(StringView pTerm) const;
    /// The same by the masses with all digits; none where the table lacks a symbol, and nobody is asked.
    std::optional<double> exactMass(StringView formula) const;

    StringView typeName() const override { return u"cls_DataElements"; }
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

    std::int32_t find(StringView symbol) const;
    bool import(CoreDataFile& file, ElementFileReader reader);

    DataHolder data_;
    DatabaseHolder database_;
    RecordEntries<cls_DataElement> entries_;
};

} // namespace phial
