#include "qt/base/NetPort.h"

#include "core/RuntimeError.h"
#include "qt/base/Milliseconds.h"
#include "qt/base/QtClock.h"

#include <QTcpSocket>
#include <QTimer>

#include <algorithm>
#include <limits>

namespace phial::qt
{

namespace
{

constexpr qint64 RequestReadAhead = 16 * 1024;

} // namespace

struct NetPort::Caller {
    Caller(QTcpSocket& itsSocket, const NetLimits& limits)
        : socket(itsSocket), reader(limits.textBytes), patience(new QTimer(&itsSocket))
    {
        patience->setSingleShot(true);
        patience->setInterval(milliseconds(limits.frameSeconds));
    }

    QTcpSocket& socket;
    FrameReader reader;
    /// Runs while a message has begun and is not complete; the socket's child.
    QTimer* patience;
};

NetPort::NetPort(std::int32_t port, const NetLimits& limits, std::shared_ptr<DispatchGuard> guard,
                 Receiver receiver)
    : limits_(limits), guard_(std::move(guard)), receiver_(std::move(receiver)),
      rate_(limits.messagesPerSecond, limits.messagesAtOnce)
{
    QObject::connect(&server_, &QTcpServer::newConnection, &server_, [this] { accept(); });
    const bool isPort = port >= 0 && port <= std::numeric_limits<quint16>::max();
    if (!isPort || !server_.listen(QHostAddress::Any, static_cast<quint16>(port))) {
        throw RuntimeError(ErrorNumber::DeviceUnavailable, u"The port is taken");
    }
}

NetPort::~NetPort()
{
    for (const auto& caller : callers_) {
        caller->socket.disconnect();
    }
}

void NetPort::accept()
{
    while (QTcpSocket* socket = server_.nextPendingConnection()) {
        guard_->run([&] { add(*socket); });
    }
}

void NetPort::add(QTcpSocket& socket)
{
    if (callers_.size() >= limits_.connections) {
        drop(*callers_.front());
    }
    callers_.push_back(std::make_unique<Caller>(socket, limits_));
    Caller& caller = *callers_.back();
    socket.setReadBufferSize(RequestReadAhead);
    QObject::connect(caller.patience, &QTimer::timeout, &socket, [this, &caller] { drop(caller); });
    QObject::connect(&socket, &QTcpSocket::readyRead, &socket, [this, &caller] { hear(caller); });
    QObject::connect(&socket, &QTcpSocket::disconnected, &socket, [this, &caller] {
        if (hear(caller)) {
            drop(caller);
        }
    });
    hear(caller);
}

/// Gives whether the caller is still there.
bool NetPort::hear(Caller& caller)
{
    bool fits = false;
    guard_->run([&] { fits = read(caller); });
    if (!fits) {
        drop(caller);
    }
    return fits;
}

/// Reads what has come; gives whether the caller keeps to the rules.
bool NetPort::read(Caller& caller)
{
    const QByteArray bytes = caller.socket.readAll();
    caller.reader.feed({bytes.constData(), static_cast<std::size_t>(bytes.size())});
    while (const auto frame = caller.reader.next()) {
        caller.patience->stop();
        if (frame->kind != FrameKind::Message || !rate_.pass(QtClock().seconds())) {
            return false;
        }
        receiver_(*frame, caller.socket);
    }
    if (caller.reader.pendingBytes() > 0 && !caller.patience->isActive()) {
        caller.patience->start();
    }
    return caller.reader.problem() == FrameProblem::None;
}

void NetPort::drop(const Caller& caller)
{
    QTcpSocket& socket = caller.socket;
    caller.patience->stop();
    socket.disconnect();
    socket.abort();
    socket.deleteLater();
    std::erase_if(callers_, [&](const auto& one) { return one.get() == &caller; });
}

} // namespace phial::qt
