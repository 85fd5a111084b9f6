#include "master/ConsoleInput.h"

#include <QMetaObject>
#include <QObject>

#include <iostream>
#include <mutex>
#include <thread>
#include <utility>

#ifdef _WIN32
#include <io.h>
#else
#include <unistd.h>
#endif

namespace phial::master
{

/// What the reading thread hands lines to. Reading blocks and cannot be called off, so the thread may outlive
/// the input; it then finds that nobody listens.
struct ConsoleInput::Receiver {
    std::function<void(const std::string&)> onLine;
    std::function<void()> onEnd;
    std::mutex mutex;
    std::unique_ptr<QObject> context = std::make_unique<QObject>(); // guarded by `mutex`

    void post(const std::function<void()>& call)
    {
        const std::scoped_lock lock(mutex);
        if (context) {
            QMetaObject::invokeMethod(context.get(), call, Qt::QueuedConnection);
        }
    }
};

namespace
{

bool isTerminalNumber(int file)
{
#ifdef _WIN32
    return _isatty(file) != 0;
#else
    return isatty(file) != 0;
#endif
}

} // namespace

ConsoleInput::ConsoleInput(std::function<void(const std::string& line)> onLine, std::function<void()> onEnd)
    : receiver_(std::make_shared<Receiver>())
{
    receiver_->onLine = std::move(onLine);
    receiver_->onEnd = std::move(onEnd);
    std::thread([receiver = receiver_] {
        for (std::string line; std::getline(std::cin, line);) {
            receiver->post([receiver, line] { receiver->onLine(line); });
        }
        receiver->post([receiver] { receiver->onEnd(); });
    }).detach();
}

ConsoleInput::~ConsoleInput()
{
    const std::scoped_lock lock(receiver_->mutex);
    receiver_->context.reset(); // and what was posted with it
}

bool ConsoleInput::isTerminal()
{
    return isTerminalNumber(0);
}

} // namespace phial::master
