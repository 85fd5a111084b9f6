#include "master/MasterServer.h"

#include "qt/base/NetAddress.h"
#include "server/Announcement.h"
#include "server/WireText.h"

#include <QNetworkInterface>

#include <algorithm>
#include <chrono>
#include <utility>

namespace phial::master
{

namespace
{

using namespace std::chrono_literals;

constexpr std::size_t MaxBatch = 1000;
constexpr auto CheckInterval = 1s;
constexpr auto ForgettingInterval = 1h;

bool isLogOn(const String& text)
{
    const auto request = parseRequest(text);
    return request && equalsIgnoringCase(request->module, u"SERVER") &&
           equalsIgnoringCase(request->command, u"LOGON");
}

} // namespace

MasterServer::MasterServer(Classroom& classroom, const Clock& clock, const ServerLimits& limits,
                           qt::DispatchGuard& guard, std::function<void(const std::string&)> tell)
    : classroom_(classroom), clock_(clock), limits_(limits), guard_(guard), tell_(std::move(tell)),
      questions_(limits.questionsPerSecond, limits.questionsAtOnce)
{
    turn_.setSingleShot(true);
    const auto call = [this](void (MasterServer::*handler)()) {
        return [this, handler] { guard_.run([&] { (this->*handler)(); }); };
    };
    QObject::connect(&turn_, &QTimer::timeout, &turn_, call(&MasterServer::runTurn));
    QObject::connect(&check_, &QTimer::timeout, &check_, call(&MasterServer::checkClients));
    QObject::connect(&forgetting_, &QTimer::timeout, &forgetting_, call(&MasterServer::forgetOld));
    QObject::connect(&server_, &QTcpServer::newConnection, &server_, call(&MasterServer::takeInClients));
    QObject::connect(&datagrams_, &QUdpSocket::readyRead, &datagrams_, call(&MasterServer::answerQuestions));
}

MasterServer::~MasterServer() = default;

bool MasterServer::listen(const Address& address)
{
    server_.setListenBacklogSize(512);
    if (!server_.listen(address.address, address.port)) {
        return false;
    }
    if (address.udpPort > 0) {
        datagrams_.bind(address.address, address.udpPort, QAbstractSocket::DontShareAddress);
    }
    check_.start(CheckInterval);
    forgetting_.start(ForgettingInterval);
    return true;
}

void MasterServer::takeInClients()
{
    while (QTcpSocket* socket = server_.nextPendingConnection()) {
        std::unique_ptr<QTcpSocket> owned(socket);
        if (clients_.size() >= limits_.connections) {
            dropClosed();
        }
        if (clients_.size() >= limits_.connections) {
            owned->abort();
            continue;
        }
        auto client = std::make_shared<ClientConnection>(std::move(owned), limits_,
                                                         [this] { return clock_.seconds(); });
        clients_.push_back(client);
        const std::weak_ptr<ClientConnection> weak = client;
        client->onReadable([this, weak] { schedule(weak.lock()); });
        if (client->hasMore()) {
            schedule(client);
        }
    }
}

void MasterServer::schedule(const std::shared_ptr<ClientConnection>& client)
{
    if (client && std::ranges::find(readable_, client) == readable_.end()) {
        readable_.push_back(client);
    }
    if (!turn_.isActive()) {
        turn_.start(0);
    }
}

void MasterServer::runTurn()
{
    std::vector<Pending> batch = takeRequests();
    answerTogether(batch);
    for (const Pending& pending : batch) {
        if (pending.isAnswered && !pending.frame.unawaited) {
            pending.client->answer(pending.frame.id, pending.answer);
        }
    }
    keepWithinMemory();
    if (!readable_.empty()) {
        turn_.start(0);
    }
}

std::vector<MasterServer::Pending> MasterServer::takeRequests()
{
    std::vector<Pending> batch;
    std::vector<std::shared_ptr<ClientConnection>> later;
    for (const auto& client : std::exchange(readable_, {})) {
        for (std::size_t taken = 0; taken < limits_.messagesPerTurn && batch.size() < MaxBatch; ++taken) {
            auto frame = client->nextRequest();
            if (!frame) {
                break;
            }
            batch.push_back({client, *std::move(frame), {}});
        }
        if (client->hasMore()) {
            later.push_back(client);
        }
    }
    readable_.insert(readable_.begin(), later.begin(), later.end());
    return batch;
}

void MasterServer::answerTogether(std::vector<Pending>& batch)
{
    if (batch.empty()) {
        return;
    }
    try {
        for (Pending& pending : batch) {
            answer(pending);
        }
        classroom_.commit();
        toldTrouble_.clear();
    } catch (const StoreError& error) {
        undo(error.what());
        answerAlone(batch);
    }
}

void MasterServer::answerAlone(std::vector<Pending>& batch)
{
    for (Pending& pending : batch) {
        pending.isAnswered = false;
        try {
            answer(pending);
            classroom_.commit();
        } catch (const StoreError& error) {
            pending.isAnswered = false;
            undo(error.what());
        }
    }
}

void MasterServer::answer(Pending& pending)
{
    ClientConnection& client = *pending.client;
    if (isLogOn(pending.frame.text) && !client.mayLogOn()) {
        pending.answer = answerText(u"ERROR");
    } else {
        pending.answer = classroom_.answer(
            {pending.frame.id, client.peerAddress(), placeFor(client.ownAddress())}, pending.frame.text);
    }
    pending.isAnswered = true;
}

void MasterServer::undo(const std::string& trouble)
{
    if (trouble != toldTrouble_) {
        toldTrouble_ = trouble; // once, not for each request of a lesson
        tell_(trouble);
    }
    try {
        classroom_.undo();
    } catch (const StoreError&) {
        return; // the store is out of reach; the next request tries again
    }
}

void MasterServer::checkClients()
{
    for (const auto& client : clients_) {
        client->checkTimes();
    }
    dropClosed();
}

void MasterServer::dropClosed()
{
    std::erase_if(clients_, [](const auto& client) { return !client->isOpen(); });
}

void MasterServer::keepWithinMemory()
{
    std::size_t sum = 0;
    for (const auto& client : clients_) {
        sum += client->heldBytes();
    }
    while (sum > limits_.heldBytes) {
        const auto largest =
            std::ranges::max_element(clients_, {}, [](const auto& client) { return client->heldBytes(); });
        sum -= (*largest)->heldBytes();
        (*largest)->cutOff();
        clients_.erase(largest);
    }
}

void MasterServer::answerQuestions()
{
    while (datagrams_.hasPendingDatagrams()) {
        const QNetworkDatagram datagram =
            datagrams_.receiveDatagram(static_cast<qint64>(MaxAnnouncementBytes) + 1);
        const auto question = decodeAnnouncement(datagram.data().toStdString());
        if (!question || !question->isQuestion() || !questions_.pass(clock_.seconds())) {
            continue;
        }
        const String own = qt::addressText(ownAddressFor(datagram));
        const std::string bytes = encodeAnnouncement({classroom_.settingsText(placeFor(own))});
        datagrams_.writeDatagram(
            datagram.makeReply(QByteArray(bytes.data(), static_cast<qsizetype>(bytes.size()))));
    }
}

QHostAddress MasterServer::ownAddressFor(const QNetworkDatagram& question) const
{
    const QHostAddress asked = question.destinationAddress();
    const QHostAddress bound = server_.serverAddress();
    for (const QNetworkInterface& interface : QNetworkInterface::allInterfaces()) {
        for (const QNetworkAddressEntry& entry : interface.addressEntries()) {
            const bool isInNet = entry.prefixLength() >= 0 &&
                                 question.senderAddress().isInSubnet(entry.ip(), entry.prefixLength());
            if (entry.ip() == asked || (asked.isBroadcast() && isInNet)) {
                return entry.ip();
            }
        }
    }
    return asked.isNull() || asked.isBroadcast() || asked.isMulticast() ? bound : asked;
}

void MasterServer::forgetOld()
{
    try {
        classroom_.forgetOld();
    } catch (const StoreError& error) {
        undo(error.what());
    }
}

MasterPlace MasterServer::placeFor(const String& ownAddress) const
{
    return {ownAddress, port(), udpPort()};
}

} // namespace phial::master
