#pragma once

#include "core/CoreStringList.h"
#include "core/DATA.h"
#include "core/DataOwner.h"
#include "core/Object.h"
#include "core/tmp_Data.h"

#include <cstdint>
#include <memory>
#include <optional>

namespace phial
{

/// One chemical element: a record whose ID is the symbol.
///
/// Stored and packed it carries symbol, names, molar mass and proton number; period, group and the digits of
/// the mass go with `Copy` alone, so an element that comes from a record file has 0 for both.
class cls_DataElement : public tmp_Data, public Object, private DataOwner
{
public:
    cls_DataElement();

    /// The main name, such as "Wasserstoff".
    const String& NAME() const { return name_; }
    void NAME(String value) { name_ = std::move(value); }

    /// Further names that are accepted, in the order of the file. Never null.
    std::shared_ptr<CoreStringList> NAMEALT();
    void NAMEALT(std::shared_ptr<CoreStringList> value) { alternatives_ = std::move(value); }

    /// The molar mass in g/mol.
    double MOL() const { return mass_; }
    void MOL(double value);
    /// The molar mass with all digits of the element file, in g/mol; the other one where none is known. It
    /// is unknown once the other one is set, stored or packed.
    double exactMass() const { return exactMass_.value_or(mass_); }
    void exactMass(double value) { exactMass_ = value; }

    /// The proton number, from 1.
    std::int32_t PROTONS() const { return protons_; }
    void PROTONS(std::int32_t value) { protons_ = value; }

    /// The record's header. Setting null raises 91.
    std::shared_ptr<phial::DATA> DATA() override { return data_.get(); }
    void DATA(std::shared_ptr<phial::DATA> value) { data_.set(std::move(value)); }

    /// The symbol: the ID of `DATA`.
    String SYMBOL() const { return data_.get()->ID().toText(); }
    void SYMBOL(String value) { data_.get()->ID(std::move(value)); }

    /// The same ID as it is kept, whatever kind of value it is.
    const Variant& id() const { return data_.get()->ID(); }

    /// Reads this one element from a record file, or writes it. False when any step fails.
    bool LOAD(StringView pFile, StringView pPW = {});
    bool SAVE(StringView pFile, StringView pPW = {});

    /// Whether the text is one of the element's names. The symbol is none.
    bool MATCH(StringView pT, bool pIgnoreCases = false) const;

    /// All names in the form of the element files: `Name*Alternative*...`.
    String NAMELIST() const;

    /// The state at room temperature, and whether the element occurs as molecules of two atoms. The symbol
    /// decides, its case included.
    bool GAS() const;
    bool LIQUID() const;
    bool DOUBLEATOMS() const;

    /// Period and group of the periodic table; group 0 for an element of the two rows below the table.
    std::int32_t Peri() const { return period_; }
    void Peri(std::int32_t value) { period_ = value; }
    std::int32_t Grup() const { return group_; }
    void Grup(std::int32_t value) { group_ = value; }

    StringView typeName() const override { return u"cls_DataElement"; }
    MemberTable members() const override;

private:
    bool DataCopy(tmp_Data& pSource) override;
    String DataPACK() override;
    void DataUnpack(StringView pText) override;
    void DataStore(CoreDataStream& pStream) override;
    void DataRead(CoreDataStream& pStream) override;
    std::shared_ptr<tmp_Data> DataSpawn() override;

    DataHolder data_;
    String name_;
    std::shared_ptr<CoreStringList> alternatives_; // made at first use
    double mass_ = 0;
    std::optional<double> exactMass_;
    std::int32_t protons_ = 0;
    std::int32_t period_ = 0;
    std::int32_t group_ = 0;
};

} // namespace phial
