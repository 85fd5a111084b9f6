#include "qt/LoopbackMaster.h"

#include <QTcpSocket>
#include <QTimer>

#include <gtest/gtest.h>

namespace phial::test
{

LoopbackMaster::LoopbackMaster()
    : script_([](const Frame& request, QTcpSocket& from) { answer(from, request, request.text); })
{
    QObject::connect(&server_, &QTcpServer::newConnection, &server_, [this] { accept(); });
    start();
}

LoopbackMaster::~LoopbackMaster()
{
    stop();
}

void LoopbackMaster::answer(QTcpSocket& to, const Frame& request, StringView text)
{
    send(to, encodeFrame({FrameKind::Answer, request.id, String(text)}));
}

void LoopbackMaster::send(QTcpSocket& to, std::string_view bytes)
{
    to.write(bytes.data(), static_cast<qint64>(bytes.size()));
}

void LoopbackMaster::sendInDrops(QTcpSocket& to, std::string bytes)
{
    if (bytes.empty()) {
        return;
    }
    send(to, bytes.substr(0, 1));
    to.flush();
    QTimer::singleShot(0, &to, [&to, rest = bytes.substr(1)] { sendInDrops(to, rest); });
}

void LoopbackMaster::broadcast(std::string_view bytes) const
{
    for (const auto& [socket, reader] : readers_) {
        send(*socket, bytes);
    }
}

void LoopbackMaster::hangUp()
{
    const auto readers = std::exchange(readers_, {});
    for (const auto& [socket, reader] : readers) {
        socket->disconnect();
        socket->abort();
        socket->deleteLater();
    }
}

void LoopbackMaster::stop()
{
    server_.close();
    hangUp();
}

void LoopbackMaster::start()
{
    ASSERT_TRUE(server_.listen(QHostAddress::LocalHost, static_cast<quint16>(port_)));
    port_ = server_.serverPort();
}

void LoopbackMaster::accept()
{
    while (QTcpSocket* socket = server_.nextPendingConnection()) {
        ++connectionsMade_;
        readers_.try_emplace(socket);
        QObject::connect(socket, &QTcpSocket::readyRead, &server_, [this, socket] { read(*socket); });
        QObject::connect(socket, &QTcpSocket::disconnected, &server_, [this, socket] {
            readers_.erase(socket);
            socket->deleteLater();
        });
        read(*socket);
    }
}

void LoopbackMaster::read(QTcpSocket& socket)
{
    const QByteArray bytes = socket.readAll();
    const auto reader = readers_.find(&socket);
    reader->second.feed(std::string_view(bytes.constData(), static_cast<std::size_t>(bytes.size())));
    while (const auto frame = reader->second.next()) {
        requests_.push_back(*frame);
        script_(*frame, socket);
        if (!readers_.contains(&socket)) {
            return; // the script has ended the connection
        }
    }
}

} // namespace phial::test
