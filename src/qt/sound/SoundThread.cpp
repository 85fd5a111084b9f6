#include "qt/sound/SoundThread.h"

#include <QCoreApplication>

#include <cstdio>
#include <cstdlib>
#include <utility>

#ifdef __GLIBC__
#include <unistd.h>
#endif

namespace phial::qt
{

namespace
{

constexpr unsigned long EndPatience = 500; // milliseconds

std::shared_ptr<SoundThread> programsThread;

#ifdef __GLIBC__
/// The module's own tidying up would wait for the thread, or take away what it is using.
void endProcess(int status, void* thread)
{
    if (!static_cast<const QThread*>(thread)->isFinished()) {
        std::fflush(nullptr);
        _exit(status);
    }
}

void leaveBehind(QThread* thread)
{
    on_exit(endProcess, thread);
}
#else
/// Only servers that such systems have are known to hold a program up.
void leaveBehind(QThread*) {}
#endif

} // namespace

std::shared_ptr<SoundThread> SoundThread::shared()
{
    if (!programsThread) {
        programsThread = std::make_shared<SoundThread>();
        qAddPostRoutine(endShared);
    }
    return programsThread;
}

SoundThread::SoundThread()
{
    loudspeakers_.moveToThread(this);
    start();
}

SoundThread::~SoundThread() = default;

void SoundThread::run()
{
    loudspeakers_.begin();
    exec();
    loudspeakers_.end();
}

void SoundThread::endShared()
{
    qRemovePostRoutine(endShared);
    const std::shared_ptr<SoundThread> thread = std::exchange(programsThread, nullptr);
    thread->quit();
    if (!thread->wait(EndPatience)) {
        leaveBehind(thread.get());
        new std::shared_ptr<SoundThread>(thread); // it is in use for as long as the process lasts
    }
}

} // namespace phial::qt
