#include "results/cls_DataScores.h"

#include "core/CoreCmdParser.h"
#include "core/CoreDialogs.h"
#include "core/CoreMachine.h"
#include "core/CoreRoot.h"
#include "core/CoreSystem.h"
#include "core/CoreValuePacker.h"
#include "core/Members.h"
#include "core/ProgramTitle.h"
#include "core/RecordFile.h"
#include "results/ExchangeOrder.h"
#include "results/ListExport.h"
#include "results/ListPrint.h"
#include "results/ListRecord.h"
#include "results/Mark.h"
#include "visual/OneLine.h"

#include <array>

namespace phial
{

namespace
{

constexpr StringView ScoresVersion = u"2.0";
constexpr StringView ItemSeparator = u"{NEXT_ITEM}";

constexpr std::int32_t NoRank = -1;
constexpr std::int32_t LimitOfTheList = -1;

// One title more than a line has fields: titles behind "Punkte" stand one column to the right.
constexpr std::array<StringView, 11> ScoreTitles = {u"Rang",  u"Name",      u"Login", u"Computer",
                                                    u"Datum", u"Zeit",      u"Score", u"Punkte",
                                                    u"Note",  u"Notentext", u"Zusatz"};

// "Score" stands where "Punkte" would end.
constexpr std::array<PrintedColumn, 9> ScoreColumns = {{
    {0, u"Rang"},
    {0.05, u"Name"},
    {0.25, u"Login"},
    {0.35, u"Computer"},
    {0.55, u"Score", Alignment::Right, u"Punkte"},
    {0.65, u"Erreichbar", Alignment::Right},
    {0.67, u"Note"},
    {0.75, u"Datum"},
    {0.9, u"Zusatz"},
}};

std::vector<String> printedRow(cls_DataScore& score)
{
    return {
        Variant(score.RANK()).toText(),
        score.SCREENNAME(),
        score.USERNAME(),
        score.COMPUTER(),
        Variant(score.POINTS()).toText(),
        Variant(score.POINTSMAX()).toText(),
        String(markFor(score.POINTS(), score.POINTSMAX()).words),
        printedMoment(score.TIMESTAMP()),
        score.ADDITIONAL()->TextLine(),
    };
}

constexpr Member ScoresMembers[] = {
    members::property<cls_DataScores, enm_ScoreListMode, &cls_DataScores::MODE, &cls_DataScores::MODE>(
        u"MODE"),
    members::property<cls_DataScores, std::int32_t, &cls_DataScores::MAXIMUM, &cls_DataScores::MAXIMUM>(
        u"MAXIMUM"),
    members::property<cls_DataScores, bool, &cls_DataScores::ONCE, &cls_DataScores::ONCE>(u"ONCE"),
    members::property<cls_DataScores, bool, &cls_DataScores::LIVE, &cls_DataScores::LIVE>(u"LIVE"),
    members::readOnly<cls_DataScores, std::int32_t, &cls_DataScores::COUNT>(u"COUNT"),
};

} // namespace

cls_DataScores::cls_DataScores() : data_(*this, programTitle() + u".cls_DataScores"), database_(*this) {}

std::shared_ptr<cls_DataScore> cls_DataScores::ITEM(const Variant& pID, bool pForceIndex)
{
    return std::static_pointer_cast<cls_DataScore>(database_.get()->Item(pID, pForceIndex));
}

bool cls_DataScores::REMOVE(const Variant& pID, bool pForceIndex)
{
    const bool removed = database_.get()->Remove(pID, pForceIndex);
    SORT();
    return removed;
}

Variant cls_DataScores::ADD(double pPoints, double pPointsMax, StringView pUEBM,
                            const CoreParameters* pAdditional, StringView pUserName, StringView pComputerName,
                            StringView pScreenName, Moment pTimeStamp)
{
    requireFinite(pPoints, pPointsMax);
    EntryNames names = completed({String(pUserName), String(pComputerName), String(pScreenName)});
    const Variant name = names.screen;
    const String id = coreRoot().CoreSystem().CoreMachine().NewUniqueID();

    const auto score = std::make_shared<cls_DataScore>();
    score->ID(id);
    score->POINTS(pPoints);
    score->POINTSMAX(pPointsMax);
    score->UEBM(String(pUEBM));
    if (pAdditional) {
        score->ADDITIONAL()->CopyFrom(*pAdditional);
    }
    score->TIMESTAMP(pTimeStamp == Moment{} ? presentMoment() : pTimeStamp);
    score->COMPUTER(std::move(names.computer));
    score->SCREENNAME(std::move(names.screen));
    score->USERNAME(std::move(names.user));

    std::int32_t rank = COUNT() + 1;
    if (mode_ == enm_ScoreListMode::ID_ScoreList_Highscore) {
        if (!LIVE() && ONCE() && EXISTS(name) && ITEM(name, false)->POINTS() > pPoints) {
            return {};
        }
        if (LIVE() || ONCE()) {
            removeAll(name);
        }
        rank = RANK(pPoints);
    }
    database_.get()->Import(score);
    SORT();
    CUT();
    const std::int32_t slot = entries_.find([&](const cls_DataScore& entry) { return entry.ID() == id; });
    return slot > 0 ? slot : rank;
}

void cls_DataScores::removeAll(const Variant& name)
{
    while (EXISTS(name)) {
        REMOVE(name);
    }
}

void cls_DataScores::CUT(std::int32_t pCutLimit)
{
    if (mode_ == enm_ScoreListMode::ID_ScoreList_ResultList || live_) {
        return;
    }
    const std::int32_t limit = pCutLimit == LimitOfTheList ? maximum_ : pCutLimit;
    if (limit > 0) {
        entries_.cut(limit);
    }
}

void cls_DataScores::SORT()
{
    if (mode_ == enm_ScoreListMode::ID_ScoreList_ResultList) {
        sortBy([](const cls_DataScore& score) { return score.TIMESTAMP().days; });
        return;
    }
    if (live_) {
        sortBy([](const cls_DataScore& score) { return StringView(score.USERNAME()); });
    } else {
        sortBy([](const cls_DataScore& score) { return score.POINTS(); });
    }
    std::int32_t rank = 0;
    entries_.forEach([&](cls_DataScore& score) { score.RANK(++rank); });
}

/// The greatest key comes first.
template <typename KeyOf>
void cls_DataScores::sortBy(const KeyOf& keyOf)
{
    std::vector<decltype(keyOf(std::declval<const cls_DataScore&>()))> keys;
    keys.reserve(static_cast<std::size_t>(entries_.count()));
    entries_.forEach([&](const cls_DataScore& score) { keys.push_back(keyOf(score)); });
    if (const auto order = exchangeOrder(keys); !order.empty()) {
        entries_.arrange(order);
    }
}

std::int32_t cls_DataScores::RANK(double pPoints)
{
    SORT();
    const std::int32_t beaten =
        entries_.find([&](const cls_DataScore& score) { return score.POINTS() < pPoints; });
    if (beaten > 0) {
        return beaten;
    }
    // The last place of a list is reached only by beating somebody.
    const std::int32_t last = COUNT() + 1;
    return last >= maximum_ ? NoRank : last;
}

void cls_DataScores::CLEAR()
{
    database_.get()->Clear();
}

bool cls_DataScores::LOAD(StringView pFile, StringView pPW)
{
    return loadRecord(*DATA(), pFile, pPW);
}

bool cls_DataScores::SAVE(StringView pFile, StringView pPW)
{
    return saveRecord(*DATA(), pFile, pPW);
}

void cls_DataScores::DEBUGSHOW()
{
    String text;
    entries_.forEach([&](const cls_DataScore& score) {
        text += Variant(score.RANK()).toText() + u". " + oneLine(score.SCREENNAME()) + u" " +
                Variant(score.POINTS()).toText() + u"\r\n";
    });
    coreRoot().CoreDialogs().Text(text, u"Info:");
}

String cls_DataScores::TEXT()
{
    String text = headerLine(ScoreTitles);
    entries_.forEach([&](cls_DataScore& score) { text += score.TEXTLINE() + u"\r\n"; });
    return text;
}

bool cls_DataScores::EXPORT(StringView pFile)
{
    return exportText(pFile, TEXT());
}

void cls_DataScores::PRINTOUT(StringView pName)
{
    printList(pName, ScoreColumns, entries_.count(),
              [&](std::int32_t position) { return printedRow(*entries_.at(position)); });
}

MemberTable cls_DataScores::members() const
{
    return ScoresMembers;
}

bool cls_DataScores::DataCopy(tmp_Data& pSource)
{
    auto* source = dynamic_cast<cls_DataScores*>(&pSource);
    if (!source) {
        return false;
    }
    data_.get()->ID(source->data_.get()->ID());
    maximum_ = source->maximum_;
    once_ = source->once_;
    live_ = source->live_;
    mode_ = source->mode_;
    entries_.copyFrom(*source->DATABASE());
    return true;
}

String cls_DataScores::DataPACK()
{
    String items;
    for (const String& item : entries_.packed()) {
        items += items.empty() ? StringView() : ItemSeparator;
        items += item;
    }
    return CoreValuePacker::Pack(
        {data_.get()->ID(), maximum_, once_, live_, static_cast<std::int32_t>(mode_), std::move(items)});
}

void cls_DataScores::DataUnpack(StringView pText)
{
    Variant id;
    Variant maximum;
    Variant once;
    Variant live;
    Variant mode;
    Variant items;
    CoreValuePacker::Unpack(pText, {id, maximum, once, live, mode, items});
    entries_.unpack(CoreCmdParser::Split(items.toText(), ItemSeparator));
    maximum_ = maximum.toWhole();
    once_ = once.toBoolean();
    live_ = live.toBoolean();
    mode_ = static_cast<enm_ScoreListMode>(mode.toWhole());
    data_.get()->ID(std::move(id));
}

void cls_DataScores::DataStore(CoreDataStream& pStream)
{
    pStream.Write(ScoresVersion, data_.get()->ID(), maximum_, once_, live_, static_cast<std::int32_t>(mode_));
    entries_.store(pStream);
}

void cls_DataScores::DataRead(CoreDataStream& pStream)
{
    String version;
    pStream.Read(version);
    if (upperCase(version) != ScoresVersion) {
        return;
    }
    data_.get()->ID(pStream.ReadValue());
    pStream.Read(maximum_, once_, live_, mode_);
    entries_.read(pStream);
}

std::shared_ptr<tmp_Data> cls_DataScores::DataSpawn()
{
    return std::make_shared<cls_DataScores>();
}

void cls_DataScores::DatabaseClear()
{
    entries_.clear();
}

std::int32_t cls_DataScores::DatabaseCount()
{
    return entries_.count();
}

void cls_DataScores::DatabaseImport(const std::shared_ptr<tmp_Data>& pItem, const Variant* pID)
{
    entries_.import(pItem, pID);
}

std::shared_ptr<tmp_Data> cls_DataScores::DatabaseItem(std::int32_t pIndex)
{
    return entries_.at(pIndex);
}

ObjectPtr cls_DataScores::DatabaseItemObj(std::int32_t pIndex)
{
    return entries_.at(pIndex);
}

void cls_DataScores::DatabaseRemove(std::int32_t pIndex)
{
    entries_.removeAndMoveUp(pIndex);
}

std::int32_t cls_DataScores::DatabaseSearch(const Variant& pKey)
{
    const SearchKey key(pKey);
    return entries_.find([&](const cls_DataScore& score) { return key.fitsText(score.SCREENNAME()); });
}

} // namespace phial
