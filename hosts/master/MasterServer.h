#pragma once

#include "core/Clock.h"
#include "core/String.h"
#include "master/Classroom.h"
#include "master/ClientConnection.h"
#include "master/ServerLimits.h"
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
#include <string>
#include <vector>

namespace phial::master
{

/// The master on the network: requests come in over connections that clients keep, answers go out.
///
/// Whatever has come in by the time of a turn of the event loop is answered in that turn: all its changes go
/// into the store in one commit, and only then the answers leave. So one flush of the disk serves many
/// clients. Where the commit fails each request is tried alone; the one whose changes cannot be stored gets
/// no answer, and the client asks again.
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

    /// `tell` takes what the teacher should know: what a failing store says. The other arguments must
    /// outlive the object; errors of its handlers go to the guard.
    MasterServer(Classroom& classroom, const Clock& clock, const ServerLimits& limits,
                 qt::DispatchGuard& guard, std::function<void(const std::string&)> tell);
    ~MasterServer();
    MasterServer(const MasterServer&) = delete;
    MasterServer& operator=(const MasterServer&) = delete;

    /// Begins to take in clients. False when the request port cannot be opened; the problem tells why.
    bool listen(const Address& address);
    QAbstractSocket::SocketError problem() const { return server_.serverError(); }
    QString problemText() const { return server_.errorString(); }
    /// Whether questions by datagram are answered: not when that port is taken or none was asked for.
    bool answersQuestions() const { return datagrams_.state() == QAbstractSocket::BoundState; }

    std::uint16_t port() const { return server_.serverPort(); }
    std::uint16_t udpPort() const { return datagrams_.localPort(); }
    std::size_t connections() const { return clients_.size(); }

private:
    /// A request whose answer is under way.
    struct Pending {
        std::shared_ptr<ClientConnection> client;
        Frame frame;
        String answer;
        bool isAnswered = false;
    };

    void takeInClients();
    void schedule(const std::shared_ptr<ClientConnection>& client);
    void runTurn();
    std::vector<Pending> takeRequests();
    void answerTogether(std::vector<Pending>& batch);
    void answerAlone(std::vector<Pending>& batch);
    void answer(Pending& pending);
    void undo(const std::string& trouble);
    void checkClients();
    void dropClosed();
    void forgetOld();
    void keepWithinMemory();
    void answerQuestions();
    QHostAddress ownAddressFor(const QNetworkDatagram& question) const;
    MasterPlace placeFor(const String& ownAddress) const;

    Classroom& classroom_;
    const Clock& clock_;
    const ServerLimits limits_;
    qt::DispatchGuard& guard_;
    std::function<void(const std::string&)> tell_;
    std::string toldTrouble_;
    RateLimit questions_;
    std::vector<std::shared_ptr<ClientConnection>> clients_;
    std::vector<std::shared_ptr<ClientConnection>> readable_;
    QTcpServer server_;
    QUdpSocket datagrams_;
    QTimer turn_;
    QTimer check_;
    QTimer forgetting_;
};

} // namespace phial::master
