#include "qt/base/Processes.h"

#include "core/NativePath.h"
#include "qt/base/QtText.h"

#include <QProcess>
#include <QStringList>

#include <set>

namespace phial::qt
{

namespace
{

QString nativeProgram(StringView program)
{
    const bool isPath = program.find_first_of(u"\\/") != StringView::npos;
    return isPath ? toQt(nativePath(program).u16string()) : toQt(program);
}

/// A process that reads nothing from the terminal, and writes where this one does.
std::unique_ptr<QProcess> preparedProcess(const ProgramCall& call)
{
    auto process = std::make_unique<QProcess>();
    process->setProgram(nativeProgram(call.program));
    QStringList arguments;
    for (const String& argument : call.arguments) {
        arguments += toQt(argument);
    }
    process->setArguments(arguments);
    if (!call.folder.empty()) {
        process->setWorkingDirectory(toQt(nativePath(call.folder).u16string()));
    }
    process->setStandardInputFile(QProcess::nullDevice());
    process->setProcessChannelMode(QProcess::ForwardedChannels);
    return process;
}

/// Programs that go on although nobody watches them: the toolkit's object kills its program when it goes
/// first, so those still running at the end of this program are never destroyed.
std::set<QProcess*>& unwatchedProcesses()
{
    static auto* const processes = new std::set<QProcess*>;
    return *processes;
}

void letGoOn(std::unique_ptr<QProcess> running)
{
    QProcess* process = running.release();
    unwatchedProcesses().insert(process);
    QObject::connect(process, &QProcess::finished, process, [process] {
        unwatchedProcesses().erase(process);
        process->deleteLater();
    });
}

class WatchedProcess final : public RunningProgram
{
public:
    explicit WatchedProcess(std::unique_ptr<QProcess> process) : process_(std::move(process)) {}
    ~WatchedProcess() override
    {
        if (isRunning()) {
            letGoOn(std::move(process_));
        }
    }
    WatchedProcess(const WatchedProcess&) = delete;
    WatchedProcess& operator=(const WatchedProcess&) = delete;

    bool isRunning() const override { return process_->state() != QProcess::NotRunning; }
    std::int32_t result() const override
    {
        return process_->exitStatus() == QProcess::NormalExit ? process_->exitCode() : Broken;
    }

private:
    std::unique_ptr<QProcess> process_;
};

} // namespace

std::int64_t startProcess(const ProgramCall& call)
{
    const auto process = preparedProcess(call);
    qint64 number = 0;
    return !process->program().isEmpty() && process->startDetached(&number) ? number : 0;
}

std::unique_ptr<RunningProgram> startWatchedProcess(const ProgramCall& call)
{
    auto process = preparedProcess(call);
    if (process->program().isEmpty()) {
        return nullptr;
    }
    process->start();
    // The program itself runs at once; what is awaited is only that the system has found it.
    return process->waitForStarted() ? std::make_unique<WatchedProcess>(std::move(process)) : nullptr;
}

} // namespace phial::qt
