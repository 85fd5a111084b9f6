#pragma once

#include "core/Clock.h"
#include "core/String.h"
#include "master/Classroom.h"
#include "master/ClientConnection.h"
#include "master/Notices.h"
#include "master/ServerLimits.h"
#include "master/StoreDesk.h"
#include "qt/base/DispatchGuard.h"

#include <QHostAddress>
#include <QNetworkDatagram>
#include <QObject>
#include <QTcpServer>
#include <QTimer>
#include <QUdpSocket>

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace phial::master
{

/// The master on the network: requests come in over connections that clients keep, answers go out.
///
/// What has come in by the time of a turn of the event loop is handed to the classroom in that turn. Some of
/// it is answered at once, the rest goes to the store together and is answered when it is kept.
class MasterServer
{
public:
    struct Address {
        QHostAddress address = QHostAddress::LocalHost;
        /// 0 takes any free port.
        std::uint16_t port = 10049;
        /// For questions by datagram; none is opened for 0.
        std::uint16_t udpPort = 10050;
    };

    /// All must outlive the object; errors of its handlers go to the guard.
    MasterServer(Classroom& classroom, StoreDesk& desk, const Clock& clock, const ServerLimits& limits,
                 Notices& notices, qt::DispatchGuard& guard);
    ~MasterServer();
    MasterServer(const MasterServer&) = delete;
    MasterServer& operator=(const MasterServer&) = delete;

    /// Begins to take in clients. False when the request port cannot be opened; the problem tells why.
    bool listen(const Address& address);
    /// Takes in nothing more; what is under way is still answered.
    void stopListening();
    QAbstractSocket::SocketError problem() const { return server_.serverError(); }
    QString problemText() const { return server_.errorString(); }
    /// Whether questions by datagram are answered: not when that port is taken or none was asked for.
    bool answersQuestions() const { return datagrams_.state() == QAbstractSocket::BoundState; }

    std::uint16_t port() const { return server_.serverPort(); }
    std::uint16_t udpPort() const { return datagrams_.localPort(); }
    std::size_t connections() const;

private:
    /// Hands over connections as the system has them.
    class Listener final : public QTcpServer
    {
    public:
        explicit Listener(std::function<void(qintptr)> taken) : taken_(std::move(taken)) {}

    protected:
        void incomingConnection(qintptr descriptor) override { taken_(descriptor); }

    private:
        std::function<void(qintptr)> taken_;
    };
    /// A client with what the server keeps of it.
    struct Client;
    /// What is left of a request while its answer is awaited.
    struct Asked {
        FrameId id;
        bool unawaited = false;
    };

    void takeIn(qintptr descriptor);
    bool makeRoomFor(const String& address);
    void clientClosed(Client& client, std::optional<Notice> reason, bool hasLeft);
    void schedule(const std::shared_ptr<Client>& client);
    void runTurn();
    void takeRequests(const std::shared_ptr<Client>& client);
    void receive(const std::shared_ptr<Client>& client, const Frame& frame);
    void reply(Client& client, const Asked& asked, const AnswerText& answer);
    void checkClients();
    void dropClosed();
    void keepWithinMemory();
    void answerQuestions();
    QHostAddress ownAddressFor(const QNetworkDatagram& question) const;
    MasterPlace placeFor(const String& ownAddress) const;

    Classroom& classroom_;
    StoreDesk& desk_;
    const Clock& clock_;
    const ServerLimits limits_;
    Notices& notices_;
    qt::DispatchGuard& guard_;
    RateLimit questions_;
    std::vector<std::shared_ptr<Client>> clients_;
    std::vector<std::shared_ptr<Client>> readable_;
    std::size_t answeredBytes_ = 0; // since memory was looked at
    bool isStopping_ = false;
    Listener server_;
    QUdpSocket datagrams_;
    QTimer turn_;
    QTimer check_;
};

} // namespace phial::master
