#pragma once

#include "core/String.h"
#include "master/ServerLimits.h"
#include "server/Frame.h"
#include "server/RateLimit.h"

#include <QTcpSocket>

#include <functional>
#include <memory>
#include <optional>

namespace phial::master
{

/// One client's connection: takes frames out of what comes in and sends answers, within the limits.
/// A client that does not keep to them, or sends what is no request, is cut off.
class ClientConnection
{
public:
    /// `now` gives seconds of a clock that does not run backwards.
    ClientConnection(std::unique_ptr<QTcpSocket> socket, const ServerLimits& limits,
                     std::function<double()> now);

    /// `readable` is called when there is something to be taken; the object must not be destroyed then.
    void onReadable(std::function<void()> readable);

    /// The next request; no value when none has come entirely.
    std::optional<Frame> nextRequest();
    /// Whether more can be taken without waiting for the client.
    bool hasMore() const;
    /// Cuts off a client that does not take its answers, and one whose answer is beyond what may wait.
    void answer(const FrameId& id, const String& text);
    /// Whether one more log-on may be taken in.
    bool mayLogOn();
    void cutOff();

    /// Cuts off a client that is too slow, or silent for too long.
    void checkTimes();

    bool isOpen() const;
    /// What is held of unfinished requests and of answers that the client has not taken.
    std::size_t heldBytes() const;
    /// The client's address, and the one of this computer by which it has come.
    const String& peerAddress() const { return peerAddress_; }
    const String& ownAddress() const { return ownAddress_; }

private:
    void feed();

    std::unique_ptr<QTcpSocket> socket_;
    const ServerLimits& limits_;
    std::function<double()> now_;
    FrameReader reader_;
    RateLimit logOns_;
    String peerAddress_;
    String ownAddress_;
    double heard_;
    double completed_;
    bool hasTakenAll_ = true; // no whole frame is waiting in the reader
    bool hasAsked_ = false;
};

} // namespace phial::master
