#pragma once

#include "master/MasterStore.h"
#include "master/StorePlace.h"

#include <QSqlQuery>
#include <QString>
#include <QVariantList>

#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace phial::master
{

/// How a database is opened.
enum class StoreUse {
    /// Makes what is missing and keeps other masters out.
    Serve,
    /// Reads and writes beside a master that runs, which sees what has changed.
    Change,
    /// Reads beside a master that runs.
    Look,
};

/// A database that statements are asked of: a SQLite file (write-ahead log, each commit flushed to the disk)
/// or a PostgreSQL server. All failures raise StoreError.
///
/// A file that is no database, or a damaged one, is renamed and kept, and a new one begins. Only the user
/// reads it and what the database keeps beside it, from the first byte on. A server's connection that is lost
/// makes the transaction fail, and the next statement connects anew. A connection belongs to the thread that
/// has made it.
class SqlConnection
{
public:
    SqlConnection(StorePlace place, StoreUse use);
    ~SqlConnection();
    SqlConnection(const SqlConnection&) = delete;
    SqlConnection& operator=(const SqlConnection&) = delete;

    const StorePlace& place() const { return place_; }
    /// Where a damaged file has been put; empty when there was none.
    const std::filesystem::path& keptAside() const { return keptAside_; }
    /// Whether there is a table of that name, and whether there is any.
    bool hasTable(const QString& name);
    bool isEmpty();

    /// Runs a statement and gives what `read` makes of each row. The statement is told by its address, and
    /// prepared once.
    template <typename Read>
    auto rows(const char* statement, const QVariantList& values, Read read)
    {
        std::vector<decltype(read(std::declval<const QSqlQuery&>()))> all;
        visit(statement, values, [&](const QSqlQuery& row) { all.push_back(read(row)); });
        return all;
    }
    template <typename Read>
    auto firstRow(const char* statement, const QVariantList& values, Read read)
    {
        auto all = rows(statement, values, std::move(read));
        return all.empty() ? std::nullopt : std::optional(std::move(all.front()));
    }
    void visit(const char* statement, const QVariantList& values,
               const std::function<void(const QSqlQuery&)>& visitRow);

    /// Runs a statement that changes something, in the transaction, which begins with the first one.
    void change(const char* statement, const QVariantList& values = {});
    void commit();
    void rollBack() noexcept;

private:
    class Keeper;

    void open();
    void openFile();
    void openServer();
    void waitForServerLock();
    void releaseServerLock() noexcept;
    void keepDamagedFile(const std::string& trouble);
    void close();

    QSqlQuery& run(const char* statement, const QVariantList& values);
    void plain(const QString& statement);

    StorePlace place_;
    StoreUse use_;
    std::unique_ptr<Keeper> keeper_;
    std::filesystem::path keptAside_;
    QString name_; // of the open connection; empty when there is none
    std::map<const char*, QSqlQuery> prepared_;
    bool inTransaction_ = false;
};

} // namespace phial::master
