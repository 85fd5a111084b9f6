#include "master/MasterServer.h"

#include "core/NumberText.h"
#include "master/Seats.h"
#include "master/StreamSocket.h"
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

constexpr auto CheckInterval = 1s;

bool isLogOn(const String& text)
{
    const auto request = parseRequest(text);
    return request && equalsIgnoringCase(request->module, u"SERVER") &&
           equalsIgnoringCase(request->command, u"LOGON");
}

} // namespace

struct MasterServer::Client {
    Client(std::unique_ptr<StreamSocket> socket, const ServerLimits& limits, std::function<double()> now)
        : connection(std::move(socket), limits, std::move(now))
    {
    }

    ClientConnection connection;
    /// Who sends over it.
    std::optional<std::uint64_t> sender;
    bool isScheduled = false;
};

MasterServer::MasterServer(Classroom& classroom, StoreDesk& desk, const Clock& clock,
                           const ServerLimits& limits, Notices& notices, qt::DispatchGuard& guard)
    : classroom_(classroom), desk_(desk), clock_(clock), limits_(limits), notices_(notices), guard_(guard),
      questions_(limits.questionsPerSecond, limits.questionsAtOnce),
      server_([this](qintptr descriptor) { guard_.run([&] { takeIn(descriptor); }); })
{
    turn_.setSingleShot(true);
    const auto call = [this](void (MasterServer::*handler)()) {
        return [this, handler] { guard_.run([&] { (this->*handler)(); }); };
    };
    QObject::connect(&turn_, &QTimer::timeout, &turn_, call(&MasterServer::runTurn));
    QObject::connect(&check_, &QTimer::timeout, &check_, call(&MasterServer::checkClients));
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
    return true;
}

void MasterServer::stopListening()
{
    isStopping_ = true;
    server_.close();
    datagrams_.close();
}

std::size_t MasterServer::connections() const
{
    return static_cast<std::size_t>(
        std::ranges::count_if(clients_, [](const auto& client) { return client->connection.isOpen(); }));
}

void MasterServer::takeIn(qintptr descriptor)
{
    auto client = std::make_shared<Client>(std::make_unique<StreamSocket>(descriptor), limits_,
                                           [this] { return clock_.seconds(); });
    if (!makeRoomFor(client->connection.peerAddress())) {
        return;
    }
    clients_.push_back(client);
    const std::weak_ptr<Client> weak = client;
    client->connection.onReports({[this, weak] { schedule(weak.lock()); },
                                  [this, weak](std::optional<Notice> reason, bool hasLeft) {
                                      if (const auto closed = weak.lock()) {
                                          clientClosed(*closed, reason, hasLeft);
                                      }
                                  }});
}

bool MasterServer::makeRoomFor(const String& address)
{
    dropClosed();
    std::vector<Seat> seats;
    seats.reserve(clients_.size());
    for (const auto& client : clients_) {
        const ClientConnection& connection = client->connection;
        seats.push_back({connection.peerAddress(), connection.heard(), connection.isBusy()});
    }
    const Seating seating = seatingFor(address, seats, limits_.ofAddress, limits_.connections);
    if (seating.addressIsFull) {
        notices_.tell({Notice::ManyConnections, {address}});
    } else if (seating.allAreFull) {
        notices_.tell({Notice::NoMoreConnections, {plainText(static_cast<std::int32_t>(seats.size()))}});
    }
    if (seating.leaves) {
        clients_[*seating.leaves]->connection.makeRoom();
    }
    return seating.isAdmitted;
}

void MasterServer::clientClosed(Client& client, std::optional<Notice> reason, bool hasLeft)
{
    if (reason) {
        notices_.tell({*reason, {client.connection.peerAddress()}});
    }
    if (client.sender) {
        classroom_.roster().disconnect(*client.sender, hasLeft);
        client.sender.reset();
    }
}

void MasterServer::schedule(const std::shared_ptr<Client>& client)
{
    if (client && !client->isScheduled && !isStopping_) {
        client->isScheduled = true;
        readable_.push_back(client);
    }
    if (!readable_.empty() && !turn_.isActive()) {
        turn_.start(0);
    }
}

void MasterServer::runTurn()
{
    for (const auto& client : std::exchange(readable_, {})) {
        client->isScheduled = false;
        takeRequests(client);
    }
    desk_.start();
    keepWithinMemory();
}

void MasterServer::takeRequests(const std::shared_ptr<Client>& client)
{
    for (std::size_t taken = 0; taken < limits_.underWay; ++taken) {
        const auto frame = client->connection.nextRequest();
        if (!frame) {
            return;
        }
        receive(client, *frame);
    }
    if (client->connection.hasMore()) {
        schedule(client);
    }
}

void MasterServer::receive(const std::shared_ptr<Client>& client, const Frame& frame)
{
    ClientConnection& connection = client->connection;
    if (client->sender != frame.id.sender) {
        if (client->sender) {
            classroom_.roster().disconnect(*client->sender, false);
        }
        client->sender = frame.id.sender;
        classroom_.roster().connect(frame.id.sender);
    }
    if (isLogOn(frame.text) && !connection.mayLogOn()) {
        notices_.tell({Notice::ManyLogOns, {connection.peerAddress()}});
        connection.answer(frame.id, answerText(u"ERROR"));
        return;
    }
    const Asked asking{frame.id, frame.unawaited};
    classroom_.receive({frame.id, connection.peerAddress(), placeFor(connection.ownAddress())}, frame.text,
                       [this, weak = std::weak_ptr(client), asking](const AnswerText& answer) {
                           if (const auto asked = weak.lock()) {
                               reply(*asked, asking, answer);
                               if (asked->connection.hasMore()) {
                                   schedule(asked);
                               }
                           }
                       });
}

void MasterServer::reply(Client& client, const Asked& asked, const AnswerText& answer)
{
    if (asked.unawaited) {
        client.connection.drop();
        return;
    }
    client.connection.answer(asked.id, *answer);
    answeredBytes_ += answer->size();
    if (answeredBytes_ > limits_.heldBytes / 4) {
        keepWithinMemory();
    }
}

void MasterServer::checkClients()
{
    for (const auto& client : clients_) {
        client->connection.checkTimes();
    }
    dropClosed();
}

void MasterServer::dropClosed()
{
    std::erase_if(clients_, [](const auto& client) { return !client->connection.isOpen(); });
}

void MasterServer::keepWithinMemory()
{
    answeredBytes_ = 0;
    std::size_t sum = 0;
    for (const auto& client : clients_) {
        sum += client->connection.heldBytes();
    }
    while (sum > limits_.heldBytes) {
        const auto largest = std::ranges::max_element(
            clients_, {}, [](const auto& client) { return client->connection.heldBytes(); });
        sum -= (*largest)->connection.heldBytes();
        (*largest)->connection.cutOff(Notice::MemoryShort);
        clients_.erase(largest);
    }
}

void MasterServer::answerQuestions()
{
    while (datagrams_.hasPendingDatagrams()) {
        const QNetworkDatagram datagram =
            datagrams_.receiveDatagram(static_cast<qint64>(MaxAnnouncementBytes) + 1);
        const auto question = decodeAnnouncement(datagram.data().toStdString());
        if (!question || !question->isQuestion()) {
            continue;
        }
        if (!questions_.pass(clock_.seconds())) {
            notices_.tell({Notice::ManyQuestions, {qt::addressText(datagram.senderAddress())}});
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

MasterPlace MasterServer::placeFor(const String& ownAddress) const
{
    return {ownAddress, port(), udpPort()};
}

} // namespace phial::master
