#include "common/ClassroomLink.h"

#include "app/cls_App.h"
#include "app/cls_AppConfig.h"
#include "app/sys_Global.h"
#include "core/CoreParameters.h"
#include "core/RuntimeError.h"
#include "server/cls_AppServer.h"
#include "server/cls_AppServerConfig.h"

namespace learning
{

using phial::QVAPP;
using phial::String;

namespace
{

constexpr std::int32_t AliveInterval = 30'000; // milliseconds
constexpr phial::StringView NoNetwork = u"NONETWORK";

constexpr phial::StringView RoundStarted = u"RUNDE BEGONNEN";
constexpr phial::StringView RoundFinished = u"RUNDE BEENDET";
constexpr phial::StringView Exercise = u"STUFE";

} // namespace

ClassroomLink::ClassroomLink() : alive_(u"tmr_Alive", AliveInterval)
{
    ticking_ = alive_.Tick.connect([this] { keepAlive(); });
}

bool ClassroomLink::isWanted()
{
    return !QVAPP()->CONFIG()->PARAMETERS()->Exists(NoNetwork);
}

String ClassroomLink::address()
{
    return QVAPP()->SERVER()->CONFIG()->SERVERIP();
}

void ClassroomLink::join()
{
    if (isWanted() && state_ != State::Searching) {
        logOn();
    }
}

void ClassroomLink::join(const phial::FoundMaster& master)
{
    if (state_ == State::Searching) {
        return;
    }
    const auto server = QVAPP()->SERVER();
    server->DISCONNECT();
    takeOver(master.settings, master.address);
    logOn();
}

void ClassroomLink::logOn()
{
    become(State::Searching);
    const auto server = QVAPP()->SERVER();
    // Another app on this computer may have the port for messages of the master, which this one can do
    // without; the client has given up then.
    server->RECHECK();
    // Without a network client there is no master either.
    phial::ignoringErrors([&] {
        if (server->CONNECT() && refreshSettings()) {
            server->CONNECT();
        }
    });
    become(server->ONLINE() ? State::Online : State::Offline);
}

/// Asks for the master's settings. Gives whether they differ from those known so far: the greeting and the
/// rule about names belong to the log-on, which is then made again.
bool ClassroomLink::refreshSettings()
{
    const auto server = QVAPP()->SERVER();
    const auto& config = server->CONFIG();
    const String before = config->SETTINGS()->Pack();
    takeOver(server->REQUEST(u"SERVER", u"PACK").toText(), config->SERVERIP());
    return config->SETTINGS()->Pack() != before;
}

/// Keeps the settings that a master has handed out, but the address at which it has been reached.
void ClassroomLink::takeOver(const String& settings, const String& address)
{
    const auto config = QVAPP()->SERVER()->CONFIG();
    // Settings that are not whole count as far as they go.
    phial::ignoringErrors([&] { config->PACK(settings); });
    config->SERVERIP(address);
    config->SAVE();
}

void ClassroomLink::become(State state)
{
    if (state_ != state) {
        state_ = state;
        Changed.raise();
    }
}

bool ClassroomLink::allows(bool tell)
{
    return state_ != State::Online || QVAPP()->SERVER()->ALLOWED(tell);
}

/// The client knows whether it is logged on: any call can find a lost master again.
void ClassroomLink::followClient()
{
    if (state_ == State::Online || state_ == State::Offline) {
        become(QVAPP()->SERVER()->ONLINE() ? State::Online : State::Offline);
    }
}

void ClassroomLink::roundStarted(const String& exercise)
{
    alive_.Enabled(state_ == State::Online);
    phial::CoreParameters about;
    about.Set(Exercise, exercise);
    QVAPP()->SERVER()->ACTION(RoundStarted, &about);
    followClient();
}

void ClassroomLink::roundFinished(const RoundResult& result)
{
    alive_.Enabled(false);
    phial::CoreParameters about = additionalValues(result);
    about.Set(Exercise, result.exercise);
    about.Set(u"PUNKTE", static_cast<std::int32_t>(result.points));
    about.Set(u"MAXIMUM", static_cast<std::int32_t>(result.maximum));
    QVAPP()->SERVER()->ACTION(RoundFinished, &about);
    followClient();
}

/// An answer may take longer than the interval; one sign of life at a time is enough.
void ClassroomLink::keepAlive()
{
    if (!isTelling_) {
        isTelling_ = true;
        phial::ignoringErrors([] { QVAPP()->SERVER()->ALIVE(); });
        isTelling_ = false;
    }
}

} // namespace learning
