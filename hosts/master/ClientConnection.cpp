#include "master/ClientConnection.h"

#include "qt/base/NetAddress.h"

#include <array>

namespace phial::master
{

namespace
{

/// What is read at a time; as much again may wait in the socket.
constexpr qint64 PieceBytes = 16 << 10;

} // namespace

ClientConnection::ClientConnection(std::unique_ptr<QTcpSocket> socket, const ServerLimits& limits,
                                   std::function<double()> now)
    : socket_(std::move(socket)), limits_(limits), now_(std::move(now)), reader_(limits.messageBytes),
      logOns_(limits.logOnsPerSecond, limits.logOnsAtOnce),
      peerAddress_(qt::addressText(socket_->peerAddress())),
      ownAddress_(qt::addressText(socket_->localAddress())), heard_(now_()), completed_(heard_)
{
    socket_->setParent(nullptr);
    socket_->setReadBufferSize(PieceBytes);
    socket_->setSocketOption(QAbstractSocket::LowDelayOption, 1);
}

void ClientConnection::onReadable(std::function<void()> readable)
{
    QObject::connect(socket_.get(), &QTcpSocket::readyRead, socket_.get(), std::move(readable));
}

std::optional<Frame> ClientConnection::nextRequest()
{
    while (true) {
        auto frame = reader_.next();
        if (!frame && reader_.problem() == FrameProblem::None && socket_->bytesAvailable() > 0) {
            feed();
            continue;
        }
        hasTakenAll_ = !frame;
        if (reader_.problem() != FrameProblem::None || (frame && frame->kind != FrameKind::Request)) {
            cutOff();
            return std::nullopt;
        }
        if (frame) {
            completed_ = now_();
            hasAsked_ = true;
        }
        return frame;
    }
}

bool ClientConnection::hasMore() const
{
    return isOpen() && (!hasTakenAll_ || socket_->bytesAvailable() > 0);
}

void ClientConnection::answer(const FrameId& id, const String& text)
{
    if (!isOpen()) {
        return;
    }
    if (text.size() > limits_.untakenBytes) {
        cutOff(); // it takes a byte for each unit at least, and may not even fit into a frame
        return;
    }
    const std::string bytes = encodeFrame({FrameKind::Answer, id, text});
    socket_->write(bytes.data(), static_cast<qint64>(bytes.size()));
    if (static_cast<std::size_t>(socket_->bytesToWrite()) > limits_.untakenBytes) {
        socket_->flush();
        if (static_cast<std::size_t>(socket_->bytesToWrite()) > limits_.untakenBytes) {
            cutOff();
        }
    }
}

bool ClientConnection::mayLogOn()
{
    return logOns_.pass(now_());
}

void ClientConnection::cutOff()
{
    socket_->abort();
}

void ClientConnection::checkTimes()
{
    const double now = now_();
    const bool isUnfinished =
        (reader_.pendingBytes() > 0 || !hasAsked_) && now - completed_ > limits_.unfinishedSeconds;
    if (isUnfinished || now - heard_ > limits_.silentSeconds) {
        cutOff();
    }
}

bool ClientConnection::isOpen() const
{
    return socket_->state() == QAbstractSocket::ConnectedState;
}

std::size_t ClientConnection::heldBytes() const
{
    return reader_.pendingBytes() + static_cast<std::size_t>(socket_->bytesToWrite());
}

void ClientConnection::feed()
{
    std::array<char, PieceBytes> piece{};
    const qint64 length = socket_->read(piece.data(), static_cast<qint64>(piece.size()));
    if (length > 0) {
        if (reader_.pendingBytes() == 0 && hasAsked_) {
            completed_ = now_(); // from here on the next message has its time
        }
        heard_ = now_();
        reader_.feed({piece.data(), static_cast<std::size_t>(length)});
    }
}

} // namespace phial::master
