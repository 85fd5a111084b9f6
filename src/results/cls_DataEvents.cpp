#include "results/cls_DataEvents.h"

#include "core/CoreDialogs.h"
#include "core/CoreRoot.h"
#include "core/CoreValuePacker.h"
#include "core/Members.h"
#include "core/ProgramTitle.h"
#include "core/RecordFile.h"
#include "results/ListExport.h"
#include "results/ListPrint.h"
#include "results/ListRecord.h"
#include "visual/OneLine.h"

#include <array>

namespace phial
{

namespace
{

constexpr StringView EventsVersion = u"2.0";

// The lines have no running number, so that each title stands one column to the right.
constexpr std::array<StringView, 8> EventTitles = {u"LfdNr.", u"Name", u"Login",  u"Computer",
                                                   u"Datum",  u"Zeit", u"Aktion", u"Zusatz"};

constexpr std::array<PrintedColumn, 7> EventColumns = {{
    {0, u"Lfd.Nr."},
    {0.05, u"Name"},
    {0.25, u"Login"},
    {0.35, u"Computer"},
    {0.55, u"Aktion"},
    {0.75, u"Datum"},
    {0.9, u"Zusatz"},
}};

std::vector<String> printedRow(std::int32_t position, cls_DataEvent& event)
{
    return {
        Variant(position).toText(),
        event.SCREENNAME(),
        event.USERNAME(),
        event.COMPUTER(),
        event.ACTION(),
        printedMoment(event.TIMESTAMP()),
        event.ADDITIONAL()->TextLine(),
    };
}

constexpr Member EventsMembers[] = {
    members::readOnly<cls_DataEvents, std::int32_t, &cls_DataEvents::COUNT>(u"COUNT"),
};

} // namespace

cls_DataEvents::cls_DataEvents() : data_(*this, programTitle() + u".cls_DataEvents"), database_(*this) {}

std::shared_ptr<cls_DataEvent> cls_DataEvents::ITEM(const Variant& pID, bool pForceIndex)
{
    return std::static_pointer_cast<cls_DataEvent>(database_.get()->Item(pID, pForceIndex));
}

bool cls_DataEvents::REMOVE(const Variant& pID, bool pForceIndex)
{
    return database_.get()->Remove(pID, pForceIndex);
}

Variant cls_DataEvents::ADD(StringView pAction, const CoreParameters* pAdditional, StringView pUserName,
                            StringView pComputerName, StringView pScreenName, Moment /*pTimeStamp*/)
{
    EntryNames names = completed({String(pUserName), String(pComputerName), String(pScreenName)});
    const auto event = std::make_shared<cls_DataEvent>();
    event->ACTION(String(pAction));
    if (pAdditional) {
        event->ADDITIONAL()->CopyFrom(*pAdditional);
    }
    event->USERNAME(std::move(names.user));
    event->COMPUTER(std::move(names.computer));
    event->SCREENNAME(std::move(names.screen));
    event->TIMESTAMP(presentMoment());
    database_.get()->Import(event);
    return Variant(ObjectPtr(ITEM(COUNT())));
}

std::shared_ptr<cls_DataEvent> cls_DataEvents::CREATE(const std::optional<Variant>& pID)
{
    const auto event = std::make_shared<cls_DataEvent>();
    if (pID) {
        database_.get()->Import(event, *pID);
    } else {
        database_.get()->Import(event);
    }
    return ITEM(COUNT());
}

void cls_DataEvents::CLEAR()
{
    database_.get()->Clear();
}

bool cls_DataEvents::LOAD(StringView pFile, StringView pPW)
{
    return loadRecord(*DATA(), pFile, pPW);
}

bool cls_DataEvents::SAVE(StringView pFile, StringView pPW)
{
    return saveRecord(*DATA(), pFile, pPW);
}

void cls_DataEvents::DEBUGSHOW()
{
    String text;
    std::int32_t position = 0;
    entries_.forEach([&](const cls_DataEvent& event) {
        text += Variant(++position).toText() + u". " + oneLine(event.USERNAME()) + u" " +
                oneLine(event.ACTION()) + u"\r\n";
    });
    coreRoot().CoreDialogs().Text(text, u"Info:");
}

String cls_DataEvents::TEXT()
{
    String text = headerLine(EventTitles);
    entries_.forEach([&](cls_DataEvent& event) { text += event.TEXTLINE() + u"\r\n"; });
    return text;
}

bool cls_DataEvents::EXPORT(StringView pFile)
{
    return exportText(pFile, TEXT());
}

void cls_DataEvents::PRINTOUT(StringView pName)
{
    printList(pName, EventColumns, entries_.count(),
              [&](std::int32_t position) { return printedRow(position, *entries_.at(position)); });
}

MemberTable cls_DataEvents::members() const
{
    return EventsMembers;
}

bool cls_DataEvents::DataCopy(tmp_Data& pSource)
{
    auto* source = dynamic_cast<cls_DataEvents*>(&pSource);
    if (!source) {
        return false;
    }
    data_.get()->ID(source->data_.get()->ID());
    entries_.copyFrom(*source->DATABASE());
    return true;
}

String cls_DataEvents::DataPACK()
{
    return CoreValuePacker::Pack({data_.get()->ID(), entries_.packedArray()});
}

void cls_DataEvents::DataUnpack(StringView pText)
{
    Variant id;
    Variant packed;
    CoreValuePacker::Unpack(pText, {id, packed});
    entries_.unpackArray(packed);
    data_.get()->ID(std::move(id));
}

void cls_DataEvents::DataStore(CoreDataStream& pStream)
{
    pStream.Write(EventsVersion, data_.get()->ID());
    entries_.store(pStream);
}

void cls_DataEvents::DataRead(CoreDataStream& pStream)
{
    String version;
    pStream.Read(version);
    if (upperCase(version) != EventsVersion) {
        return;
    }
    data_.get()->ID(pStream.ReadValue());
    entries_.read(pStream);
}

std::shared_ptr<tmp_Data> cls_DataEvents::DataSpawn()
{
    return std::make_shared<cls_DataEvents>();
}

void cls_DataEvents::DatabaseClear()
{
    entries_.clear();
}

std::int32_t cls_DataEvents::DatabaseCount()
{
    return entries_.count();
}

void cls_DataEvents::DatabaseImport(const std::shared_ptr<tmp_Data>& pItem, const Variant* pID)
{
    entries_.import(pItem, pID);
}

std::shared_ptr<tmp_Data> cls_DataEvents::DatabaseItem(std::int32_t pIndex)
{
    return entries_.at(pIndex);
}

ObjectPtr cls_DataEvents::DatabaseItemObj(std::int32_t pIndex)
{
    return entries_.at(pIndex);
}

// The last entry takes the place of the removed one, so the order of the log changes.
void cls_DataEvents::DatabaseRemove(std::int32_t pIndex)
{
    entries_.removeAndFillWithLast(pIndex);
}

std::int32_t cls_DataEvents::DatabaseSearch(const Variant& pKey)
{
    const SearchKey key(pKey);
    return entries_.find([&](cls_DataEvent& event) { return key.fits(event.DATA()->ID()); });
}

} // namespace phial
