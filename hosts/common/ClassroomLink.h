#pragma once

#include "common/RoundResult.h"
#include "core/Event.h"
#include "core/String.h"
#include "server/FoundMaster.h"
#include "visual/Timer.h"

namespace learning
{

/// The app's place in the classroom: logs on to the master, asks whether the app may run, tells what the
/// pupil does, and shows the master now and then that the pupil is still there. Without a master everything
/// is allowed, and what the pupil does is noted on this computer.
///
/// Every call may run events while the network answers, so that handlers run meanwhile.
class ClassroomLink
{
public:
    enum class State {
        Alone,     ///< no contact is wanted in this run, or none has been tried yet
        Searching, ///< a log-on is under way
        Online,
        Offline, ///< no master has answered
    };

    ClassroomLink();

    State state() const { return state_; }
    /// Changed has been raised when this differs.
    phial::Event<> Changed;

    /// Whether the command line allows contact.
    static bool isWanted();
    /// The address at which the master is looked for.
    static phial::String address();

    /// Logs on; nothing happens while that is under way already.
    void join();
    /// Leaves the present master and logs on at another one, which is kept for later starts.
    void join(const phial::FoundMaster& master);
    /// Whether the app may run now; with `tell` the pupil is told why not.
    bool allows(bool tell);

    void roundStarted(const phial::String& exercise);
    void roundFinished(const RoundResult& result);
    /// The round will not be finished.
    void roundLeft() { alive_.Enabled(false); }

private:
    void logOn();
    static bool refreshSettings();
    static void takeOver(const phial::String& settings, const phial::String& address);
    void become(State state);
    void followClient();
    void keepAlive();

    State state_ = State::Alone;
    phial::Timer alive_;
    phial::Connection ticking_;
    bool isTelling_ = false; ///< a sign of life is on its way
};

} // namespace learning
