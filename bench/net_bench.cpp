// The round trip of a request: the network client with a server of frames, beside a bare socket with an echo
// of as many bytes. Each server has a thread of its own, both kept connections go over the loopback, both
// clients wait in an event loop; what is measured is the time by the clock.

#include "qt/base/DispatchGuard.h"
#include "qt/base/QtNetClient.h"
#include "server/Frame.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QTcpServer>
#include <QTcpSocket>
#include <QThread>

#include <benchmark/benchmark.h>
#include <functional>
#include <memory>
#include <semaphore>
#include <stdexcept>
#include <string>

namespace
{

using namespace phial;

/// Takes what has come on a connection and answers it.
using Service = std::function<void(QTcpSocket& socket)>;

/// Listens on the loopback, in a thread of its own, until its end.
class Server
{
public:
    /// Makes the service of each connection.
    explicit Server(std::function<Service()> newService)
    {
        thread_.reset(QThread::create([this, newService = std::move(newService)] { run(newService); }));
        thread_->start();
        ready_.acquire();
    }
    ~Server()
    {
        thread_->quit();
        thread_->wait();
    }
    Server(const Server&) = delete;
    Server& operator=(const Server&) = delete;

    quint16 port() const { return port_; }

private:
    void run(const std::function<Service()>& newService)
    {
        QTcpServer server;
        server.listen(QHostAddress::LocalHost);
        QObject::connect(&server, &QTcpServer::newConnection, &server, [&] {
            QTcpSocket* const socket = server.nextPendingConnection();
            socket->setSocketOption(QAbstractSocket::LowDelayOption, 1);
            QObject::connect(socket, &QTcpSocket::readyRead, socket,
                             [socket, service = newService()] { service(*socket); });
        });
        port_ = server.serverPort();
        QEventLoop loop;
        QObject::connect(thread_.get(), &QThread::finished, &loop, &QEventLoop::quit);
        ready_.release();
        loop.exec();
    }

    std::unique_ptr<QThread> thread_;
    std::binary_semaphore ready_{0};
    quint16 port_ = 0;
};

Service echoOfFrames()
{
    return [reader = std::make_shared<FrameReader>()](QTcpSocket& socket) {
        const QByteArray bytes = socket.readAll();
        reader->feed({bytes.constData(), static_cast<std::size_t>(bytes.size())});
        while (const auto frame = reader->next()) {
            const std::string answer = encodeFrame({FrameKind::Answer, frame->id, frame->text});
            socket.write(answer.data(), static_cast<qint64>(answer.size()));
        }
    };
}

Service echoOfBytes()
{
    return [](QTcpSocket& socket) { socket.write(socket.readAll()); };
}

void netClient(benchmark::State& state, std::size_t length)
{
    const Server server(echoOfFrames);
    qt::QtNetClient client(std::make_shared<qt::DispatchGuard>());
    const String text(length, u'a');
    const auto ask = [&] { return client.Request(text, u"127.0.0.1", server.port(), nullptr, true, u""); };
    for (auto step : state) {
        if (ask() != text) {
            throw std::runtime_error("wrong answer");
        }
    }
}

void bareSocket(benchmark::State& state, std::size_t length)
{
    const Server server(echoOfBytes);
    QTcpSocket socket;
    socket.connectToHost(QHostAddress::LocalHost, server.port());
    if (!socket.waitForConnected()) {
        throw std::runtime_error("no connection");
    }
    socket.setSocketOption(QAbstractSocket::LowDelayOption, 1);
    const QByteArray sent(static_cast<qsizetype>(FrameHeadBytes + length), 'a');
    QEventLoop loop;
    QByteArray answer;
    QObject::connect(&socket, &QTcpSocket::readyRead, &loop, [&] {
        answer += socket.readAll();
        if (answer.size() >= sent.size()) {
            loop.quit();
        }
    });
    for (auto step : state) {
        answer.clear();
        socket.write(sent);
        loop.exec();
        if (answer != sent) {
            throw std::runtime_error("wrong answer");
        }
    }
}

void measure(const std::string& family, void (*roundTrip)(benchmark::State&, std::size_t))
{
    for (const std::size_t length : {30U, 1'000U, 10'000U}) {
        const std::string name = family + "round trip of " + std::to_string(length) + " characters";
        benchmark::RegisterBenchmark(name.c_str(), roundTrip, length)
            ->UseRealTime()
            ->Unit(benchmark::kMicrosecond);
    }
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    measure("network: ", netClient);
    measure("bare TCP: ", bareSocket);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
