#include "master/SqlConnection.h"

#include "core/AtomicFile.h"
#include "core/Clock.h"
#include "core/FileLock.h"
#include "core/FileSystem.h"
#include "core/NativePath.h"
#include "core/RuntimeError.h"
#include "core/SessionState.h"

#include <QFile>
#include <QSqlDatabase>
#include <QSqlError>
#include <QVariant>

#include <array>
#include <atomic>

namespace phial::master
{

namespace
{

namespace fs = std::filesystem;

/// Under this number a server locks for masters.
constexpr const char* TryServerLock = "SELECT CAST(pg_try_advisory_lock(1348028750) AS INTEGER)";
constexpr const char* ReleaseServerLock = "SELECT pg_advisory_unlock_all()";
constexpr const char* ServerTables =
    "SELECT table_name FROM information_schema.tables WHERE table_schema = 'phial_master'";
constexpr const char* FileTables = "SELECT name FROM sqlite_master WHERE type = 'table'";
constexpr double LockWait = 3;
constexpr double SecondsBetweenTries = 0.05;

/// The primary result codes with which the database library tells that a file is damaged or no database.
constexpr int CorruptFile = 11;
constexpr int NoDatabaseFile = 26;

/// What the database keeps beside its file while it is used, and after a process was killed.
constexpr std::array<const char*, 2> Companions{"-wal", "-shm"};

/// A server that has vanished is missed after some 20 seconds, whoever waits for what.
constexpr const char* ServerOptions = "connect_timeout=5;keepalives_idle=10;keepalives_interval=5;"
                                      "keepalives_count=2;tcp_user_timeout=20000";

[[noreturn]] void fail(const QSqlError& error, StoreError::Reason reason = StoreError::Reason::Database)
{
    throw StoreError(error.text().trimmed().toStdString(), reason);
}

/// Connections are made on several threads.
QString newName()
{
    static std::atomic<int> made = 0;
    return QStringLiteral("phial-master-%1").arg(++made);
}

/// Why a file cannot be used.
struct FileTrouble {
    /// As opposed to a file that cannot be reached.
    bool isDamaged = false;
    std::string text;
};

FileTrouble troubleOf(const QSqlError& error)
{
    const int code = error.nativeErrorCode().toInt() & 0xFF;
    return {code == CorruptFile || code == NoDatabaseFile, error.text().trimmed().toStdString()};
}

/// Opens a file and looks whether it is sound; no value when it can be used.
std::optional<FileTrouble> openSound(QSqlDatabase& database, StoreUse use)
{
    if (!database.open()) {
        return troubleOf(database.lastError());
    }
    QSqlQuery query(database);
    if (use != StoreUse::Look) {
        for (const char* setting : {"PRAGMA journal_mode = WAL", "PRAGMA synchronous = FULL"}) {
            if (!query.exec(QLatin1String(setting))) {
                return troubleOf(query.lastError());
            }
        }
    }
    if (!query.exec(QStringLiteral("PRAGMA quick_check(1)")) || !query.next()) {
        return troubleOf(query.lastError());
    }
    const QString verdict = query.value(0).toString();
    return verdict == QLatin1String("ok") ? std::nullopt
                                          : std::optional(FileTrouble{true, verdict.toStdString()});
}

/// Only the user who runs the master reads what pupils sent. A new file is made before the database opens it,
/// which gives its companions the rights that it finds; those that a killed process has left keep theirs.
void keepPrivate(const fs::path& file, StoreUse use)
{
    if (use == StoreUse::Serve && !fs::exists(file)) {
        QFile made(QFile::decodeName(file.string().c_str()));
        if (!made.open(QIODevice::NewOnly | QIODevice::WriteOnly,
                       QFileDevice::ReadOwner | QFileDevice::WriteOwner)) {
            return; // the database will tell
        }
    }
    std::error_code ignored;
    const auto onlyOwner = fs::perms::owner_read | fs::perms::owner_write;
    fs::permissions(file, onlyOwner, ignored);
    for (const char* companion : Companions) {
        fs::permissions(fs::path(file) += companion, onlyOwner, ignored);
    }
}

} // namespace

/// Keeps other masters away from a file as long as it lives.
class SqlConnection::Keeper
{
public:
    explicit Keeper(const fs::path& file) : lock_(systemPath(file))
    {
        if (!lock_.held()) {
            throw StoreError(file.string(), StoreError::Reason::InUse);
        }
    }

private:
    FileLock lock_;
};

SqlConnection::SqlConnection(StorePlace place, StoreUse use) : place_(std::move(place)), use_(use)
{
    if (!place_.isServer()) {
        place_.file = fs::absolute(place_.file);
    }
    open();
}

SqlConnection::~SqlConnection()
{
    rollBack();
    releaseServerLock();
    close();
}

bool SqlConnection::hasTable(const QString& name)
{
    bool found = false;
    visit(place_.isServer() ? ServerTables : FileTables, {},
          [&](const QSqlQuery& row) { found = found || row.value(0).toString() == name; });
    return found;
}

bool SqlConnection::isEmpty()
{
    bool found = false;
    visit(place_.isServer() ? ServerTables : FileTables, {}, [&](const QSqlQuery&) { found = true; });
    return !found;
}

void SqlConnection::open()
{
    name_ = newName();
    try {
        if (place_.isServer()) {
            openServer();
        } else {
            openFile();
        }
    } catch (const StoreError&) {
        close();
        throw;
    }
}

void SqlConnection::openFile()
{
    if (use_ != StoreUse::Serve && !fs::exists(place_.file)) {
        throw StoreError(place_.shown(), StoreError::Reason::Missing);
    }
    if (use_ == StoreUse::Serve && !keeper_) {
        std::error_code ignored;
        fs::create_directories(place_.file.parent_path(), ignored);
        keeper_ = std::make_unique<Keeper>(place_.file);
    }
    keepPrivate(place_.file, use_);
    std::optional<FileTrouble> trouble;
    {
        QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), name_);
        database.setDatabaseName(QFile::decodeName(place_.file.string().c_str()));
        if (use_ == StoreUse::Look) {
            database.setConnectOptions(QStringLiteral("QSQLITE_OPEN_READONLY"));
        }
        trouble = openSound(database, use_);
    }
    if (!trouble) {
        return;
    }
    if (!trouble->isDamaged || use_ != StoreUse::Serve || !keptAside_.empty()) {
        throw StoreError(trouble->text);
    }
    close();
    keepDamagedFile(trouble->text);
    name_ = newName();
    openFile();
}

void SqlConnection::keepDamagedFile(const std::string& trouble)
{
    NativeFileSystem files;
    if (!ignoringErrors([&] { keptAside_ = moveAside(files, place_.file); })) {
        throw StoreError(trouble);
    }
    for (const char* companion : Companions) {
        std::error_code ignored;
        fs::rename(fs::path(place_.file) += companion, fs::path(keptAside_) += companion, ignored);
    }
}

void SqlConnection::openServer()
{
    {
        QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QPSQL"), name_);
        database.setHostName(QString::fromStdString(place_.host));
        database.setPort(place_.port > 0 ? place_.port : -1);
        database.setDatabaseName(QString::fromStdString(place_.database));
        database.setUserName(QString::fromStdString(place_.user));
        database.setPassword(QString::fromStdString(place_.password));
        database.setConnectOptions(QLatin1String(ServerOptions));
        if (!database.open()) {
            fail(database.lastError(), StoreError::Reason::Unreachable);
        }
    }
    plain(QStringLiteral("SET client_min_messages = error"));
    plain(QStringLiteral("SET synchronous_commit = on"));
    plain(QStringLiteral("SET search_path = phial_master"));
    if (use_ == StoreUse::Serve) {
        plain(QStringLiteral("CREATE SCHEMA IF NOT EXISTS phial_master"));
        waitForServerLock();
    }
}

void SqlConnection::waitForServerLock()
{
    // The server notices a moment later that a master was killed.
    const auto clock = SessionState::current().platform().clock;
    const double end = clock->seconds() + LockWait;
    const auto isLocked = [](const QSqlQuery& row) { return row.value(0).toInt(); };
    while (firstRow(TryServerLock, {}, isLocked) != 1) {
        if (clock->seconds() >= end) {
            throw StoreError(place_.shown(), StoreError::Reason::InUse);
        }
        clock->sleep(SecondsBetweenTries);
    }
}

/// A server notices a closed connection only a moment later; until then it would keep the next master out.
void SqlConnection::releaseServerLock() noexcept
{
    if (name_.isEmpty() || !place_.isServer()) {
        return;
    }
    try {
        plain(QLatin1String(ReleaseServerLock));
    } catch (const StoreError&) {
        return; // the connection is lost, and the lock with it
    }
}

void SqlConnection::close()
{
    prepared_.clear();
    inTransaction_ = false;
    if (!name_.isEmpty()) {
        QSqlDatabase::removeDatabase(name_);
        name_.clear();
    }
}

void SqlConnection::visit(const char* statement, const QVariantList& values,
                          const std::function<void(const QSqlQuery&)>& visitRow)
{
    QSqlQuery& query = run(statement, values);
    while (query.next()) {
        visitRow(query);
    }
    query.finish(); // an open answer keeps the log from being merged
}

void SqlConnection::change(const char* statement, const QVariantList& values)
{
    if (!inTransaction_) {
        plain(place_.isServer() ? QStringLiteral("BEGIN") : QStringLiteral("BEGIN IMMEDIATE"));
        inTransaction_ = true;
    }
    if (values.isEmpty()) {
        plain(QLatin1String(statement)); // servers do not prepare the making of tables
    } else {
        run(statement, values).finish();
    }
}

void SqlConnection::commit()
{
    if (inTransaction_) {
        plain(QStringLiteral("COMMIT"));
        inTransaction_ = false;
    }
}

void SqlConnection::rollBack() noexcept
{
    if (name_.isEmpty() || (!inTransaction_ && !place_.isServer())) {
        return;
    }
    inTransaction_ = false;
    try {
        plain(QStringLiteral("ROLLBACK"));
    } catch (const StoreError&) {
        if (place_.isServer()) {
            close(); // the connection is lost; the next statement makes another
        }
    }
}

QSqlQuery& SqlConnection::run(const char* statement, const QVariantList& values)
{
    if (name_.isEmpty()) {
        open();
    }
    auto entry = prepared_.find(statement);
    if (entry == prepared_.end()) {
        QSqlQuery query(QSqlDatabase::database(name_, false));
        query.setForwardOnly(true);
        if (!query.prepare(QLatin1String(statement))) {
            fail(query.lastError());
        }
        entry = prepared_.emplace(statement, std::move(query)).first;
    }
    QSqlQuery& query = entry->second;
    for (qsizetype at = 0; at < values.size(); ++at) {
        query.bindValue(static_cast<int>(at), values[at]);
    }
    if (!query.exec()) {
        fail(query.lastError());
    }
    return query;
}

void SqlConnection::plain(const QString& statement)
{
    if (name_.isEmpty()) {
        open();
    }
    QSqlQuery query(QSqlDatabase::database(name_, false));
    if (!query.exec(statement)) {
        fail(query.lastError());
    }
}

} // namespace phial::master
