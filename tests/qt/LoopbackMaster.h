#pragma once

#include "core/String.h"
#include "server/Frame.h"

#include <QTcpServer>

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

class QTcpSocket;

namespace phial::test
{

/// A master on this computer's loopback whose behaviour a test writes. It lives in the test's own thread, so
/// it works while events run, as during a client's waits.
class LoopbackMaster
{
public:
    /// Called for each request; it may answer then, later, twice, or never.
    using Script = std::function<void(const Frame& request, QTcpSocket& from)>;

    /// Answers every request with the request's own text.
    LoopbackMaster();
    ~LoopbackMaster();
    LoopbackMaster(const LoopbackMaster&) = delete;
    LoopbackMaster& operator=(const LoopbackMaster&) = delete;

    std::int32_t port() const { return port_; }
    void script(Script script) { script_ = std::move(script); }

    /// What has come in so far, over all connections.
    const std::vector<Frame>& requests() const { return requests_; }
    int connectionsMade() const { return connectionsMade_; }
    /// Those that are open.
    std::size_t connections() const { return readers_.size(); }

    static void answer(QTcpSocket& to, const Frame& request, StringView text);
    static void send(QTcpSocket& to, std::string_view bytes);
    /// One byte after the other, each at an event of its own.
    static void sendInDrops(QTcpSocket& to, std::string bytes);
    /// To all open connections.
    void broadcast(std::string_view bytes) const;

    void hangUp();
    /// Ends all connections and listens no more, as a master that is switched off.
    void stop();
    /// Listens again on the same port.
    void start();

private:
    void accept();
    void read(QTcpSocket& socket);

    Script script_;
    std::vector<Frame> requests_;
    std::map<QTcpSocket*, FrameReader> readers_;
    int connectionsMade_ = 0;
    std::int32_t port_ = 0;
    QTcpServer server_;
};

} // namespace phial::test
