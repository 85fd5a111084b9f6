// Saving and loading a list of 10 000 scores, flushed to the disk, beside the same rows in SQLite. Both sides
// begin and end with the same list of objects.

#include "core/CoreParameters.h"
#include "core/NativePath.h"
#include "core/Process.h"
#include "core/SessionState.h"
#include "results/cls_DataScores.h"

#include <benchmark/benchmark.h>
#include <filesystem>
#include <memory>
#include <sqlite3.h>
#include <stdexcept>
#include <string>

namespace
{

using namespace phial;

constexpr std::int32_t Count = 10'000;

/// A folder on the disk for the time of a benchmark.
class Folder
{
public:
    Folder() { std::filesystem::create_directories(path_); }
    ~Folder() { std::filesystem::remove_all(path_); }
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;

    std::filesystem::path file(std::string_view name) const { return path_ / name; }

private:
    std::filesystem::path path_ =
        std::filesystem::temp_directory_path() / ("phial-records-bench-" + std::to_string(currentProcess()));
};

void fill(cls_DataScores& list)
{
    for (std::int32_t number = 1; number <= Count; ++number) {
        const String text = Variant(number).toText();
        auto score = std::make_shared<cls_DataScore>();
        score->ID(u"2f0c9a7e-" + text);
        score->RANK(number);
        score->SCREENNAME(u"Schüler " + text);
        score->USERNAME(u"klasse9b\\" + text);
        score->COMPUTER(u"CHEMIE-PC-" + text);
        score->UEBM(u"Molare Massen");
        score->POINTS(Count - number + 0.5);
        score->POINTSMAX(Count);
        score->TIMESTAMP(Moment{45292.75 + number / 1440.0});
        score->ADDITIONAL()->Set(u"ZEIT", number % 300);
        score->ADDITIONAL()->Set(u"STUFE", u"mittel");
        list.DATABASE()->Import(score);
    }
}

void require(bool succeeded)
{
    if (!succeeded) {
        throw std::runtime_error("the benchmark does not do its work");
    }
}

/// The same list as a table. One transaction a save, flushed in full, into a database that keeps its defaults
/// otherwise.
class ScoreTable
{
public:
    explicit ScoreTable(const std::filesystem::path& file)
    {
        require(sqlite3_open(file.c_str(), &database_) == SQLITE_OK);
        execute("PRAGMA synchronous = FULL");
        execute("CREATE TABLE IF NOT EXISTS scores (id TEXT, rank INTEGER, screenname TEXT, username TEXT, "
                "computer TEXT, uebm TEXT, points REAL, pointsmax REAL, moment REAL, additional TEXT)");
    }
    ~ScoreTable() { sqlite3_close(database_); }
    ScoreTable(const ScoreTable&) = delete;
    ScoreTable& operator=(const ScoreTable&) = delete;

    void save(cls_DataScores& list)
    {
        execute("BEGIN");
        execute("DELETE FROM scores");
        const Statement insert(database_, "INSERT INTO scores VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?)");
        for (std::int32_t position = 1; position <= list.COUNT(); ++position) {
            bind(insert, *list.ITEM(position));
            require(sqlite3_step(insert.get()) == SQLITE_DONE);
            sqlite3_reset(insert.get());
        }
        execute("COMMIT");
    }

    void load(cls_DataScores& list)
    {
        const Statement rows(database_, "SELECT * FROM scores ORDER BY rowid");
        while (sqlite3_step(rows.get()) == SQLITE_ROW) {
            list.DATABASE()->Import(scoreIn(rows));
        }
    }

private:
    class Statement
    {
    public:
        Statement(sqlite3* database, const char* text)
        {
            require(sqlite3_prepare_v2(database, text, -1, &statement_, nullptr) == SQLITE_OK);
        }
        ~Statement() { sqlite3_finalize(statement_); }
        Statement(const Statement&) = delete;
        Statement& operator=(const Statement&) = delete;

        sqlite3_stmt* get() const { return statement_; }

        /// The text must last until the next step.
        void bindText(int column, StringView text) const
        {
            sqlite3_bind_text16(statement_, column, text.data(), static_cast<int>(2 * text.size()),
                                SQLITE_STATIC);
        }
        String text(int column) const
        {
            const auto* const units = static_cast<const char16_t*>(sqlite3_column_text16(statement_, column));
            return {units, static_cast<std::size_t>(sqlite3_column_bytes16(statement_, column)) / 2};
        }

    private:
        sqlite3_stmt* statement_ = nullptr;
    };

    void execute(const char* text)
    {
        require(sqlite3_exec(database_, text, nullptr, nullptr, nullptr) == SQLITE_OK);
    }

    void bind(const Statement& insert, cls_DataScore& score)
    {
        id_ = score.ID();
        additional_ = score.ADDITIONAL()->Pack();
        insert.bindText(1, id_);
        sqlite3_bind_int(insert.get(), 2, score.RANK());
        insert.bindText(3, score.SCREENNAME());
        insert.bindText(4, score.USERNAME());
        insert.bindText(5, score.COMPUTER());
        insert.bindText(6, score.UEBM());
        sqlite3_bind_double(insert.get(), 7, score.POINTS());
        sqlite3_bind_double(insert.get(), 8, score.POINTSMAX());
        sqlite3_bind_double(insert.get(), 9, score.TIMESTAMP().days);
        insert.bindText(10, additional_);
    }

    static std::shared_ptr<cls_DataScore> scoreIn(const Statement& row)
    {
        auto score = std::make_shared<cls_DataScore>();
        score->ID(row.text(0));
        score->RANK(sqlite3_column_int(row.get(), 1));
        score->SCREENNAME(row.text(2));
        score->USERNAME(row.text(3));
        score->COMPUTER(row.text(4));
        score->UEBM(row.text(5));
        score->POINTS(sqlite3_column_double(row.get(), 6));
        score->POINTSMAX(sqlite3_column_double(row.get(), 7));
        score->TIMESTAMP(Moment{sqlite3_column_double(row.get(), 8)});
        score->ADDITIONAL()->Unpack(row.text(9), 0, 1);
        return score;
    }

    sqlite3* database_ = nullptr;
    String id_;
    String additional_;
};

void recordSave(benchmark::State& state)
{
    const SessionState session{Platform()};
    const Folder folder;
    const String file = systemPath(folder.file("list.qv-hsr"));
    cls_DataScores list;
    fill(list);
    require(list.SAVE(file));
    for (auto step : state) {
        require(list.SAVE(file));
    }
}

void recordLoad(benchmark::State& state)
{
    const SessionState session{Platform()};
    const Folder folder;
    const String file = systemPath(folder.file("list.qv-hsr"));
    cls_DataScores list;
    fill(list);
    require(list.SAVE(file));
    for (auto step : state) {
        cls_DataScores loaded;
        require(loaded.LOAD(file) && loaded.COUNT() == Count);
    }
}

void tableSave(benchmark::State& state)
{
    const SessionState session{Platform()};
    const Folder folder;
    cls_DataScores list;
    fill(list);
    ScoreTable(folder.file("list.db")).save(list);
    for (auto step : state) {
        ScoreTable(folder.file("list.db")).save(list);
    }
}

void tableLoad(benchmark::State& state)
{
    const SessionState session{Platform()};
    const Folder folder;
    cls_DataScores list;
    fill(list);
    ScoreTable(folder.file("list.db")).save(list);
    for (auto step : state) {
        cls_DataScores loaded;
        ScoreTable(folder.file("list.db")).load(loaded);
        require(loaded.COUNT() == Count);
    }
}

// Saving waits for the disk, of which the clock tells and the processor time does not.
BENCHMARK(recordSave)->Name("records: save 10,000 scores")->Unit(benchmark::kMillisecond);
BENCHMARK(recordSave)->Name("records: save 10,000 scores")->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(tableSave)->Name("SQLite: save 10,000 scores")->Unit(benchmark::kMillisecond);
BENCHMARK(tableSave)->Name("SQLite: save 10,000 scores")->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(recordLoad)->Name("records: load 10,000 scores")->Unit(benchmark::kMillisecond);
BENCHMARK(tableLoad)->Name("SQLite: load 10,000 scores")->Unit(benchmark::kMillisecond);

} // namespace
