#include "Recorder.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QTimer>

#include <algorithm>
#include <cstring>
#include <stdexcept>

namespace phial::test
{

namespace
{

constexpr qsizetype RecordedFrameBytes = 4; // two channels of 16 bits
constexpr int RecorderPatience = 30'000;    // milliseconds

} // namespace

Recorder::Recorder(const QProcessEnvironment& environment, std::int32_t rate)
    : file_(QString::fromStdString((folder_.native() / "recorded").string())), rate_(rate)
{
    process_.setStandardOutputFile(file_);
    process_.setProcessEnvironment(environment);
    process_.start(QStringLiteral("parec"), {"--device=heard.monitor", "--format=s16le", "--channels=2",
                                             QStringLiteral("--rate=%1").arg(rate), "--latency-msec=10"});
    if (!record(0.1)) {
        throw std::runtime_error("nothing can be recorded: " + process_.readAllStandardError().toStdString());
    }
}

Recorder::~Recorder()
{
    process_.kill();
    process_.waitForFinished();
}

std::size_t Recorder::frames() const
{
    return static_cast<std::size_t>(QFileInfo(file_).size() / RecordedFrameBytes);
}

bool Recorder::record(double seconds)
{
    const std::size_t end = frames() + static_cast<std::size_t>(seconds * rate_);
    QElapsedTimer timer;
    timer.start();
    while (frames() < end && timer.elapsed() < RecorderPatience) {
        QEventLoop loop;
        QTimer::singleShot(10, &loop, &QEventLoop::quit);
        loop.exec();
    }
    return frames() >= end;
}

bool Recorder::hearsSomething(double seconds)
{
    const std::size_t begin = frames();
    const std::size_t end = begin + static_cast<std::size_t>(seconds * rate_);
    const auto isHeard = [this, begin] {
        const std::vector<float> samples = left(begin);
        return std::any_of(samples.begin(), samples.end(), [](float sample) { return sample != 0; });
    };
    while (!isHeard() && frames() < end && record(0.05)) {
    }
    return isHeard();
}

std::vector<float> Recorder::left(std::size_t from) const
{
    QFile file(file_);
    if (!file.open(QFile::ReadOnly) || !file.seek(static_cast<qint64>(from) * RecordedFrameBytes)) {
        return {};
    }
    const QByteArray bytes = file.readAll();
    std::vector<float> samples;
    for (qsizetype at = 0; at + RecordedFrameBytes <= bytes.size(); at += RecordedFrameBytes) {
        std::int16_t number = 0;
        std::memcpy(&number, bytes.constData() + at, sizeof number);
        samples.push_back(static_cast<float>(number) / 32'768);
    }
    return samples;
}

} // namespace phial::test
