#include "chem/cls_DataElements.h"

#include "chem/ElementFileReader.h"
#include "chem/FormulaAnalysis.h"
#include "core/CoreCmdParser.h"
#include "core/CoreDataFile.h"
#include "core/CoreDialogs.h"
#include "core/CoreNumbers.h"
#include "core/CorePathText.h"
#include "core/CoreRoot.h"
#include "core/CoreValuePacker.h"
#include "core/Members.h"
#include "core/ProgramTitle.h"
#include "core/RecordFile.h"

namespace phial
{

namespace
{

constexpr StringView ElementsVersion = u"1.0";

constexpr Member ElementsMembers[] = {
    members::readOnly<cls_DataElements, std::int32_t, &cls_DataElements::COUNT>(u"COUNT"),
};

std::shared_ptr<cls_DataElement> newElement(StringView symbol, StringView names, std::int32_t protons,
                                            double mass)
{
    auto element = std::make_shared<cls_DataElement>();
    element->SYMBOL(String(symbol));
    element->PROTONS(protons);
    element->MOL(mass);
    if (names.find(u'*') == StringView::npos) {
        element->NAME(String(names));
        return element;
    }
    const CoreStringList parts = CoreCmdParser::Split(names, u"*");
    element->NAME(parts.Item(1));
    for (std::int32_t part = 2; part <= parts.Count(); ++part) {
        element->NAMEALT()->Add(parts.Item(part));
    }
    return element;
}

StringView withoutOuterBlanks(StringView text)
{
    const std::size_t first = text.find_first_not_of(u' ');
    return first == StringView::npos ? StringView()
                                     : text.substr(first, text.find_last_not_of(u' ') - first + 1);
}

double askForMass(StringView symbol, StringView formula)
{
    String prompt = u"Ich kenne das Element '";
    prompt.append(symbol)
        .append(u"' leider nicht. Gibt daher die molare Masse für ")
        .append(formula)
        .append(u" ein:");
    double mass = 0;
    CoreNumbers::ToDouble(coreRoot().CoreDialogs().Input(prompt, u"", u""), mass);
    return mass;
}

} // namespace

cls_DataElements::cls_DataElements() : data_(*this, programTitle() + u".cls_DataElements"), database_(*this)
{
}

std::shared_ptr<cls_DataElement> cls_DataElements::ITEM(const Variant& pID, bool pForceIndex)
{
    return std::static_pointer_cast<cls_DataElement>(database_.get()->Item(pID, pForceIndex));
}

bool cls_DataElements::REMOVE(const Variant& pID, bool pForceIndex)
{
    return database_.get()->Remove(pID, pForceIndex);
}

std::shared_ptr<cls_DataElement> cls_DataElements::ADD(const std::shared_ptr<cls_DataElement>& pEntry,
                                                       const std::optional<Variant>& pID)
{
    if (pID) {
        database_.get()->Import(pEntry, *pID);
    } else {
        database_.get()->Import(pEntry);
    }
    return ITEM(COUNT());
}

std::shared_ptr<cls_DataElement> cls_DataElements::CREATE(StringView pSymbol, StringView pName,
                                                          std::int32_t pProtons, double pMol)
{
    return ADD(newElement(pSymbol, pName, pProtons, pMol));
}

std::shared_ptr<cls_DataElement> cls_DataElements::CREATE2(StringView pSymbol, StringView pName,
                                                           std::int32_t pProtons, std::int32_t pPeri,
                                                           std::int32_t pGrup, double pMol)
{
    const auto element = newElement(pSymbol, pName, pProtons, pMol);
    element->Peri(pPeri);
    element->Grup(pGrup);
    return ADD(element);
}

bool cls_DataElements::LOAD(StringView pFile, StringView pPW)
{
    return loadRecord(*DATA(), pFile, pPW);
}

bool cls_DataElements::SAVE(StringView pFile, StringView pPW)
{
    return saveRecord(*DATA(), pFile, pPW);
}

bool cls_DataElements::IMPORT(StringView pFile)
{
    CoreDataFile file;
    file.Open(pFile, DataFileMode::Read);
    if (equalsIgnoringCase(CorePathText::FileName(pFile), u"ELEMENTS2.DAT")) {
        return IMPORT2(pFile);
    }
    return import(file, ElementFileReader(ElementFileReader::Format::ThreeLines));
}

bool cls_DataElements::IMPORT2(StringView pFile)
{
    CoreDataFile file;
    file.Open(pFile, DataFileMode::Read);
    if (equalsIgnoringCase(CorePathText::FileName(pFile), u"ELEMENTS.DAT")) {
        return IMPORT(pFile);
    }
    return import(file, ElementFileReader(ElementFileReader::Format::FiveLines));
}

bool cls_DataElements::import(CoreDataFile& file, ElementFileReader reader)
{
    std::int32_t protons = 0;
    while (!file.AtEnd()) {
        if (const auto record = reader.take(file.ReadLine())) {
            CREATE2(record->symbol, record->names, ++protons, record->period, record->group, record->mass)
                ->exactMass(record->exactMass);
        }
    }
    file.Close();
    return true;
}

CoreStringList cls_DataElements::ELEMENTS(StringView pReagent) const
{
    CoreStringList symbols;
    for (std::size_t position = 0; position < pReagent.size();) {
        if (const StringView symbol = nextSymbol(pReagent, position); !symbol.empty()) {
            symbols.Add(String(symbol));
        }
    }
    return symbols;
}

CoreTokenList cls_DataElements::ELEMENTSCOUNT(StringView pReagent) const
{
    CoreTokenList tokens;
    for (const AtomCount& atoms : AtomCounts(pReagent)) {
        tokens.Add(atoms.symbol, atoms.count);
    }
    return tokens;
}

double cls_DataElements::MOL(StringView pTerm) const
{
    double sum = 0;
    for (const AtomCount& atoms : AtomCounts(pTerm)) {
        const std::int32_t found = find(atoms.symbol);
        if (found == 0) {
            return askForMass(atoms.symbol, pTerm);
        }
        sum += entries_.at(found)->MOL() * atoms.count;
    }
    return sum;
}

std::optional<double> cls_DataElements::exactMass(StringView formula) const
{
    double sum = 0;
    for (const AtomCount& atoms : AtomCounts(formula)) {
        const std::int32_t found = find(atoms.symbol);
        if (found == 0) {
            return std::nullopt;
        }
        sum += entries_.at(found)->exactMass() * atoms.count;
    }
    return sum;
}

MemberTable cls_DataElements::members() const
{
    return ElementsMembers;
}

bool cls_DataElements::DataCopy(tmp_Data& pSource)
{
    auto* source = dynamic_cast<cls_DataElements*>(&pSource);
    if (!source) {
        return false;
    }
    data_.get()->ID(source->data_.get()->ID());
    entries_.copyFrom(*source->DATABASE());
    return true;
}

String cls_DataElements::DataPACK()
{
    return CoreValuePacker::Pack({data_.get()->ID(), entries_.packedArray()});
}

void cls_DataElements::DataUnpack(StringView pText)
{
    Variant id;
    Variant packed;
    CoreValuePacker::Unpack(pText, {id, packed});
    entries_.unpackArray(packed);
    data_.get()->ID(std::move(id));
}

void cls_DataElements::DataStore(CoreDataStream& pStream)
{
    pStream.Write(ElementsVersion, data_.get()->ID());
    entries_.store(pStream);
}

void cls_DataElements::DataRead(CoreDataStream& pStream)
{
    String version;
    pStream.Read(version);
    if (upperCase(version) != ElementsVersion) {
        return;
    }
    data_.get()->ID(pStream.ReadValue());
    entries_.read(pStream);
}

std::shared_ptr<tmp_Data> cls_DataElements::DataSpawn()
{
    return std::make_shared<cls_DataElements>();
}

void cls_DataElements::DatabaseClear()
{
    entries_.clear();
}

std::int32_t cls_DataElements::DatabaseCount()
{
    return entries_.count();
}

void cls_DataElements::DatabaseImport(const std::shared_ptr<tmp_Data>& pItem, const Variant* pID)
{
    entries_.import(pItem, pID);
}

std::shared_ptr<tmp_Data> cls_DataElements::DatabaseItem(std::int32_t pIndex)
{
    return entries_.at(pIndex);
}

ObjectPtr cls_DataElements::DatabaseItemObj(std::int32_t pIndex)
{
    return entries_.at(pIndex);
}

// The last entry takes the place of the removed one, so the order changes.
void cls_DataElements::DatabaseRemove(std::int32_t pIndex)
{
    entries_.removeAndFillWithLast(pIndex);
}

std::int32_t cls_DataElements::DatabaseSearch(const Variant& pKey)
{
    return pKey.isText()
               ? find(pKey.text())
               : entries_.find([&](const cls_DataElement& element) { return element.id() == pKey; });
}

std::int32_t cls_DataElements::find(StringView symbol) const
{
    const StringView key = withoutOuterBlanks(symbol);
    return entries_.find([&](const cls_DataElement& element) {
        return element.id().isText() && equalsIgnoringCase(withoutOuterBlanks(element.id().text()), key);
    });
}

} // namespace phial
