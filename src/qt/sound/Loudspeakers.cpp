#include "qt/sound/Loudspeakers.h"

#include "qt/sound/SinkVoice.h"

#include <QCoreApplication>
#include <QEvent>
#include <QMediaDevices>
#include <QTimer>

#include <algorithm>
#include <utility>

namespace phial::qt
{

namespace
{

constexpr int FeedMilliseconds = 20;

} // namespace

Loudspeakers::Loudspeakers() = default;

Loudspeakers::~Loudspeakers() = default;

void Loudspeakers::serve(std::shared_ptr<VoiceBoard> board, std::shared_ptr<const Clock> clock)
{
    const std::lock_guard lock(mutex_);
    clients_.push_back({std::move(board), std::move(clock)});
}

void Loudspeakers::wake()
{
    if (!isWoken_.exchange(true)) {
        QCoreApplication::postEvent(this, new QEvent(QEvent::User), Qt::HighEventPriority);
    }
}

bool Loudspeakers::event(QEvent* event)
{
    if (event->type() != QEvent::User) {
        return QObject::event(event);
    }
    isWoken_ = false;
    look();
    for (const Client& client : clients()) {
        obey(client, client.board->take(client.clock->seconds()));
    }
    return true;
}

void Loudspeakers::begin()
{
    feeding_ = std::make_unique<QTimer>();
    feeding_->setTimerType(Qt::PreciseTimer);
    feeding_->setInterval(FeedMilliseconds);
    QObject::connect(feeding_.get(), &QTimer::timeout, this, &Loudspeakers::feed);
    devices_ = std::make_unique<QMediaDevices>();
    QObject::connect(devices_.get(), &QMediaDevices::audioOutputsChanged, this, &Loudspeakers::look);
}

void Loudspeakers::end()
{
    sounding_.clear();
    feeding_.reset();
    devices_.reset();
}

std::vector<Loudspeakers::Client> Loudspeakers::clients()
{
    const std::lock_guard lock(mutex_);
    return clients_;
}

/// Finds out whether there is a device that takes sounds. One that refused is tried again.
void Loudspeakers::look()
{
    const QAudioDevice device = QMediaDevices::defaultAudioOutput();
    deviceTakes(!device.isNull() && (takesSounds_ || takesSounds(device)));
}

void Loudspeakers::deviceTakes(bool value)
{
    takesSounds_ = value;
    for (const Client& client : clients()) {
        client.board->hasDevice(value);
    }
}

void Loudspeakers::obey(const Client& client, const VoiceBoard::Work& work)
{
    cut(client, work);
    for (const VoiceBoard::Waiting& waiting : work.begun) {
        play(client, waiting);
    }
    if (work.isClosed) {
        const std::lock_guard lock(mutex_);
        std::erase_if(clients_, [&client](const Client& each) { return each.board == client.board; });
    }
}

void Loudspeakers::cut(const Client& client, const VoiceBoard::Work& work)
{
    std::erase_if(sounding_, [&](const Sounding& each) {
        return each.client.board == client.board &&
               (work.isClosed || std::ranges::find(work.stopped, each.voice) != work.stopped.end());
    });
}

void Loudspeakers::play(const Client& client, const VoiceBoard::Waiting& waiting)
{
    const QAudioDevice device = takesSounds_ ? QMediaDevices::defaultAudioOutput() : QAudioDevice();
    if (device.isNull()) {
        client.board->lose(waiting.voice);
        return;
    }
    auto sink = std::make_unique<SinkVoice>(device, waiting.sound, *client.clock);
    if (sink->isLost()) {
        client.board->lose(waiting.voice);
        deviceTakes(false);
    } else if (!waiting.isTooLate(client.clock->seconds())) { // the device may have taken its time
        sink->feed(client.board->gain());
        sounding_.push_back({client, waiting.voice, std::move(sink)});
        feeding_->start();
    }
}

void Loudspeakers::feed()
{
    std::erase_if(sounding_, [this](const Sounding& each) {
        each.sink->feed(each.client.board->gain());
        const bool isLost = each.sink->isLost(); // once, as it may be lost at any moment
        if (isLost) {
            each.client.board->lose(each.voice);
            takesSounds_ = false;
        }
        return isLost || each.sink->hasRungOut();
    });
    if (sounding_.empty()) {
        feeding_->stop();
    }
}

} // namespace phial::qt
