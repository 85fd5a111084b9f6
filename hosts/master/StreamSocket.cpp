#include "master/StreamSocket.h"

#include "master/SystemSocket.h"

#include <array>
#include <utility>

namespace phial::master
{

StreamSocket::StreamSocket(qintptr descriptor)
    : descriptor_(descriptor), peerAddress_(systemsocket::peerAddress(descriptor)),
      ownAddress_(systemsocket::ownAddress(descriptor)), readNotifier_(descriptor, QSocketNotifier::Read),
      writeNotifier_(descriptor, QSocketNotifier::Write)
{
    systemsocket::prepare(descriptor);
    readNotifier_.setEnabled(false);
    writeNotifier_.setEnabled(false);
    QObject::connect(&readNotifier_, &QSocketNotifier::activated, &readNotifier_, [this] {
        readNotifier_.setEnabled(false);
        if (readable_) {
            readable_();
        }
    });
    QObject::connect(&writeNotifier_, &QSocketNotifier::activated, &writeNotifier_, [this] {
        sendOn();
        if (unwritten() == 0 && written_) {
            written_();
        }
    });
}

StreamSocket::~StreamSocket()
{
    close();
}

void StreamSocket::awaitReadable()
{
    readNotifier_.setEnabled(isOpen() && !hasEnded_);
}

std::size_t StreamSocket::read(std::span<char> piece)
{
    if (!isOpen() || hasEnded_) {
        return 0;
    }
    const systemsocket::Moved moved = systemsocket::receive(descriptor_, piece);
    hasEnded_ = moved.isOver;
    return moved.bytes;
}

void StreamSocket::write(std::string_view bytes)
{
    if (!isOpen() || takesNothing_) {
        return;
    }
    unwritten_ += bytes;
    if (!writeNotifier_.isEnabled()) {
        sendOn();
    }
}

void StreamSocket::sendOn()
{
    while (unwritten() > 0) {
        const auto moved = systemsocket::send(descriptor_, std::string_view(unwritten_).substr(sent_));
        sent_ += moved.bytes;
        takesNothing_ = moved.isOver;
        if (moved.bytes == 0) {
            break;
        }
    }
    if (takesNothing_ || unwritten() == 0) {
        unwritten_ = {};
        sent_ = 0;
    }
    writeNotifier_.setEnabled(unwritten() > 0);
}

void StreamSocket::close()
{
    if (!isOpen()) {
        return;
    }
    readNotifier_.setEnabled(false);
    writeNotifier_.setEnabled(false);
    systemsocket::close(std::exchange(descriptor_, Closed));
    unwritten_ = {};
    sent_ = 0;
}

} // namespace phial::master
