#pragma once

#include "core/String.h"
#include "master/Notices.h"
#include "master/ServerLimits.h"
#include "master/StreamSocket.h"
#include "server/Frame.h"
#include "server/RateLimit.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>

namespace phial::master
{

/// One client's connection: takes frames out of what comes in and sends answers, within the limits.
///
/// Only so many requests of a client are under way at a time; the rest waits in the system, and in the end at
/// the client. When the client has sent its last one, what came before is still taken in and answered, and
/// then the connection ends. A client that does not keep to the limits, or sends what is no request, is cut
/// off.
class ClientConnection
{
public:
    /// `now` gives seconds of a clock that does not run backwards.
    ClientConnection(std::unique_ptr<StreamSocket> socket, const ServerLimits& limits,
                     std::function<double()> now);

    /// What is told; the object must not be destroyed then.
    struct Reports {
        std::function<void()> readable;
        /// Once. The notice says why the client was cut off; there is none when it has left by itself, or was
        /// told to make room.
        std::function<void(std::optional<Notice> reason, bool hasLeft)> closed;
    };
    void onReports(Reports reports);

    /// The next request; no value when none has come entirely, or enough are under way. It is under way until
    /// it is answered or dropped.
    std::optional<Frame> nextRequest();
    /// Whether more can be taken without waiting for the client.
    bool hasMore() const;
    /// Sends an answer, which cuts off a client that does not take its answers.
    void answer(const FrameId& id, const String& text);
    /// Ends a request without an answer.
    void drop();
    /// Whether one more log-on may be taken in.
    bool mayLogOn();

    /// Closes, to make room for others.
    void makeRoom();
    void cutOff(Notice reason);
    /// Cuts off a client that is too slow, or silent for too long.
    void checkTimes();

    bool isOpen() const { return socket_->isOpen(); }
    bool isBusy() const { return underWay_ > 0; }
    /// When something came last.
    double heard() const { return heard_; }
    /// What is held of unfinished requests and of answers that the client has not taken.
    std::size_t heldBytes() const { return reader_.pendingBytes() + socket_->unwritten(); }
    /// The client's address, and the one of this computer by which it has come.
    const String& peerAddress() const { return peerAddress_; }
    const String& ownAddress() const { return ownAddress_; }

private:
    bool feed();
    void closeWhenDone();
    void close(std::optional<Notice> reason, bool hasLeft);

    std::unique_ptr<StreamSocket> socket_;
    const ServerLimits& limits_;
    std::function<double()> now_;
    Reports reports_;
    FrameReader reader_;
    RateLimit logOns_;
    String peerAddress_;
    String ownAddress_;
    double heard_;
    double completed_;
    std::size_t underWay_ = 0;
    bool hasTakenAll_ = true; // no whole frame is waiting in the reader
    bool mayRead_ = false;    // something has come, or the end
    bool hasAsked_ = false;
};

} // namespace phial::master
