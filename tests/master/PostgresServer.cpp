#include "PostgresServer.h"

#include <QDir>
#include <QElapsedTimer>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>

#include <csignal>
#include <filesystem>
#include <fstream>
#include <pwd.h>
#include <unistd.h>
#include <vector>

namespace phial::test
{

namespace
{

constexpr const char* Superuser = "phial";
constexpr int PatienceInMilliseconds = 20000;

/// The user to whom a test that runs as root hands the server; null for any other.
const passwd* ordinaryUser()
{
    if (geteuid() != 0) {
        return nullptr;
    }
    const passwd* user = getpwnam("postgres");
    return user != nullptr ? user : getpwnam("nobody");
}

QString folderOfBinaries()
{
    const QDir versions(QStringLiteral("/usr/lib/postgresql"));
    const QStringList names = versions.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
    return names.empty() ? QString() : versions.filePath(names.last() + QStringLiteral("/bin/"));
}

} // namespace

PostgresServer::PostgresServer() : binaries_(folderOfBinaries())
{
    prepareFolder();
    const QString data = place("data");
    if (!runToEnd(QStringLiteral("initdb"),
                  {QStringLiteral("-D"), data, QStringLiteral("-U"), QLatin1String(Superuser),
                   QStringLiteral("-A"), QStringLiteral("trust"), QStringLiteral("-E"),
                   QStringLiteral("UTF8"), QStringLiteral("--locale=C"), QStringLiteral("--no-sync")})) {
        return;
    }
    const QStringList command = asOrdinaryUser(
        QStringLiteral("postgres"),
        {QStringLiteral("-D"), data, QStringLiteral("-k"), place("socket"), QStringLiteral("-c"),
         QStringLiteral("listen_addresses="), QStringLiteral("-c"), QStringLiteral("fsync=off"),
         QStringLiteral("-c"), QStringLiteral("shared_buffers=16MB")});
    server_.setProcessChannelMode(QProcess::MergedChannels);
    server_.start(command.front(), command.mid(1));
    if (!waitUntilReady()) {
        trouble_ = "the server does not answer: " + server_.readAll().toStdString();
    }
}

PostgresServer::~PostgresServer()
{
    thaw();
    if (server_.state() != QProcess::NotRunning) {
        ::kill(static_cast<pid_t>(server_.processId()), SIGQUIT); // ends at once, which a test may
        server_.waitForFinished();
    }
}

void PostgresServer::prepareFolder()
{
    std::filesystem::permissions(folder_.native(), std::filesystem::perms(0755));
    for (const char* name : {"data", "socket"}) {
        const std::filesystem::path path = folder_.native() / name;
        std::filesystem::create_directory(path);
        std::filesystem::permissions(path, std::filesystem::perms(0700));
        if (const passwd* user = ordinaryUser();
            user != nullptr && chown(path.c_str(), user->pw_uid, user->pw_gid) != 0) {
            trouble_ = "the folder cannot be given to " + std::string(user->pw_name);
        }
    }
    if (ordinaryUser() != nullptr) {
        // Whoever is not root must be able to look for the socket.
        std::filesystem::permissions(folder_.native() / "socket", std::filesystem::perms(0755));
    }
}

bool PostgresServer::runToEnd(const QString& program, const QStringList& arguments)
{
    const QStringList command = asOrdinaryUser(program, arguments);
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(command.front(), command.mid(1));
    if (!process.waitForFinished(PatienceInMilliseconds) || process.exitCode() != 0) {
        trouble_ = program.toStdString() + ": " + process.errorString().toStdString() + "\n" +
                   process.readAll().toStdString();
        return false;
    }
    return true;
}

QStringList PostgresServer::asOrdinaryUser(const QString& program, const QStringList& arguments) const
{
    QStringList command{QStringLiteral("setpriv"), QStringLiteral("--pdeathsig"), QStringLiteral("SIGQUIT")};
    if (const passwd* user = ordinaryUser()) {
        command << QStringLiteral("--reuid") << QString::number(user->pw_uid) << QStringLiteral("--regid")
                << QString::number(user->pw_gid) << QStringLiteral("--clear-groups");
    }
    return command << QStringLiteral("--") << binaries_ + program << arguments;
}

bool PostgresServer::waitUntilReady()
{
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < PatienceInMilliseconds && server_.state() != QProcess::NotRunning) {
        if (query(QStringLiteral("SELECT 1"), QStringLiteral("postgres"))) {
            return true;
        }
        server_.waitForReadyRead(20); // its lines tell how far it is
    }
    return false;
}

bool PostgresServer::query(const QString& statement, const QString& database)
{
    const QString name = QStringLiteral("postgres-server-of-tests");
    bool done = false;
    {
        QSqlDatabase connection = QSqlDatabase::addDatabase(QStringLiteral("QPSQL"), name);
        connection.setHostName(place("socket"));
        connection.setDatabaseName(database);
        connection.setUserName(QLatin1String(Superuser));
        done = connection.open() && QSqlQuery(connection).exec(statement);
    }
    QSqlDatabase::removeDatabase(name);
    return done;
}

std::string PostgresServer::newDatabase()
{
    const QString name = QStringLiteral("room%1").arg(++databases_);
    if (!query(QStringLiteral("CREATE DATABASE ") + name, QStringLiteral("postgres"))) {
        trouble_ = "no new database";
    }
    return "postgresql://" + std::string(Superuser) + "@/" + name.toStdString() +
           "?host=" + place("socket").toStdString();
}

void PostgresServer::endConnections()
{
    query(QStringLiteral("SELECT pg_terminate_backend(pid, 5000) FROM pg_stat_activity "
                         "WHERE backend_type = 'client backend' AND pid <> pg_backend_pid()"),
          QStringLiteral("postgres"));
}

void PostgresServer::signalAll(int signal) const
{
    const std::string server = std::to_string(server_.processId());
    std::ifstream children("/proc/" + server + "/task/" + server + "/children");
    std::vector<pid_t> processes{static_cast<pid_t>(server_.processId())};
    for (pid_t child = 0; children >> child;) {
        processes.push_back(child);
    }
    for (const pid_t process : processes) {
        ::kill(process, signal);
    }
}

QString PostgresServer::place(const char* name) const
{
    return QString::fromStdString((folder_.native() / name).string());
}

} // namespace phial::test
