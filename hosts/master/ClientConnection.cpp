#include "master/ClientConnection.h"

#include "qt/base/NetAddress.h"

#include <array>
#include <utility>

namespace phial::master
{

namespace
{

/// What is read at a time.
constexpr std::size_t PieceBytes = std::size_t{16} << 10;

} // namespace

ClientConnection::ClientConnection(std::unique_ptr<StreamSocket> socket, const ServerLimits& limits,
                                   std::function<double()> now)
    : socket_(std::move(socket)), limits_(limits), now_(std::move(now)), reader_(limits.messageBytes),
      logOns_(limits.logOnsPerSecond, limits.logOnsAtOnce),
      peerAddress_(qt::addressText(socket_->peerAddress())),
      ownAddress_(qt::addressText(socket_->ownAddress())), heard_(now_()), completed_(heard_)
{
}

void ClientConnection::onReports(Reports reports)
{
    reports_ = std::move(reports);
    socket_->onReadable([this] {
        mayRead_ = true;
        reports_.readable();
    });
    socket_->onWritten([this] { closeWhenDone(); });
    socket_->awaitReadable();
}

std::optional<Frame> ClientConnection::nextRequest()
{
    if (!isOpen() || underWay_ >= limits_.underWay) {
        return std::nullopt;
    }
    auto frame = reader_.next();
    while (!frame && reader_.problem() == FrameProblem::None && feed()) {
        frame = reader_.next();
    }
    hasTakenAll_ = !frame;
    if (frame && frame->kind == FrameKind::Request) {
        completed_ = now_();
        hasAsked_ = true;
        ++underWay_;
        return frame;
    }
    if (frame || reader_.problem() != FrameProblem::None) {
        cutOff(reader_.problem() == FrameProblem::TooLong ? Notice::TooLong : Notice::NoRequest);
    }
    closeWhenDone();
    return std::nullopt;
}

/// Whether something has come.
bool ClientConnection::feed()
{
    if (!mayRead_) {
        return false;
    }
    std::array<char, PieceBytes> piece; // NOLINT(*-member-init): what is read fills it
    const std::size_t count = socket_->read(piece);
    if (count == 0) {
        mayRead_ = false;
        socket_->awaitReadable();
        return false;
    }
    heard_ = now_();
    if (reader_.pendingBytes() == 0) {
        completed_ = heard_; // a new message begins
    }
    reader_.feed({piece.data(), count});
    return true;
}

bool ClientConnection::hasMore() const
{
    return isOpen() && underWay_ < limits_.underWay && (!hasTakenAll_ || mayRead_);
}

void ClientConnection::answer(const FrameId& id, const String& text)
{
    if (isOpen() && text.size() > limits_.untakenBytes) {
        cutOff(Notice::AnswersUntaken); // it takes a byte for each unit at least
    }
    if (isOpen()) {
        socket_->write(encodeFrame({FrameKind::Answer, id, text}));
        if (socket_->unwritten() > limits_.untakenBytes) {
            cutOff(Notice::AnswersUntaken);
        }
    }
    drop();
}

void ClientConnection::drop()
{
    --underWay_;
    closeWhenDone();
}

bool ClientConnection::mayLogOn()
{
    return logOns_.pass(now_());
}

void ClientConnection::makeRoom()
{
    close(std::nullopt, false);
}

void ClientConnection::cutOff(Notice reason)
{
    close(reason, false);
}

void ClientConnection::checkTimes()
{
    const double now = now_();
    const bool isUnfinished = reader_.pendingBytes() > 0 && now - completed_ > limits_.unfinishedSeconds;
    const bool saysNothing = !hasAsked_ && now - completed_ > limits_.unfinishedSeconds;
    const bool takesNothing = socket_->hasEnded() && !isBusy() && now - heard_ > limits_.unfinishedSeconds;
    if (isOpen() && isUnfinished && hasTakenAll_) {
        cutOff(Notice::TooSlow);
    } else if (isOpen() && saysNothing) {
        cutOff(Notice::SaysNothing);
    } else if (takesNothing || now - heard_ > limits_.silentSeconds) {
        makeRoom();
    }
}

void ClientConnection::closeWhenDone()
{
    if (socket_->hasEnded() && hasTakenAll_ && !isBusy() && socket_->unwritten() == 0) {
        close(std::nullopt, true);
    }
}

void ClientConnection::close(std::optional<Notice> reason, bool hasLeft)
{
    if (!isOpen()) {
        return;
    }
    socket_->close();
    if (reports_.closed) {
        reports_.closed(reason, hasLeft);
    }
}

} // namespace phial::master
