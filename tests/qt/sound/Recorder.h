#pragma once

#include "support/TemporaryFolder.h"

#include <QProcess>
#include <QProcessEnvironment>
#include <QString>

#include <cstddef>
#include <cstdint>
#include <vector>

namespace phial::test
{

/// What the loudspeaker of a SoundServer gives out, from the time when this object is made. The clock of a
/// recording is the number of its frames. It goes into a file, so that it misses nothing while the test is
/// busy.
class Recorder
{
public:
    /// Waits until the loudspeaker is heard.
    explicit Recorder(const QProcessEnvironment& environment, std::int32_t rate = 44'100);
    ~Recorder();

    /// Frames so far.
    std::size_t frames() const;
    /// Runs events until so many seconds more have been recorded. False when they do not come.
    bool record(double seconds);
    /// Records until there is something else than silence, for so many seconds more at most; gives whether
    /// there was.
    bool hearsSomething(double seconds);
    /// The left channel from a frame on, -1 to 1.
    std::vector<float> left(std::size_t from) const;

private:
    TemporaryFolder folder_;
    QString file_;
    QProcess process_;
    std::int32_t rate_;
};

} // namespace phial::test
