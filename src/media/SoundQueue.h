#pragma once

#include "core/CoreStringList.h"
#include "core/Event.h"

#include <memory>

namespace phial
{

class Timer;

/// The sounds that wait for their turn: the queue of the shared form `frm_Resource`, with its timer
/// `tmr_SoundDelay`. One begins at each tick, so they begin in their order and 25 ms apart; that one still
/// plays keeps none from beginning. Made and kept by the session.
class SoundQueue
{
public:
    SoundQueue();

    /// Puts a wave file at the end.
    void add(String path);

private:
    void tick();

    CoreStringList paths_;
    std::shared_ptr<Timer> delay_;
    Connection ticking_;
};

} // namespace phial
