#include "qt/base/LocalInterCom.h"

#include "qt/base/InterComMessage.h"

#include <QLocalServer>
#include <QLocalSocket>

namespace phial::qt
{

namespace
{

constexpr std::size_t MaxTextUnits = 100'000;
constexpr int PatienceMilliseconds = 250;

bool someoneListens(const QString& address)
{
    QLocalSocket probe;
    probe.connectToServer(address, QIODevice::WriteOnly);
    return probe.waitForConnected(PatienceMilliseconds);
}

} // namespace

bool LocalInterCom::Send(StringView pTarget, std::int32_t pNumber, StringView pText)
{
    if (pText.size() > MaxTextUnits) {
        return false;
    }
    QLocalSocket socket;
    socket.connectToServer(interComAddress(pTarget), QIODevice::WriteOnly);
    if (!socket.waitForConnected(PatienceMilliseconds)) {
        return false;
    }
    socket.write(packInterCom({pNumber, String(pText)}));
    while (socket.bytesToWrite() > 0) {
        if (!socket.waitForBytesWritten(PatienceMilliseconds)) {
            return false;
        }
    }
    socket.disconnectFromServer();
    return true;
}

InterComReceiver::InterComReceiver(StringView name, std::shared_ptr<DispatchGuard> guard)
    : guard_(std::move(guard)), server_(std::make_unique<QLocalServer>())
{
    const QString address = interComAddress(name);
    server_->setSocketOptions(QLocalServer::UserAccessOption);
    QObject::connect(server_.get(), &QLocalServer::newConnection, server_.get(), [this] { accept(); });
    // A program that crashed leaves its socket behind: the name is taken, but nobody listens there.
    if (!someoneListens(address)) {
        QLocalServer::removeServer(address);
        server_->listen(address);
    }
}

InterComReceiver::~InterComReceiver() = default;

bool InterComReceiver::listening() const
{
    return server_->isListening();
}

void InterComReceiver::accept()
{
    while (QLocalSocket* socket = server_->nextPendingConnection()) {
        QObject::connect(socket, &QLocalSocket::readyRead, server_.get(), [this, socket] { read(*socket); });
        QObject::connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
        read(*socket);
    }
}

// One connection carries one message. What has come stays in the socket's buffer until the message is whole.
void InterComReceiver::read(QLocalSocket& socket)
{
    QByteArray bytes = socket.peek(MaxInterComBytes + 16);
    InterComMessage message;
    switch (takeInterCom(bytes, message)) {
    case InterComState::Incomplete:
        return;
    case InterComState::Malformed:
        socket.abort();
        return;
    case InterComState::Complete:
        break;
    }
    socket.disconnect(server_.get()); // a handler may run events; nothing is read twice
    socket.readAll();
    const auto guard = guard_; // a handler may end this receiver
    guard->run([&] { RECEIVED.raise(message.number, message.text); });
}

} // namespace phial::qt
