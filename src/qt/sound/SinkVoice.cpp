#include "qt/sound/SinkVoice.h"

#include "qt/sound/VoiceBoard.h"

#include <QAudioSink>
#include <QIODevice>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <utility>

namespace phial::qt
{

namespace
{

/// Longer than what a device keeps between what it is given and what is heard.
constexpr double RingingSeconds = 0.5;

/// The device's own rate, so that no samples are invented twice; two channels where it has more.
QAudioFormat formatFor(const QAudioDevice& device)
{
    const QAudioFormat preferred = device.preferredFormat();
    QAudioFormat format = preferred;
    format.setChannelConfig(preferred.channelCount() > 1 ? QAudioFormat::ChannelConfigStereo
                                                         : QAudioFormat::ChannelConfigMono);
    for (const auto kind : {QAudioFormat::Int16, QAudioFormat::Float}) {
        format.setSampleFormat(kind);
        if (device.isFormatSupported(format)) {
            return format;
        }
    }
    format = preferred;
    format.setSampleFormat(preferred.sampleFormat() == QAudioFormat::Float ? QAudioFormat::Float
                                                                           : QAudioFormat::Int16);
    return format;
}

std::int16_t wholeNumber(float sample)
{
    constexpr float Scale = 32'768;
    return static_cast<std::int16_t>(std::lround(std::clamp(sample * Scale, -Scale, Scale - 1)));
}

QByteArray bytesOf(std::span<const float> samples, QAudioFormat::SampleFormat kind)
{
    if (kind == QAudioFormat::Float) {
        return {reinterpret_cast<const char*>(samples.data()), static_cast<qsizetype>(samples.size_bytes())};
    }
    QByteArray bytes(static_cast<qsizetype>(samples.size() * sizeof(std::int16_t)), Qt::Uninitialized);
    char* place = bytes.data();
    for (const float sample : samples) {
        const std::int16_t number = wholeNumber(sample);
        std::memcpy(place, &number, sizeof number);
        place += sizeof number;
    }
    return bytes;
}

/// Ends a sink, which is deleted later: its destructor runs events.
void letGo(QAudioSink* sink)
{
    sink->stop();
    sink->deleteLater();
}

} // namespace

SinkVoice::SinkVoice(const QAudioDevice& device, std::shared_ptr<const Sound> sound, const Clock& clock)
    : clock_(clock), length_(sound->seconds()), format_(formatFor(device)),
      feed_(std::move(sound), format_.sampleRate(), format_.channelCount()),
      silence_(static_cast<std::size_t>(LeadSeconds * format_.sampleRate())),
      sink_(new QAudioSink(device, format_))
{
    sink_->setBufferSize(format_.bytesForDuration(static_cast<qint64>(LeadSeconds * 1e6)));
    device_ = sink_->start();
    begin_ = fedUntil_ = clock_.seconds();
}

SinkVoice::~SinkVoice()
{
    letGo(sink_);
}

bool SinkVoice::isLost() const
{
    // Each can be the first to tell that a server has gone: the state by an event, the error when it went
    // just before it was written to, the room at any time.
    return device_ == nullptr || sink_->state() == QAudio::StoppedState ||
           sink_->error() == QAudio::IOError || sink_->bytesFree() < 0;
}

bool SinkVoice::hasRungOut() const
{
    const double now = clock_.seconds();
    return (!isWanted() && now > fedUntil_ + RingingSeconds) ||
           now > begin_ + length_ + VoiceBoard::LatestSeconds;
}

bool SinkVoice::isWanted() const
{
    return feed_.framesLeft() + silence_ > 0 || !waiting_.isEmpty();
}

void SinkVoice::feed(double gain)
{
    if (isLost() || !isWanted()) {
        return;
    }
    if (waiting_.isEmpty()) {
        waiting_ = nextPiece(gain);
    }
    const qint64 written = device_->write(waiting_);
    waiting_.remove(0, std::max<qint64>(written, 0));
    fedUntil_ = clock_.seconds();
}

/// What the device has room for and is to be heard within the lead. Silence follows the sound, as servers
/// begin only when they have enough, and a short sound is less.
QByteArray SinkVoice::nextPiece(double gain)
{
    const auto due =
        static_cast<std::size_t>((clock_.seconds() - begin_ + LeadSeconds) * format_.sampleRate());
    const auto room = static_cast<std::size_t>(std::max<qsizetype>(sink_->bytesFree(), 0)) /
                      static_cast<std::size_t>(format_.bytesPerFrame());
    const std::size_t frames = std::min({due - std::min(due, fed_), room, feed_.framesLeft() + silence_});
    samples_.assign(frames * static_cast<std::size_t>(format_.channelCount()), 0);
    silence_ -= frames - feed_.fill(samples_, gain);
    fed_ += frames;
    return bytesOf(samples_, format_.sampleFormat());
}

bool takesSounds(const QAudioDevice& device)
{
    auto* const sink = new QAudioSink(device, formatFor(device));
    const bool takes = sink->start() != nullptr;
    letGo(sink);
    return takes;
}

} // namespace phial::qt
