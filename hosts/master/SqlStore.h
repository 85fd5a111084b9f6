#pragma once

#include "master/MasterStore.h"
#include "master/SqlConnection.h"

#include <filesystem>
#include <map>

namespace phial::master
{

/// The store in a SQLite file or on a PostgreSQL server, with the same tables (docs/master.md). One master at
/// a time serves from a database.
class SqlStore final : public MasterStore
{
public:
    /// The tables' version that is written and read.
    static constexpr int SchemaVersion = 1;

    /// Opens the database as SqlConnection does, and makes its tables. Raises StoreError when the place
    /// cannot be used, when another master uses it, when it is the database of another program, and when the
    /// tables are of a later version.
    explicit SqlStore(const StorePlace& place, StoreUse use = StoreUse::Serve);

    /// Where a damaged file has been put; empty when there was none.
    const std::filesystem::path& keptAside() const { return database_.keptAside(); }

    void commit() override;
    void rollBack() noexcept override;

    std::optional<String> answerTo(const FrameId& id) override;
    void keepAnswer(const FrameId& id, const String& answer, Moment at) override;
    std::size_t forgetAnswers(Moment before, std::size_t keep, std::size_t atMost) override;

    void addResult(const Result& result) override;
    void addSubmission(const String& module, const Result& result, const String& rank) override;
    void addEvent(const PupilEvent& event) override;
    std::vector<KeptResult> latestResults(std::size_t atMost) override;
    std::vector<PupilEvent> latestEvents(std::size_t atMost) override;
    std::vector<Change> latestChanges(std::size_t atMost) override;
    std::vector<KeptResult> resultsAfter(std::int32_t number, std::size_t atMost) override;
    std::optional<Result> result(std::int32_t number) override;
    void removeResult(std::int32_t number) override;
    std::vector<HandedIn> handedInSince(Moment since) override;

    std::vector<String> screenNames() override;
    void renamePupil(const String& from, const String& to) override;
    void addChange(const Change& change) override;

    std::vector<String> modules() override;
    std::optional<String> scoreList(const String& module) override;
    void keepScoreList(const String& module, const String& list) override;
    void removeScoreList(const String& module) override;
    std::vector<ListOrigin> listOrigins() override;
    void keepListOrigin(const ListOrigin& origin) override;

    std::vector<std::pair<String, String>> settings() override;
    void keepSetting(const String& name, const std::optional<String>& value) override;

    String app() override;
    void keepApp(const String& app) override;

    std::vector<LogOn> logOns() override;
    void keepLogOn(const LogOn& logOn) override;
    void forgetLogOn(std::uint64_t client) override;
    void forgetLogOns(Moment before) override;

private:
    void prepareTables(StoreUse use);
    int storedVersion();
    std::optional<String> state(StringView name);
    int nextNumber(const char* lastNumber);
    bool hasLaterTables();

    SqlConnection database_;
    std::map<const char*, int> lastNumbers_;
    std::optional<bool> hasLaterTables_;
};

} // namespace phial::master
