#pragma once

#include "core/String.h"
#include "qt/base/DispatchGuard.h"
#include "server/Frame.h"
#include "server/RateLimit.h"
#include "server/TrafficLog.h"

#include <QTcpSocket>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace phial::qt
{

/// One kept connection to a master: requests go out, answers come back in any order.
///
/// Whoever waits runs events and keeps the connection meanwhile. Waits nest: the innermost ends first, and
/// each has its own answer, even if that came during an inner wait. An answer for which nobody waits is
/// dropped. A connection that is lost stays so; the next request makes a new one.
class NetConnection final : public std::enable_shared_from_this<NetConnection>
{
public:
    /// What is seen of the other end.
    enum class Sign : std::uint8_t {
        Connected, ///< the connection is there
        Heard,     ///< something has come over it
        Mute,      ///< it was given up, since nothing came over it
        Gone,      ///< it could not be made, or the other end has closed it
    };

    /// Told while events run, and may run none. What they raise goes to the guard.
    struct Reports {
        std::shared_ptr<DispatchGuard> guard;
        std::function<void(const Frame& frame, const QTcpSocket& from)> message;
        /// A note is "German|English".
        std::function<void(TrafficKind kind, StringView peer, StringView text)> traffic;
        std::function<void(Sign)> sign;
    };

    /// Begins to connect; host and port as a request names them. `pieceBytes` are taken from the socket at a
    /// time.
    NetConnection(StringView host, std::int32_t port, std::size_t pieceBytes, Reports reports);
    ~NetConnection();
    NetConnection(const NetConnection&) = delete;
    NetConnection& operator=(const NetConnection&) = delete;

    /// The host and the port, with a colon between them.
    static String peerName(StringView host, std::int32_t port);
    const String& peer() const { return peer_; }
    bool isOpen() const { return state_ == State::Open; }
    bool isLost() const { return state_ == State::Lost; }
    bool wasClosedThere() const { return isLost() && loss_ == Loss::ClosedThere; }

    /// Runs events until the connection is there; raises 68 if it cannot be made within that time.
    void waitUntilOpen(double seconds);
    /// Sends one frame, as soon as the connection is there. Raises 68 when it is lost, or when the other end
    /// takes so little that too much waits to be sent.
    void send(const Frame& frame);
    /// Runs events until the answer to that request is there; no value when the time runs out. Raises 68 when
    /// the connection is lost before.
    std::optional<String> waitForAnswer(FrameId request, double seconds);

    /// Sends what the socket takes at once and closes; waits end with 68.
    void close();

private:
    enum class State { Connecting, Open, Lost };
    enum class Loss { Unreachable, ClosedThere, ClosedHere, Foreign, Silent, Stalled };
    class Wait;

    void opened();
    void guardedRead();
    void read();
    void take(Frame frame);
    void lose(Loss loss);
    void tellWhyLost() const;
    [[noreturn]] void raiseLoss() const;

    String peer_;
    Reports reports_;
    std::string piece_;
    State state_ = State::Connecting;
    Loss loss_ = Loss::Unreachable;
    FrameReader reader_;
    RateLimit messages_;
    std::vector<Wait*> waits_; // innermost last
    std::string unsent_;       // until the connection is there
    int silentWaits_ = 0;      // that ended since the other end has last sent anything
    QTcpSocket socket_;
};

} // namespace phial::qt
