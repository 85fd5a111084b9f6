#include "master/SqlStore.h"

#include "core/Format.h"
#include "core/RuntimeError.h"
#include "master/Tables.h"
#include "qt/base/QtText.h"

#include <QVariant>

#include <algorithm>
#include <bit>
#include <limits>

namespace phial::master
{

namespace
{

using qt::fromQt;
using qt::toQt;

constexpr StringView SchemaState = u"schema";
constexpr StringView AppState = u"app";

/// A text to be bound; an empty one is not taken for a missing one.
QVariant text(StringView value)
{
    return value.empty() ? QString::fromLatin1("") : toQt(value);
}

QVariant signedNumber(std::uint64_t number)
{
    return QVariant(static_cast<qlonglong>(std::bit_cast<std::int64_t>(number)));
}

/// At most so many rows.
QVariant limit(std::size_t rows)
{
    constexpr std::size_t Most = std::numeric_limits<std::int32_t>::max();
    return QVariant(static_cast<int>(std::min(rows, Most)));
}

QVariant momentText(Moment moment)
{
    return text(formatPattern(moment, u"yyyy-mm-dd hh:nn:ss"));
}

/// A moment as momentText writes it; day 0 for what somebody else has written there.
Moment momentOf(const QVariant& value)
{
    const QString stored = value.toString();
    const auto field = [&](int from, int length) { return QStringView(stored).mid(from, length).toInt(); };
    CalendarTime time;
    time.year = field(0, 4);
    time.month = field(5, 2);
    time.day = field(8, 2);
    time.hour = field(11, 2);
    time.minute = field(14, 2);
    time.second = field(17, 2);
    Moment moment;
    ignoringErrors([&] { moment = Moment::fromCalendar(time); });
    return moment;
}

String textOf(const QSqlQuery& row, int column)
{
    return fromQt(row.value(column).toString());
}

String firstText(const QSqlQuery& row)
{
    return textOf(row, 0);
}

Sender senderOf(const QSqlQuery& row)
{
    return {textOf(row, 1), textOf(row, 2), textOf(row, 3)};
}

Result resultOf(const QSqlQuery& row)
{
    return {momentOf(row.value(0)),  senderOf(row),           textOf(row, 4),
            row.value(5).toDouble(), row.value(6).toDouble(), textOf(row, 7)};
}

KeptResult keptResultOf(const QSqlQuery& row)
{
    return {row.value(8).toInt(), resultOf(row)};
}

PupilEvent eventOf(const QSqlQuery& row)
{
    return {momentOf(row.value(0)), senderOf(row), textOf(row, 4), textOf(row, 5)};
}

LogOn logOnOf(const QSqlQuery& row)
{
    return {std::bit_cast<std::uint64_t>(std::int64_t{row.value(0).toLongLong()}), textOf(row, 2),
            textOf(row, 3), momentOf(row.value(1))};
}

QVariantList resultValues(int number, const Result& result)
{
    const Sender& sender = result.sender;
    return {number,
            momentText(result.at),
            text(sender.screenName),
            text(sender.userName),
            text(sender.computer),
            text(result.exercise),
            result.points,
            result.pointsMax,
            text(result.additional)};
}

template <typename Entry>
std::vector<Entry> oldestFirst(std::vector<Entry> entries)
{
    std::ranges::reverse(entries);
    return entries;
}

} // namespace

SqlStore::SqlStore(const StorePlace& place, StoreUse use) : database_(place, use)
{
    prepareTables(use);
}

void SqlStore::prepareTables(StoreUse use)
{
    const int version = storedVersion();
    if (version > SchemaVersion) {
        throw StoreError(database_.place().shown(), StoreError::Reason::LaterVersion);
    }
    if (use != StoreUse::Serve) {
        if (version != SchemaVersion) {
            throw StoreError(database_.place().shown(), StoreError::Reason::Missing);
        }
        return;
    }
    if (version != SchemaVersion) {
        for (const char* statement : tables::Create) {
            database_.change(statement);
        }
        database_.change(tables::KeepState, {text(SchemaState), QString::number(SchemaVersion)});
    }
    for (const char* statement : tables::CreateLater) {
        database_.change(statement);
    }
    database_.commit();
}

/// Whoever only looks may have found a database of before.
bool SqlStore::hasLaterTables()
{
    if (!hasLaterTables_) {
        hasLaterTables_ = database_.hasTable(QStringLiteral("changes"));
    }
    return *hasLaterTables_;
}

int SqlStore::storedVersion()
{
    if (database_.hasTable(QStringLiteral("state"))) {
        return toQt(state(SchemaState).value_or(String())).toInt();
    }
    if (!database_.isEmpty()) {
        throw StoreError(database_.place().shown(), StoreError::Reason::OtherProgram);
    }
    return 0;
}

std::optional<String> SqlStore::state(StringView name)
{
    return database_.firstRow(tables::State, {text(name)}, firstText);
}

int SqlStore::nextNumber(const char* lastNumber)
{
    auto entry = lastNumbers_.find(lastNumber);
    if (entry == lastNumbers_.end()) {
        const auto last =
            database_.firstRow(lastNumber, {}, [](const QSqlQuery& row) { return row.value(0).toInt(); });
        entry = lastNumbers_.emplace(lastNumber, last.value_or(0)).first;
    }
    return ++entry->second;
}

void SqlStore::commit()
{
    database_.commit();
}

void SqlStore::rollBack() noexcept
{
    lastNumbers_.clear();
    database_.rollBack();
}

std::optional<String> SqlStore::answerTo(const FrameId& id)
{
    return database_.firstRow(tables::AnswerTo, {signedNumber(id.sender), signedNumber(id.number)},
                              firstText);
}

void SqlStore::keepAnswer(const FrameId& id, const String& answer, Moment at)
{
    database_.change(tables::KeepAnswer,
                     {signedNumber(id.sender), signedNumber(id.number), momentText(at), text(answer)});
}

std::size_t SqlStore::forgetAnswers(Moment before, std::size_t keep, std::size_t atMost)
{
    const auto old = database_.rows(tables::OldAnswers, {momentText(before), limit(keep), limit(atMost)},
                                    [](const QSqlQuery& row) {
                                        return QVariantList{row.value(0), row.value(1)};
                                    });
    for (const QVariantList& id : old) {
        database_.change(tables::ForgetAnswer, id);
    }
    return old.size();
}

void SqlStore::addResult(const Result& result)
{
    database_.change(tables::AddResult, resultValues(nextNumber(tables::LastResult), result));
}

void SqlStore::addSubmission(const String& module, const Result& result, const String& rank)
{
    QVariantList values = resultValues(nextNumber(tables::LastSubmission), result);
    values << text(module) << text(rank);
    database_.change(tables::AddSubmission, values);
}

void SqlStore::addEvent(const PupilEvent& event)
{
    const Sender& sender = event.sender;
    database_.change(tables::AddEvent, {nextNumber(tables::LastEvent), momentText(event.at),
                                        text(sender.screenName), text(sender.userName), text(sender.computer),
                                        text(event.action), text(event.additional)});
}

std::vector<KeptResult> SqlStore::latestResults(std::size_t atMost)
{
    return oldestFirst(database_.rows(tables::LatestResults, {limit(atMost)}, keptResultOf));
}

std::vector<PupilEvent> SqlStore::latestEvents(std::size_t atMost)
{
    return oldestFirst(database_.rows(tables::LatestEvents, {limit(atMost)}, eventOf));
}

std::vector<Change> SqlStore::latestChanges(std::size_t atMost)
{
    if (!hasLaterTables()) {
        return {};
    }
    return oldestFirst(database_.rows(tables::LatestChanges, {limit(atMost)}, [](const QSqlQuery& row) {
        return Change{momentOf(row.value(0)), textOf(row, 1), textOf(row, 2)};
    }));
}

std::vector<KeptResult> SqlStore::resultsAfter(std::int32_t number, std::size_t atMost)
{
    return database_.rows(tables::ResultsAfter, {number, limit(atMost)}, keptResultOf);
}

std::optional<Result> SqlStore::result(std::int32_t number)
{
    return database_.firstRow(tables::ResultOf, {number}, resultOf);
}

void SqlStore::removeResult(std::int32_t number)
{
    nextNumber(tables::LastResult); // read while it is there, so that no other result gets it
    database_.change(tables::RemoveResult, {number});
}

std::vector<HandedIn> SqlStore::handedInSince(Moment since)
{
    return database_.rows(tables::HandedInSince, {momentText(since)}, [](const QSqlQuery& row) {
        return HandedIn{textOf(row, 0), momentOf(row.value(1))};
    });
}

std::vector<String> SqlStore::screenNames()
{
    return database_.rows(tables::ScreenNames, {}, firstText);
}

void SqlStore::renamePupil(const String& from, const String& to)
{
    for (const char* statement : tables::Rename) {
        database_.change(statement, {text(to), text(from)});
    }
}

void SqlStore::addChange(const Change& change)
{
    database_.change(tables::AddChange, {nextNumber(tables::LastChange), momentText(change.at),
                                         text(change.action), text(change.about)});
}

std::vector<String> SqlStore::modules()
{
    auto names = database_.rows(tables::Modules, {}, firstText);
    std::ranges::sort(names);
    return names;
}

std::optional<String> SqlStore::scoreList(const String& module)
{
    return database_.firstRow(tables::ScoreList, {text(module)}, firstText);
}

void SqlStore::keepScoreList(const String& module, const String& list)
{
    database_.change(tables::KeepScoreList, {text(module), text(list)});
}

void SqlStore::removeScoreList(const String& module)
{
    database_.change(tables::RemoveScoreList, {text(module)});
    database_.change(tables::RemoveListOrigin, {text(module)});
}

std::vector<ListOrigin> SqlStore::listOrigins()
{
    if (!hasLaterTables()) {
        return {};
    }
    return database_.rows(tables::ListOrigins, {}, [](const QSqlQuery& row) {
        return ListOrigin{textOf(row, 0), textOf(row, 1), momentOf(row.value(2))};
    });
}

void SqlStore::keepListOrigin(const ListOrigin& origin)
{
    database_.change(tables::KeepListOrigin,
                     {text(origin.module), text(origin.address), momentText(origin.at)});
}

std::vector<std::pair<String, String>> SqlStore::settings()
{
    auto entries = database_.rows(
        tables::Settings, {}, [](const QSqlQuery& row) { return std::pair(textOf(row, 0), textOf(row, 1)); });
    std::ranges::sort(entries);
    return entries;
}

void SqlStore::keepSetting(const String& name, const std::optional<String>& value)
{
    if (value) {
        database_.change(tables::KeepSetting, {text(name), text(*value)});
    } else {
        database_.change(tables::ForgetSetting, {text(name)});
    }
}

String SqlStore::app()
{
    return state(AppState).value_or(String());
}

void SqlStore::keepApp(const String& app)
{
    database_.change(tables::KeepState, {text(AppState), text(app)});
}

std::vector<LogOn> SqlStore::logOns()
{
    return database_.rows(tables::LogOns, {}, logOnOf);
}

void SqlStore::keepLogOn(const LogOn& logOn)
{
    database_.change(tables::KeepLogOn, {signedNumber(logOn.client), momentText(logOn.since),
                                         text(logOn.name), text(logOn.address)});
}

void SqlStore::forgetLogOn(std::uint64_t client)
{
    database_.change(tables::ForgetLogOn, {signedNumber(client)});
}

void SqlStore::forgetLogOns(Moment before)
{
    database_.change(tables::ForgetLogOns, {momentText(before)});
}

} // namespace phial::master
