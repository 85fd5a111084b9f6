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

#include <algorithm>

namespace phial
{

namespace
{

constexpr StringView StoredVersion = u"1.0";

// What a record file may claim to hold; far above any table, far below what would exhaust memory.
constexpr std::int32_t MaxStoredElements = 100'000;

constexpr Member Table[] = {
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
            CREATE2(record->symbol, record->names, ++protons, record->period, record->group, record->mass);
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
        const auto found = find(atoms.symbol);
        if (found == entries_.end()) {
            return askForMass(atoms.symbol, pTerm);
        }
        sum += (*found)->MOL() * atoms.count;
    }
    return sum;
}

MemberTable cls_DataElements::members() const
{
    return Table;
}

bool cls_DataElements::DataCopy(tmp_Data& pSource)
{
    auto* source = dynamic_cast<cls_DataElements*>(&pSource);
    if (!source) {
        return false;
    }
    std::vector<std::shared_ptr<cls_DataElement>> copies;
    for (std::int32_t index = 1; index <= source->COUNT(); ++index) {
        copies.push_back(std::make_shared<cls_DataElement>());
        copies.back()->DATA()->Copy(*source->ITEM(index));
    }
    data_.get()->ID(source->data_.get()->ID());
    entries_ = std::move(copies);
    return true;
}

// The array holds each entry in its own one-text form.
String cls_DataElements::DataPACK()
{
    Variant::Array packed;
    for (std::int32_t index = 1; index <= DatabaseCount(); ++index) {
        packed.emplace_back(entry(index)->DATA()->Pack());
    }
    return CoreValuePacker::Pack({data_.get()->ID(), Variant(std::move(packed))});
}

void cls_DataElements::DataUnpack(StringView pText)
{
    Variant id;
    Variant packed;
    CoreValuePacker::Unpack(pText, {id, packed});
    std::vector<std::shared_ptr<cls_DataElement>> entries;
    for (const Variant& text : packed.array()) {
        entries.push_back(std::make_shared<cls_DataElement>());
        entries.back()->DATA()->Unpack(text.text());
    }
    data_.get()->ID(std::move(id));
    entries_ = std::move(entries);
}

void cls_DataElements::DataStore(CoreDataStream& pStream)
{
    pStream.Write(StoredVersion, data_.get()->ID(), DatabaseCount());
    for (std::int32_t index = 1; index <= DatabaseCount(); ++index) {
        entry(index)->DATA()->Store(pStream);
    }
}

void cls_DataElements::DataRead(CoreDataStream& pStream)
{
    String version;
    pStream.Read(version);
    if (upperCase(version) != StoredVersion) {
        return;
    }
    data_.get()->ID(pStream.ReadValue());
    std::int32_t count = 0;
    pStream.Read(count);
    if (count < 0 || count > MaxStoredElements) {
        throw RuntimeError(ErrorNumber::IndexOutOfBounds);
    }
    entries_.assign(static_cast<std::size_t>(count), nullptr);
    for (auto& slot : entries_) {
        slot = std::make_shared<cls_DataElement>();
        slot->DATA()->Read(pStream);
    }
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
    return static_cast<std::int32_t>(entries_.size());
}

void cls_DataElements::DatabaseImport(const std::shared_ptr<tmp_Data>& pItem, const Variant* pID)
{
    auto element = std::dynamic_pointer_cast<cls_DataElement>(pItem);
    if (!element) {
        throw RuntimeError(ErrorNumber::TypeMismatch);
    }
    if (pID) {
        element->DATA()->ID(*pID);
    }
    entries_.push_back(std::move(element));
}

std::shared_ptr<tmp_Data> cls_DataElements::DatabaseItem(std::int32_t pIndex)
{
    return entry(pIndex);
}

ObjectPtr cls_DataElements::DatabaseItemObj(std::int32_t pIndex)
{
    return entry(pIndex);
}

// The last entry takes the place of the removed one, so the order changes.
void cls_DataElements::DatabaseRemove(std::int32_t pIndex)
{
    slot(pIndex) = entries_.back();
    entries_.pop_back();
}

std::int32_t cls_DataElements::DatabaseSearch(const Variant& pKey)
{
    const auto found =
        pKey.isText() ? find(pKey.text()) : std::ranges::find_if(entries_, [&](const auto& element) {
            return element && element->id() == pKey;
        });
    return found == entries_.end() ? 0 : static_cast<std::int32_t>(found - entries_.begin()) + 1;
}

cls_DataElements::Entries::const_iterator cls_DataElements::find(StringView symbol) const
{
    const StringView key = withoutOuterBlanks(symbol);
    return std::ranges::find_if(entries_, [&](const auto& element) {
        return element && element->id().isText() &&
               equalsIgnoringCase(withoutOuterBlanks(element->id().text()), key);
    });
}

std::shared_ptr<cls_DataElement>& cls_DataElements::slot(std::int32_t index)
{
    if (index < 1 || index > DatabaseCount()) {
        throw RuntimeError(ErrorNumber::IndexOutOfBounds);
    }
    return entries_[static_cast<std::size_t>(index) - 1];
}

const std::shared_ptr<cls_DataElement>& cls_DataElements::entry(std::int32_t index)
{
    auto& element = slot(index);
    if (!element) {
        element = std::make_shared<cls_DataElement>();
    }
    return element;
}

} // namespace phial
