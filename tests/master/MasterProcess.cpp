#include "MasterProcess.h"

#include <QRegularExpression>

#include <csignal>

namespace phial::test
{

namespace
{

constexpr int Patience = 30000; // milliseconds

const QString& program()
{
    static const QString Path = QStringLiteral(PHIAL_MASTER);
    return Path;
}

} // namespace

MasterProcess::MasterProcess(const TemporaryFolder& folder)
    : folder_(QString::fromStdString(folder.native().string())), environment_(environmentIn(folder))
{
}

MasterProcess::~MasterProcess()
{
    kill();
}

bool MasterProcess::start(const QStringList& more)
{
    process_.setProcessEnvironment(environment_);
    process_.setProcessChannelMode(QProcess::MergedChannels);
    process_.start(program(), QStringList{QStringLiteral("--serve"), QStringLiteral("--data"), folder_,
                                          QStringLiteral("--udp"), QStringLiteral("0"),
                                          QStringLiteral("--port"), QString::number(port_)} +
                                  more);
    const QRegularExpression told(QStringLiteral("is running on .*, port (\\d+)\\."));
    QString output;
    while (process_.waitForReadyRead(Patience)) {
        output += QString::fromUtf8(process_.readAll());
        if (const auto match = told.match(output); match.hasMatch()) {
            port_ = match.captured(1).toUShort();
            return true;
        }
    }
    return false;
}

void MasterProcess::kill()
{
    if (process_.state() != QProcess::NotRunning) {
        process_.kill();
        process_.waitForFinished(Patience);
    }
}

int MasterProcess::end(int signal)
{
    ::kill(static_cast<pid_t>(process_.processId()), signal);
    const bool ended = process_.waitForFinished(Patience);
    return ended && process_.exitStatus() == QProcess::NormalExit ? process_.exitCode() : -1;
}

std::string MasterProcess::output()
{
    return process_.readAll().toStdString();
}

int MasterProcess::run(const QStringList& arguments, const QByteArray& input)
{
    QProcess process;
    process.setProcessEnvironment(environment_);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program(), QStringList{QStringLiteral("--data"), folder_} + arguments);
    process.write(input);
    process.closeWriteChannel();
    const bool ended = process.waitForFinished(Patience);
    ranOutput_ = process.readAll().toStdString();
    return ended ? process.exitCode() : -1;
}

QProcessEnvironment MasterProcess::environmentIn(const TemporaryFolder& folder)
{
    const QString home = QString::fromStdString(folder.native().string());
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* variable : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "PROGRAMDATA", "PUBLIC"}) {
        environment.insert(QLatin1String(variable), home);
    }
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
    return environment;
}

} // namespace phial::test
