#pragma once

#include "support/TemporaryFolder.h"

#include <QProcess>
#include <QString>
#include <QStringList>

#include <csignal>
#include <string>

namespace phial::test
{

/// A PostgreSQL server of its own, in a temporary folder, behind a socket in that folder. It runs as an
/// ordinary user, also where the test is root, and ends with the object or with the test's process.
class PostgresServer
{
public:
    PostgresServer();
    ~PostgresServer();
    PostgresServer(const PostgresServer&) = delete;
    PostgresServer& operator=(const PostgresServer&) = delete;

    /// Why it does not run; empty when it does.
    const std::string& trouble() const { return trouble_; }

    /// Makes a new database and gives its URL.
    std::string newDatabase();
    /// Ends all connections to the server, as when it is started again.
    void endConnections();
    /// Stops it in the middle of what it does, and lets it go on. It stays connected and says nothing.
    void freeze() { signalAll(SIGSTOP); }
    void thaw() { signalAll(SIGCONT); }

private:
    void prepareFolder();
    void signalAll(int signal) const;
    bool runToEnd(const QString& program, const QStringList& arguments);
    bool waitUntilReady();
    bool query(const QString& statement, const QString& database);
    QStringList asOrdinaryUser(const QString& program, const QStringList& arguments) const;
    QString place(const char* name) const;

    TemporaryFolder folder_;
    QString binaries_;
    std::string trouble_;
    QProcess server_;
    int databases_ = 0;
};

} // namespace phial::test
