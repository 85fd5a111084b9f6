#pragma once

#include "core/String.h"
#include "server/Frame.h"

#include <QTcpSocket>

#include <cstdint>
#include <string_view>
#include <vector>

namespace phial::test
{

/// A client that speaks the protocol by hand, and need not keep to it. It works while events run.
class WireClient
{
public:
    /// Connects to a port of this computer, as that sender.
    explicit WireClient(std::uint16_t port, std::uint64_t sender = 1);

    /// Sends a request under the next number, or under that id, and waits for nothing.
    void send(StringView text) { sendAs({sender_, ++number_}, text); }
    void sendAs(const FrameId& id, StringView text, bool unawaited = false);
    void sendBytes(std::string_view bytes);
    /// Closes the way to the master, and leaves the way back open.
    void sendNoMore();

    /// What has come in so far.
    const std::vector<Frame>& answers();
    /// Sends a request and waits for its answer's text; the empty text when none comes.
    String ask(StringView text);

    bool isConnected() const { return socket_.state() == QAbstractSocket::ConnectedState; }
    /// Whether the master closes the connection, if only after a while.
    bool isCutOff();
    QTcpSocket& socket() { return socket_; }

private:
    QTcpSocket socket_;
    FrameReader reader_;
    std::vector<Frame> answers_;
    std::uint64_t sender_;
    std::uint64_t number_ = 0;
};

} // namespace phial::test
