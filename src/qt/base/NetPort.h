#pragma once

#include "qt/base/DispatchGuard.h"
#include "qt/base/NetLimits.h"
#include "server/Frame.h"
#include "server/RateLimit.h"

#include <QTcpServer>

#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

class QTcpSocket;

namespace phial::qt
{

/// A local port on which messages come in, from this computer and from others. It never answers. Whoever
/// sends anything but messages, or goes beyond a limit, loses the connection; the port goes on listening.
class NetPort
{
public:
    /// Told while events run, and may run none. What it raises goes to the guard.
    using Receiver = std::function<void(const Frame& frame, const QTcpSocket& from)>;

    /// Listens on all of the computer's addresses; port 0 takes any free one. Raises 68 when the port is
    /// taken, or is none.
    NetPort(std::int32_t port, const NetLimits& limits, std::shared_ptr<DispatchGuard> guard,
            Receiver receiver);
    ~NetPort();
    NetPort(const NetPort&) = delete;
    NetPort& operator=(const NetPort&) = delete;

    /// The port on which it listens.
    std::int32_t number() const { return server_.serverPort(); }

private:
    struct Caller;

    void accept();
    void add(QTcpSocket& socket);
    bool hear(Caller& caller);
    bool read(Caller& caller);
    void drop(const Caller& caller);

    NetLimits limits_;
    std::shared_ptr<DispatchGuard> guard_;
    Receiver receiver_;
    RateLimit rate_;
    std::vector<std::unique_ptr<Caller>> callers_; // the oldest first
    QTcpServer server_;                            // owns the sockets
};

} // namespace phial::qt
