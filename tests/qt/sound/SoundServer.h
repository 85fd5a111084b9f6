#pragma once

#include "support/TemporaryFolder.h"

#include <QProcess>
#include <QProcessEnvironment>
#include <QString>

#include <cstdint>

namespace phial::test
{

/// A server of sounds of our own, with one loudspeaker that nobody hears but whoever records it. It runs as
/// this user in a folder of its own and touches nothing of the user's.
///
/// What it plays comes out as it was given, sample by sample: the loudspeaker takes 16 bits and two channels,
/// and never goes back to play something again.
class SoundServer
{
public:
    /// Starts it and waits until it answers; raises std::runtime_error when it does not.
    explicit SoundServer(std::int32_t rate = 44'100);
    ~SoundServer();

    /// With which programs find this server and nothing of the user's.
    QProcessEnvironment environment() const;
    /// Gives this program that environment.
    void useHere() const;

    /// Ends it without a word.
    void kill();
    /// Starts it again where it was, and waits until it answers.
    void start();
    /// Lets it stand still, without ending it, and go on.
    void halt();
    void goOn();

private:
    bool answers() const;
    void signal(int number) const;
    QString path(const char* name) const;

    TemporaryFolder folder_;
    std::int32_t rate_;
    QProcess process_;
};

} // namespace phial::test
