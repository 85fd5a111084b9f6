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
    if (version == SchemaVersion) {
        return;
    }
    if (use == StoreUse::Look) {
        throw StoreError(database_.place().shown(), StoreError::Reason::Missing);
    }
    for (const char* statement : tables::Create) {
        database_.change(statement);
    }
    database_.change(tables::KeepState, {text(SchemaState), QString::number(SchemaVersion)});
    database_.commit();
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

void SqlStore::forgetAnswers(Moment before, std::size_t keep)
{
    database_.change(tables::ForgetAnswers, {momentText(before), limit(keep)});
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

std::vector<Result> SqlStore::latestResults(std::size_t atMost)
{
    return oldestFirst(database_.rows(tables::LatestResults, {limit(atMost)}, resultOf));
}

std::vector<PupilEvent> SqlStore::latestEvents(std::size_t atMost)
{
    return oldestFirst(database_.rows(tables::LatestEvents, {limit(atMost)}, eventOf));
}

void SqlStore::visitResults(const std::function<void(const Result&)>& visit)
{
    database_.visit(tables::AllResults, {}, [&](const QSqlQuery& row) { visit(resultOf(row)); });
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
