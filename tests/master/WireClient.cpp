#include "WireClient.h"

#include "qt/Eventually.h"

#include <QHostAddress>

#include <sys/socket.h>

namespace phial::test
{

WireClient::WireClient(std::uint16_t port, std::uint64_t sender) : sender_(sender)
{
    socket_.connectToHost(QHostAddress(QHostAddress::LocalHost), port);
    // A connection that is closed at once has been one, too.
    eventually([this] { return isConnected() || socket_.state() == QAbstractSocket::UnconnectedState; });
}

void WireClient::sendAs(const FrameId& id, StringView text, bool unawaited)
{
    sendBytes(encodeFrame({FrameKind::Request, id, String(text), unawaited}));
}

void WireClient::sendBytes(std::string_view bytes)
{
    socket_.write(bytes.data(), static_cast<qint64>(bytes.size()));
}

void WireClient::sendNoMore()
{
    eventually([this] { return socket_.bytesToWrite() == 0; });
    ::shutdown(static_cast<int>(socket_.socketDescriptor()), SHUT_WR);
}

const std::vector<Frame>& WireClient::answers()
{
    const QByteArray bytes = socket_.readAll();
    reader_.feed({bytes.constData(), static_cast<std::size_t>(bytes.size())});
    while (auto frame = reader_.next()) {
        answers_.push_back(*std::move(frame));
    }
    return answers_;
}

String WireClient::ask(StringView text)
{
    const std::size_t before = answers().size();
    send(text);
    eventually([&] { return answers().size() > before || !isConnected(); });
    return answers_.size() > before ? answers_.back().text : String();
}

bool WireClient::isCutOff()
{
    return eventually([this] {
        answers(); // what is still on the way does not keep the connection
        return !isConnected();
    });
}

} // namespace phial::test
