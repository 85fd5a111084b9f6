#include "master/EndSignals.h"

#include <array>
#include <atomic>
#include <csignal>
#include <cstdlib>

#ifdef _WIN32
#include <QCoreApplication>

#include <windows.h>
#else
#include <QSocketNotifier>

#include <fcntl.h>
#include <unistd.h>
#endif

namespace phial::master
{

#ifdef _WIN32

struct EndSignals::Receiver {
    static inline std::function<void()> onEnd;

    static BOOL WINAPI handle(DWORD /*event*/)
    {
        QMetaObject::invokeMethod(QCoreApplication::instance(), onEnd, Qt::QueuedConnection);
        return TRUE;
    }
};

EndSignals::EndSignals(std::function<void()> onEnd) : receiver_(std::make_unique<Receiver>())
{
    Receiver::onEnd = std::move(onEnd);
    SetConsoleCtrlHandler(&Receiver::handle, TRUE);
}

EndSignals::~EndSignals()
{
    SetConsoleCtrlHandler(&Receiver::handle, FALSE);
}

#else

namespace
{

constexpr std::array Signals{SIGTERM, SIGINT, SIGHUP};

/// A handler may do next to nothing, so it writes a byte, which the event loop reads.
std::atomic<int> writeEnd = -1;
std::atomic<int> received = 0;
static_assert(std::atomic<int>::is_always_lock_free);

extern "C" void noteSignal(int signal)
{
    if (++received > 1) {
        std::_Exit(128 + signal);
    }
    const char byte = 0;
    [[maybe_unused]] const auto written = write(writeEnd, &byte, 1);
}

} // namespace

struct EndSignals::Receiver {
    std::array<int, 2> pipe{};
    std::unique_ptr<QSocketNotifier> notifier;
};

EndSignals::EndSignals(std::function<void()> onEnd) : receiver_(std::make_unique<Receiver>())
{
    if (pipe(receiver_->pipe.data()) != 0) {
        return;
    }
    for (const int end : receiver_->pipe) {
        fcntl(end, F_SETFD, FD_CLOEXEC);
    }
    writeEnd = receiver_->pipe[1];
    receiver_->notifier = std::make_unique<QSocketNotifier>(receiver_->pipe[0], QSocketNotifier::Read);
    QObject::connect(receiver_->notifier.get(), &QSocketNotifier::activated, receiver_->notifier.get(),
                     [this, onEnd = std::move(onEnd)] {
                         receiver_->notifier->setEnabled(false);
                         onEnd();
                     });
    std::signal(SIGPIPE, SIG_IGN); // a terminal that has gone is no reason to end
    for (const int signal : Signals) {
        if (std::signal(signal, noteSignal) == SIG_IGN) {
            std::signal(signal, SIG_IGN); // who started the program wants it so, as nohup does
        }
    }
}

EndSignals::~EndSignals()
{
    for (const int signal : Signals) {
        std::signal(signal, SIG_DFL);
    }
    writeEnd = -1;
    received = 0;
    receiver_->notifier.reset();
    for (const int end : receiver_->pipe) {
        close(end);
    }
}

#endif

} // namespace phial::master
