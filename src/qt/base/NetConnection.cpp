#include "qt/base/NetConnection.h"

#include "core/NumberText.h"
#include "core/RuntimeError.h"
#include "qt/base/Milliseconds.h"
#include "qt/base/NetLimits.h"
#include "qt/base/QtClock.h"
#include "qt/base/QtText.h"

#include <QEventLoop>
#include <QNetworkProxy>
#include <QTimer>

#include <algorithm>
#include <array>

namespace phial::qt
{

namespace
{

// What may wait to be sent: two of the longest frames.
constexpr std::size_t MaxUnsentBytes = 2 * (FrameHeadBytes + MaxFrameTextBytes);
// The socket reads ahead this much; what is beyond waits at the sender.
constexpr qint64 ReadAheadBytes = 256 * 1024;
// After so many waits in vain, without a sign of life in between, the other end is taken for gone.
constexpr int PatientWaits = 2;

} // namespace

/// One running wait, for an answer or for the connection itself.
class NetConnection::Wait
{
public:
    explicit Wait(NetConnection& connection, std::optional<FrameId> request = {})
        : connection_(connection), request_(request)
    {
        connection_.waits_.push_back(this);
    }
    ~Wait() { std::erase(connection_.waits_, this); }
    Wait(const Wait&) = delete;
    Wait& operator=(const Wait&) = delete;

    /// Returns when it has been ended, or the time is over, or the program ends.
    void run(double seconds)
    {
        QTimer::singleShot(milliseconds(seconds), Qt::PreciseTimer, &loop_, &QEventLoop::quit);
        loop_.exec();
    }
    void end() { loop_.quit(); }

    bool isFor(FrameId request) const { return request_ == request; }
    /// The first answer counts.
    void answer(String text)
    {
        if (!answer_) {
            answer_ = std::move(text);
        }
        end();
    }
    std::optional<String> takeAnswer() { return std::move(answer_); }

private:
    NetConnection& connection_;
    std::optional<FrameId> request_;
    std::optional<String> answer_;
    QEventLoop loop_;
};

NetConnection::NetConnection(StringView host, std::int32_t port, std::size_t pieceBytes, Reports reports)
    : peer_(peerName(host, port)), reports_(std::move(reports)), piece_(pieceBytes, '\0'),
      messages_(NetLimits().messagesPerSecond, NetLimits().messagesAtOnce)
{
    QObject::connect(&socket_, &QTcpSocket::connected, &socket_, [this] { opened(); });
    QObject::connect(&socket_, &QTcpSocket::readyRead, &socket_, [this] { guardedRead(); });
    QObject::connect(&socket_, &QTcpSocket::disconnected, &socket_, [this] {
        guardedRead();
        lose(Loss::ClosedThere);
    });
    QObject::connect(&socket_, &QTcpSocket::errorOccurred, &socket_, [this] {
        if (state_ == State::Connecting) {
            lose(Loss::Unreachable);
        }
    });
    socket_.setProxy(QNetworkProxy::NoProxy);
    socket_.setReadBufferSize(ReadAheadBytes);
    socket_.connectToHost(toQt(host), static_cast<quint16>(port));
}

String NetConnection::peerName(StringView host, std::int32_t port)
{
    return String(host) + u":" + plainText(port);
}

NetConnection::~NetConnection()
{
    socket_.disconnect();
}

void NetConnection::waitUntilOpen(double seconds)
{
    const auto self = shared_from_this(); // a handler may end its owner meanwhile
    if (state_ == State::Connecting) {
        Wait(*this).run(seconds);
    }
    if (state_ == State::Connecting && waits_.empty()) {
        lose(Loss::Unreachable);
    }
    if (state_ != State::Open) {
        raiseLoss();
    }
}

void NetConnection::send(const Frame& frame)
{
    if (state_ == State::Lost) {
        raiseLoss();
    }
    const std::string bytes = encodeFrame(frame);
    const auto waiting = static_cast<std::size_t>(socket_.bytesToWrite()) + unsent_.size();
    if (waiting + bytes.size() > MaxUnsentBytes) {
        lose(Loss::Stalled);
        raiseLoss();
    }
    reports_.traffic(TrafficKind::Sent, peer_, frame.text);
    if (state_ == State::Connecting) {
        unsent_ += bytes;
    } else {
        socket_.write(bytes.data(), static_cast<qint64>(bytes.size()));
    }
}

std::optional<String> NetConnection::waitForAnswer(FrameId request, double seconds)
{
    const auto self = shared_from_this(); // a handler may end its owner meanwhile
    Wait wait(*this, request);
    if (state_ != State::Lost) {
        wait.run(seconds);
    }
    auto answer = wait.takeAnswer();
    if (answer) {
        return answer;
    }
    if (state_ == State::Lost) {
        raiseLoss();
    }
    // A computer that was switched off does not say so. Whoever else waits has the connection to himself.
    if (++silentWaits_ >= PatientWaits && waits_.size() == 1) {
        lose(Loss::Silent);
    }
    return std::nullopt;
}

void NetConnection::close()
{
    socket_.flush();
    lose(Loss::ClosedHere);
}

void NetConnection::opened()
{
    state_ = State::Open;
    socket_.setSocketOption(QAbstractSocket::LowDelayOption, 1);
    socket_.setSocketOption(QAbstractSocket::KeepAliveOption, 1);
    reports_.sign(Sign::Connected);
    reports_.traffic(TrafficKind::Note, peer_, u"verbunden|connected");
    if (!unsent_.empty()) {
        socket_.write(unsent_.data(), static_cast<qint64>(unsent_.size()));
        unsent_ = {};
    }
    for (Wait* wait : waits_) {
        wait->end();
    }
}

void NetConnection::guardedRead()
{
    reports_.guard->run([this] { read(); });
}

void NetConnection::read()
{
    while (state_ == State::Open && socket_.bytesAvailable() > 0) {
        const qint64 count = socket_.read(piece_.data(), static_cast<qint64>(piece_.size()));
        if (count <= 0) {
            return;
        }
        silentWaits_ = 0;
        reports_.sign(Sign::Heard);
        reader_.feed(std::string_view(piece_).substr(0, static_cast<std::size_t>(count)));
        for (auto frame = reader_.next(); frame && state_ == State::Open; frame = reader_.next()) {
            take(*std::move(frame));
        }
        if (reader_.problem() != FrameProblem::None) {
            lose(Loss::Foreign);
        }
    }
}

void NetConnection::take(Frame frame)
{
    reports_.traffic(TrafficKind::Received, peer_, frame.text);
    switch (frame.kind) {
    case FrameKind::Answer: {
        const auto wait = std::ranges::find_if(waits_, [&](const Wait* one) { return one->isFor(frame.id); });
        if (wait != waits_.end()) {
            (*wait)->answer(std::move(frame.text));
        }
        return;
    }
    case FrameKind::Message:
        if (messages_.pass(QtClock().seconds())) {
            reports_.message(frame, socket_);
            return;
        }
        break;
    case FrameKind::Request: // a master asks nothing
        break;
    }
    lose(Loss::Foreign);
}

void NetConnection::lose(Loss loss)
{
    struct Note {
        Loss loss;
        StringView text;
    };
    constexpr auto Notes = std::to_array<Note>({
        {Loss::Unreachable, u"nicht erreichbar|cannot be reached"},
        {Loss::ClosedThere, u"von der Gegenseite getrennt|closed by the other end"},
        {Loss::ClosedHere, u"getrennt|closed"},
        {Loss::Foreign, u"unverständliche Daten, getrennt|unintelligible data, closed"},
        {Loss::Silent, u"keine Antwort, getrennt|no answer, closed"},
        {Loss::Stalled, u"Gegenseite nimmt nichts an, getrennt|the other end takes nothing, closed"},
    });
    if (state_ == State::Lost) {
        return;
    }
    state_ = State::Lost;
    loss_ = loss;
    unsent_ = {};
    tellWhyLost();
    const auto* note = std::ranges::find(Notes, loss, &Note::loss);
    reports_.traffic(TrafficKind::Note, peer_, note->text);
    socket_.abort();
    for (Wait* wait : waits_) {
        wait->end();
    }
}

void NetConnection::tellWhyLost() const
{
    if (loss_ == Loss::Silent) {
        reports_.sign(Sign::Mute);
    } else if (loss_ == Loss::Unreachable || loss_ == Loss::ClosedThere) {
        reports_.sign(Sign::Gone);
    }
}

void NetConnection::raiseLoss() const
{
    throw RuntimeError(ErrorNumber::DeviceUnavailable, loss_ == Loss::Unreachable
                                                           ? u"The master cannot be reached"
                                                           : u"The connection to the master is lost");
}

} // namespace phial::qt
