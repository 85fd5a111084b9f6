#pragma once

#include <QHostAddress>
#include <QSocketNotifier>

#include <cstddef>
#include <functional>
#include <span>
#include <string>
#include <string_view>

namespace phial::master
{

/// A connection that somebody has made to this computer. Unlike the toolkit's sockets it keeps its two ways
/// apart: when the other end has sent its last byte (a half-close) answers still go out, and what came before
/// the other end vanished can still be read. Nothing is read before it is asked for.
class StreamSocket
{
public:
    /// Takes the system's socket over.
    explicit StreamSocket(qintptr descriptor);
    ~StreamSocket();
    StreamSocket(const StreamSocket&) = delete;
    StreamSocket& operator=(const StreamSocket&) = delete;

    /// `readable` is called once for each `awaitReadable`, when there is something to be read, or the end of
    /// it; `written` when everything has gone out. The object must not be destroyed then.
    void onReadable(std::function<void()> readable) { readable_ = std::move(readable); }
    void onWritten(std::function<void()> written) { written_ = std::move(written); }
    void awaitReadable();

    /// Reads what there is, and gives how many bytes; 0 when there is nothing now, or nothing more.
    std::size_t read(std::span<char> piece);
    /// Whether nothing more will come.
    bool hasEnded() const { return hasEnded_; }

    /// Sends as much as the other end takes at once, and the rest when it takes it. What cannot be sent to
    /// one who has gone is dropped.
    void write(std::string_view bytes);
    std::size_t unwritten() const { return unwritten_.size() - sent_; }

    /// Closes at once; nothing is called any more.
    void close();
    bool isOpen() const { return descriptor_ != Closed; }

    QHostAddress peerAddress() const { return peerAddress_; }
    QHostAddress ownAddress() const { return ownAddress_; }

private:
    static constexpr qintptr Closed = -1;

    void sendOn();

    qintptr descriptor_;
    QHostAddress peerAddress_;
    QHostAddress ownAddress_;
    QSocketNotifier readNotifier_;
    QSocketNotifier writeNotifier_;
    std::function<void()> readable_;
    std::function<void()> written_;
    std::string unwritten_;
    std::size_t sent_ = 0; // of them
    bool hasEnded_ = false;
    bool takesNothing_ = false; // the other end
};

} // namespace phial::master
