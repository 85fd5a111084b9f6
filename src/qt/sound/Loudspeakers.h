#pragma once

#include "core/Clock.h"
#include "qt/sound/VoiceBoard.h"

#include <QObject>

#include <atomic>
#include <memory>
#include <mutex>
#include <vector>

class QAudioDevice;
class QMediaDevices;
class QTimer;

namespace phial::qt
{

class SinkVoice;

/// Lets be heard what stands on the boards, in the thread of sounds. It alone asks the toolkit's sound module
/// for anything, so that what the module sets up for itself lives in this thread too.
class Loudspeakers final : public QObject
{
public:
    Loudspeakers();
    ~Loudspeakers() override;

    /// Takes up a board until it is closed. Its times are those of the clock, which any thread may ask. For
    /// every thread, as is `wake`.
    void serve(std::shared_ptr<VoiceBoard> board, std::shared_ptr<const Clock> clock);
    /// There is something new on a board.
    void wake();

    /// For its own thread, before events run there.
    void begin();
    /// Ends all sounds. For its own thread, when no events run there any more.
    void end();

protected:
    bool event(QEvent* event) override;

private:
    struct Client {
        std::shared_ptr<VoiceBoard> board;
        std::shared_ptr<const Clock> clock;
    };
    struct Sounding {
        Client client;
        AudioOutput::Voice voice;
        std::unique_ptr<SinkVoice> sink;
    };

    std::vector<Client> clients();
    void look();
    void deviceTakes(bool value);
    void obey(const Client& client, const VoiceBoard::Work& work);
    void cut(const Client& client, const VoiceBoard::Work& work);
    void play(const Client& client, const VoiceBoard::Waiting& waiting);
    void feed();

    std::mutex mutex_; ///< for the clients
    std::vector<Client> clients_;
    std::atomic<bool> isWoken_ = false; ///< so that no more than one event waits

    // What follows is made, used and ended in the thread of sounds.
    std::unique_ptr<QMediaDevices> devices_;
    std::unique_ptr<QTimer> feeding_;
    std::vector<Sounding> sounding_; ///< the oldest first; those that ring out too
    bool takesSounds_ = true;        ///< what was seen last of the device
};

} // namespace phial::qt
