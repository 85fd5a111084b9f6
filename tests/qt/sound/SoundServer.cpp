#include "SoundServer.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>

#include <csignal>
#include <stdexcept>
#include <sys/prctl.h>

namespace phial::test
{

namespace
{

constexpr int ServerPatience = 30'000; // milliseconds

} // namespace

SoundServer::SoundServer(std::int32_t rate) : rate_(rate)
{
    QDir(path("")).mkdir(QStringLiteral("pulse"));
    QFile::setPermissions(path(""), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    QFile::setPermissions(path("pulse"), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    process_.setProcessEnvironment(environment());
    process_.setProcessChannelMode(QProcess::MergedChannels);
    process_.setStandardOutputFile(path("log"));
    start();
}

void SoundServer::start()
{
    // The server ends with our end of the pipe, even if a test breaks down.
    process_.start(
        QStringLiteral("sh"),
        {"-c", "pulseaudio \"$@\" & echo $! > \"$HOME/process\"; read end; kill -9 $!; wait", "server", "-n",
         "--daemonize=no", "--exit-idle-time=-1", "--realtime=no", "--high-priority=no", "--use-pid-file=no",
         "--log-target=stderr", "-L", "module-native-protocol-unix auth-anonymous=1 socket=" + path("socket"),
         "-L",
         QStringLiteral("module-null-sink sink_name=heard norewinds=1 format=s16le channels=2 rate=%1")
             .arg(rate_)});
    QElapsedTimer timer;
    timer.start();
    while (!answers()) {
        if (process_.state() == QProcess::NotRunning || timer.elapsed() > ServerPatience) {
            QFile log(path("log"));
            log.open(QFile::ReadOnly);
            throw std::runtime_error("the sound server does not start: " + log.readAll().toStdString());
        }
        process_.waitForFinished(10);
    }
}

SoundServer::~SoundServer()
{
    kill();
}

QProcessEnvironment SoundServer::environment() const
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* const name : {"HOME", "XDG_RUNTIME_DIR", "XDG_CONFIG_HOME"}) {
        environment.insert(name, path(""));
    }
    environment.insert("PULSE_RUNTIME_PATH", path("pulse"));
    environment.insert("PULSE_SERVER", "unix:" + path("socket"));
    for (const char* const name : {"DISPLAY", "WAYLAND_DISPLAY", "DBUS_SESSION_BUS_ADDRESS"}) {
        environment.remove(name);
    }
    environment.insert("QT_QPA_PLATFORM", "offscreen");
    return environment;
}

void SoundServer::useHere() const
{
    for (const QString& name : environment().keys()) {
        qputenv(name.toUtf8(), environment().value(name).toUtf8());
    }
}

void SoundServer::kill()
{
    process_.closeWriteChannel();
    process_.waitForFinished();
}

void SoundServer::halt()
{
    signal(SIGSTOP);
}

void SoundServer::goOn()
{
    signal(SIGCONT);
}

void SoundServer::signal(int number) const
{
    QFile file(path("process"));
    if (!file.open(QFile::ReadOnly) || ::kill(file.readAll().trimmed().toInt(), number) != 0) {
        throw std::runtime_error("the sound server takes no signal");
    }
}

bool SoundServer::answers() const
{
    QProcess question;
    question.setProcessEnvironment(environment());
    question.start(QStringLiteral("pactl"), {"info"});
    return question.waitForFinished(ServerPatience) && question.exitCode() == 0;
}

QString SoundServer::path(const char* name) const
{
    return QString::fromStdString((folder_.native() / name).string());
}

} // namespace phial::test
