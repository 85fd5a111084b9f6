#include "qt/base/QtNetClient.h"

#include "core/RuntimeError.h"
#include "core/SessionState.h"
#include "qt/base/NetAddress.h"
#include "qt/base/NetConnection.h"
#include "qt/base/NetPort.h"
#include "qt/base/QtClock.h"
#include "server/RequestIds.h"
#include "server/TrafficLog.h"

#include <QCoreApplication>
#include <QRandomGenerator>

#include <algorithm>
#include <limits>
#include <map>
#include <optional>
#include <utility>
#include <vector>

namespace phial::qt
{

namespace
{

constexpr std::int32_t LeastPiece = 512;
constexpr std::int32_t GreatestPiece = 1 << 20;

String peerOf(const QTcpSocket& socket)
{
    return NetConnection::peerName(addressText(socket.peerAddress()), socket.peerPort());
}

} // namespace

/// What a client has going on. A request holds it, so that it can end in order when a handler has ended the
/// client meanwhile.
class QtNetClient::Exchange : public std::enable_shared_from_this<Exchange>
{
public:
    Exchange(QtNetClient& client, std::shared_ptr<DispatchGuard> guard, std::shared_ptr<TrafficLog> traffic,
             const MasterPatience::Limits& patience)
        : client_(&client), guard_(std::move(guard)), traffic_(std::move(traffic)), limits_(patience)
    {
    }

    CoreNetOptions& options() { return options_; }
    void enableReceive(bool enable) { receiving_ = enable; }
    std::int32_t openPort() const { return port_ ? port_->number() : 0; }

    void openPort(std::int32_t port);
    void close();
    void clientEnds();
    String request(StringView message, StringView host, std::int32_t port, bool wait,
                   StringView timeoutAnswer);

private:
    struct Master {
        String host;
        std::int32_t port;
    };

    struct State {
        MasterPatience patience;
        /// Whether the latest connection was given up for its silence. One that follows is no sign of life: a
        /// system takes connections also for a program that stands still.
        bool isMute = false;
    };

    State& stateOf(const Master& master);
    void notice(State& state, NetConnection::Sign sign);
    std::optional<String> answerTo(const Frame& frame, const Master& master);
    std::optional<String> ask(NetConnection& connection, const Frame& frame, double end) const;
    std::shared_ptr<NetConnection> connectionTo(const Master& master);
    void messageCame(const Frame& frame, const QTcpSocket& from);
    void tell(const CoreNetMessage& message);
    void log(TrafficKind kind, StringView peer, StringView text);
    Moment momentOfLine();

    QtNetClient* client_; // null from its end on
    std::shared_ptr<DispatchGuard> guard_;
    std::shared_ptr<TrafficLog> traffic_;
    MasterPatience::Limits limits_;
    QtClock clock_;
    Moment asked_; // the time of day when the clock was last asked for it, and that clock's seconds
    double askedAt_ = -std::numeric_limits<double>::infinity();
    CoreNetOptions options_;
    RequestIds ids_{QRandomGenerator::system()->generate64()};
    std::map<String, State> states_; // by the master's name; connections report to them
    std::vector<std::shared_ptr<NetConnection>> connections_;
    std::unique_ptr<NetPort> port_;
    bool receiving_ = false;
};

void QtNetClient::Exchange::openPort(std::int32_t port)
{
    port_.reset();
    NetLimits limits;
    limits.frameSeconds = options_.ReceiveTimeout;
    port_ =
        std::make_unique<NetPort>(port, limits, guard_, [this](const Frame& frame, const QTcpSocket& from) {
            log(TrafficKind::Received, peerOf(from), frame.text);
            messageCame(frame, from);
        });
}

void QtNetClient::Exchange::close()
{
    port_.reset();
    for (const auto& connection : std::exchange(connections_, {})) {
        connection->close();
    }
}

void QtNetClient::Exchange::clientEnds()
{
    client_ = nullptr;
    close();
}

// What the views show may change in handlers that run during the wait.
String QtNetClient::Exchange::request(StringView message, StringView host, std::int32_t port, bool wait,
                                      StringView timeoutAnswer)
{
    const Master master{String(host), port};
    const String withoutAnswer(timeoutAnswer);
    const String receiver = NetConnection::peerName(host, port);
    const Frame frame{FrameKind::Request, ids_.take(receiver, message, clock_.seconds()), String(message),
                      !wait};
    if (!wait) {
        connectionTo(master)->send(frame);
        return {};
    }
    std::optional<String> answer;
    try {
        answer = answerTo(frame, master);
    } catch (const RuntimeError&) {
        ids_.unanswered(receiver, frame.text, frame.id, clock_.seconds());
        throw;
    }
    if (!answer) {
        ids_.unanswered(receiver, frame.text, frame.id, clock_.seconds());
        return withoutAnswer;
    }
    return *std::move(answer);
}

QtNetClient::Exchange::State& QtNetClient::Exchange::stateOf(const Master& master)
{
    return states_
        .try_emplace(NetConnection::peerName(master.host, master.port), State{MasterPatience(limits_)})
        .first->second;
}

void QtNetClient::Exchange::notice(State& state, NetConnection::Sign sign)
{
    using enum NetConnection::Sign;
    if (sign == Heard || (sign == Connected && !state.isMute)) {
        state.patience.signOfLife(clock_.seconds());
    }
    if (sign != Connected) {
        state.isMute = sign == Mute;
    }
}

// A master that has been started again has closed the connection that was kept, which may show only now.
// Asking once more does no harm: a master that has taken the request already knows it by its id.
std::optional<String> QtNetClient::Exchange::answerTo(const Frame& frame, const Master& master)
{
    const auto connection = connectionTo(master);
    const bool wasKept = connection->isOpen();
    MasterPatience& patience = stateOf(master).patience;
    const MasterPatience::Wait wait(patience, clock_);
    const double end = clock_.seconds() + patience.allowed(options_.ResponseTimeout);
    try {
        return ask(*connection, frame, end);
    } catch (const RuntimeError&) {
        if (!wasKept || !connection->wasClosedThere()) {
            throw;
        }
    }
    return ask(*connectionTo(master), frame, end);
}

// The time to connect is part of the time to answer.
std::optional<String> QtNetClient::Exchange::ask(NetConnection& connection, const Frame& frame,
                                                 double end) const
{
    const auto left = [&] { return std::max(end - clock_.seconds(), 0.0); };
    const auto kept = connection.shared_from_this();
    kept->waitUntilOpen(std::min(options_.ConnectTimeout, left()));
    kept->send(frame);
    return kept->waitForAnswer(frame.id, left());
}

std::shared_ptr<NetConnection> QtNetClient::Exchange::connectionTo(const Master& master)
{
    if (master.port < 1 || master.port > std::numeric_limits<quint16>::max()) {
        throw RuntimeError(ErrorNumber::InvalidArgument);
    }
    std::erase_if(connections_, [](const auto& connection) { return connection->isLost(); });
    const String peer = NetConnection::peerName(master.host, master.port);
    const auto kept = std::ranges::find(connections_, peer, [](const auto& one) { return one->peer(); });
    if (kept != connections_.end()) {
        return *kept;
    }
    const auto piece = std::clamp(options_.BufferSize, LeastPiece, GreatestPiece);
    connections_.push_back(std::make_shared<NetConnection>(
        master.host, master.port, static_cast<std::size_t>(piece),
        NetConnection::Reports{
            guard_, [this](const Frame& frame, const QTcpSocket& from) { messageCame(frame, from); },
            [this](TrafficKind kind, StringView about, StringView text) { log(kind, about, text); },
            [this, &state = stateOf(master)](NetConnection::Sign sign) { notice(state, sign); }}));
    return connections_.back();
}

// The socket's own signal is still being handled: were events run now, it would give no other.
void QtNetClient::Exchange::messageCame(const Frame& frame, const QTcpSocket& from)
{
    const CoreNetMessage message(frame.text, addressText(from.peerAddress()), from.peerPort());
    QMetaObject::invokeMethod(
        QCoreApplication::instance(),
        [weak = weak_from_this(), message] {
            if (const auto self = weak.lock()) {
                self->tell(message);
            }
        },
        Qt::QueuedConnection);
}

void QtNetClient::Exchange::tell(const CoreNetMessage& message)
{
    if (client_ != nullptr && receiving_) {
        bool handled = false;
        guard_->run([&] { client_->RECEIVED.raise(message, handled); });
    }
}

void QtNetClient::Exchange::log(TrafficKind kind, StringView peer, StringView text)
{
    guard_->run([&] { traffic_->add(momentOfLine(), kind, peer, text); });
}

// The time of day costs a look at the computer's time zone, which a request would pay twice; so it is asked
// for once a second, and counted on in between.
Moment QtNetClient::Exchange::momentOfLine()
{
    constexpr double SecondsOfDay = 24.0 * 60 * 60;
    const double now = clock_.seconds();
    if (now - askedAt_ >= 1) {
        asked_ = clock_.moment();
        askedAt_ = now;
    }
    return Moment{asked_.days + (now - askedAt_) / SecondsOfDay};
}

QtNetClient::QtNetClient(std::shared_ptr<DispatchGuard> guard, TrafficWindow window,
                         const MasterPatience::Limits& patience)
    : traffic_(std::make_shared<TrafficLog>()), window_(std::move(window))
{
    exchange_ = std::make_shared<Exchange>(*this, std::move(guard), traffic_, patience);
}

QtNetClient::~QtNetClient()
{
    exchange_->clientEnds();
}

CoreNetOptions& QtNetClient::Options()
{
    return exchange_->options();
}

void QtNetClient::EnableReceive(bool pEnable)
{
    exchange_->enableReceive(pEnable);
}

void QtNetClient::OpenPort(std::int32_t pPort)
{
    exchange_->openPort(pPort);
}

void QtNetClient::Close()
{
    exchange_->close();
}

String QtNetClient::Request(StringView pMessage, StringView pIP, std::int32_t pPort,
                            const CoreParameters* /*pParameters*/, bool pWait, StringView pTimeoutAnswer)
{
    const auto exchange = exchange_; // a handler may end this client meanwhile
    return exchange->request(pMessage, pIP, pPort, pWait, pTimeoutAnswer);
}

void QtNetClient::ShowMonitor()
{
    if (!monitor_ && window_) {
        monitor_ = window_(traffic_);
    }
    if (monitor_) {
        monitor_();
    }
}

std::int32_t QtNetClient::openPort() const
{
    return exchange_->openPort();
}

} // namespace phial::qt
