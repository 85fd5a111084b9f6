#include "chem/cls_DataElement.h"

#include "core/CoreDataStream.h"
#include "core/CoreValuePacker.h"
#include "core/Members.h"
#include "core/ProgramTitle.h"
#include "core/RecordFile.h"

#include <algorithm>
#include <array>

namespace phial
{

namespace
{

// States at room temperature.
constexpr std::array<StringView, 11> Gases = {u"H",  u"N",  u"O",  u"F",  u"Cl", u"He",
                                              u"Ne", u"Ar", u"Kr", u"Xe", u"Rn"};
constexpr std::array<StringView, 3> Liquids = {u"Hg", u"Br", u"Cn"};
constexpr std::array<StringView, 7> TwoAtomMolecules = {u"H", u"N", u"O", u"F", u"Cl", u"Br", u"I"};

constexpr StringView ElementVersion = u"1.1";
constexpr StringView OldestVersion = u"1.0";
constexpr StringView FirstVersionWithAlternatives = u"1.1";

constexpr Member ElementMembers[] = {
    {u"NAME", [](Object& object) { return Variant(static_cast<cls_DataElement&>(object).NAME()); },
     [](Object& object, const Variant& value) {
         static_cast<cls_DataElement&>(object).NAME(value.toText());
     }},
    members::property<cls_DataElement, double, &cls_DataElement::MOL, &cls_DataElement::MOL>(u"MOL"),
    members::property<cls_DataElement, std::int32_t, &cls_DataElement::PROTONS, &cls_DataElement::PROTONS>(
        u"PROTONS"),
    members::property<cls_DataElement, String, &cls_DataElement::SYMBOL, &cls_DataElement::SYMBOL>(u"SYMBOL"),
    members::property<cls_DataElement, std::int32_t, &cls_DataElement::Peri, &cls_DataElement::Peri>(u"Peri"),
    members::property<cls_DataElement, std::int32_t, &cls_DataElement::Grup, &cls_DataElement::Grup>(u"Grup"),
    members::readOnly<cls_DataElement, String, &cls_DataElement::NAMELIST>(u"NAMELIST"),
    members::readOnly<cls_DataElement, bool, &cls_DataElement::GAS>(u"GAS"),
    members::readOnly<cls_DataElement, bool, &cls_DataElement::LIQUID>(u"LIQUID"),
    members::readOnly<cls_DataElement, bool, &cls_DataElement::DOUBLEATOMS>(u"DOUBLEATOMS"),
};

String packed(const CoreStringList& list)
{
    return CoreValuePacker::Pack(std::vector<Variant>(list.begin(), list.end()));
}

CoreStringList unpackedList(StringView text)
{
    CoreStringList list;
    for (const Variant& entry : CoreValuePacker::unpackAll(text)) {
        list.Add(entry.toText());
    }
    return list;
}

// A list as a nested record: its count and its entries.
void storeList(CoreDataStream& stream, const CoreStringList& list)
{
    stream.Write(list.Count());
    for (const String& entry : list) {
        stream.Write(entry);
    }
}

CoreStringList readList(CoreDataStream& stream)
{
    CoreStringList list;
    std::int32_t count = 0;
    for (stream.Read(count); count > 0; --count) {
        String entry;
        stream.Read(entry);
        list.Add(std::move(entry));
    }
    return list;
}

} // namespace

cls_DataElement::cls_DataElement() : data_(*this, programTitle() + u".cls_DataElement") {}

std::shared_ptr<CoreStringList> cls_DataElement::NAMEALT()
{
    if (!alternatives_) {
        alternatives_ = std::make_shared<CoreStringList>();
    }
    return alternatives_;
}

bool cls_DataElement::LOAD(StringView pFile, StringView pPW)
{
    return loadRecord(*DATA(), pFile, pPW);
}

bool cls_DataElement::SAVE(StringView pFile, StringView pPW)
{
    return saveRecord(*DATA(), pFile, pPW);
}

bool cls_DataElement::MATCH(StringView pT, bool pIgnoreCases) const
{
    const auto matches = [&](const String& name) {
        return pIgnoreCases ? equalsIgnoringCase(name, pT) : name == pT;
    };
    return matches(name_) || (alternatives_ && std::ranges::any_of(*alternatives_, matches));
}

void cls_DataElement::MOL(double value)
{
    mass_ = value;
    exactMass_.reset();
}

String cls_DataElement::NAMELIST() const
{
    String names = name_;
    if (alternatives_) {
        for (const String& alternative : *alternatives_) {
            names += u'*';
            names += alternative;
        }
    }
    return names;
}

bool cls_DataElement::GAS() const
{
    return std::ranges::find(Gases, SYMBOL()) != Gases.end();
}

bool cls_DataElement::LIQUID() const
{
    return std::ranges::find(Liquids, SYMBOL()) != Liquids.end();
}

bool cls_DataElement::DOUBLEATOMS() const
{
    return std::ranges::find(TwoAtomMolecules, SYMBOL()) != TwoAtomMolecules.end();
}

MemberTable cls_DataElement::members() const
{
    return ElementMembers;
}

bool cls_DataElement::DataCopy(tmp_Data& pSource)
{
    auto* source = dynamic_cast<cls_DataElement*>(&pSource);
    if (!source) {
        return false;
    }
    data_.get()->ID(source->data_.get()->ID());
    *NAMEALT() = *source->NAMEALT();
    name_ = source->name_;
    mass_ = source->mass_;
    exactMass_ = source->exactMass_;
    protons_ = source->protons_;
    period_ = source->period_;
    group_ = source->group_;
    return true;
}

String cls_DataElement::DataPACK()
{
    return CoreValuePacker::Pack({data_.get()->ID(), name_, mass_, protons_, packed(*NAMEALT())});
}

void cls_DataElement::DataUnpack(StringView pText)
{
    Variant id;
    Variant name;
    Variant mass;
    Variant protons;
    Variant alternatives;
    CoreValuePacker::Unpack(pText, {id, name, mass, protons, alternatives});
    *NAMEALT() = unpackedList(alternatives.toText());
    name_ = name.toText();
    MOL(mass.toReal());
    protons_ = protons.toWhole();
    data_.get()->ID(std::move(id));
}

void cls_DataElement::DataStore(CoreDataStream& pStream)
{
    pStream.Write(ElementVersion, data_.get()->ID(), name_, mass_, protons_);
    storeList(pStream, *NAMEALT());
}

void cls_DataElement::DataRead(CoreDataStream& pStream)
{
    String version;
    pStream.Read(version);
    version = upperCase(version);
    if (version < OldestVersion || version > ElementVersion) {
        return;
    }
    data_.get()->ID(pStream.ReadValue());
    pStream.Read(name_, mass_, protons_);
    exactMass_.reset();
    if (version >= FirstVersionWithAlternatives) {
        *NAMEALT() = readList(pStream);
    }
}

std::shared_ptr<tmp_Data> cls_DataElement::DataSpawn()
{
    return std::make_shared<cls_DataElement>();
}

} // namespace phial
