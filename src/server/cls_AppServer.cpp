#include "server/cls_AppServer.h"

#include "app/Settings.h"
#include "app/cls_App.h"
#include "app/cls_AppConfig.h"
#include "app/cls_AppURL.h"
#include "app/cls_AppUser.h"
#include "app/sys_Global.h"
#include "core/Arithmetic.h"
#include "core/CoreDialogs.h"
#include "core/CoreMachine.h"
#include "core/CoreNetClient.h"
#include "core/CoreParameters.h"
#include "core/CoreRegistry.h"
#include "core/CoreRoot.h"
#include "core/CoreSystem.h"
#include "core/CoreTiming.h"
#include "core/CoreValuePacker.h"
#include "core/NumberText.h"
#include "core/Platform.h"
#include "core/RandomSource.h"
#include "core/RuntimeError.h"
#include "core/SessionState.h"
#include "server/OfflineEvents.h"
#include "server/WireText.h"
#include "server/cls_AppServerConfig.h"

#include <algorithm>
#include <exception>
#include <utility>

namespace phial
{

namespace
{

constexpr StringView NoAnswer = u"ERR:Timeout";
constexpr StringView LogonAccepted = u"LOGON:OK";

// Seconds.
constexpr double PumpTime = 0.05;
constexpr double LogonConnectTimeout = 2;
constexpr double LongestPauseAfterLogon = 2;
constexpr double LongestPauseBetweenSends = 0.1;
constexpr double ShortestResponseTimeout = 4;
constexpr double LongestResponseTimeout = 30;
constexpr double ResponseTimeoutStep = 2;
/// From here on the time-out of a repeated request grows no more.
constexpr double PatientResponseTimeout = 15;
constexpr double PauseBeforeNextModeRequest = 0.5;

constexpr double PackageUnitsPerSecond = 1024;
/// A request is given up behind the first time-out beyond these.
constexpr int CountedSends = 5;
constexpr int ModeRequests = 3;

void wait(double seconds)
{
    coreRoot().CoreTiming().Wait(seconds, true);
}

/// A random time of up to that many seconds.
double randomTime(double longest)
{
    return longest * SessionState::current().platform().random->next();
}

/// Whether a master's answer says nothing: the word for an error, the empty text, or no value.
bool saysNothing(const Variant& answer)
{
    return answer.isEmpty() || answer == Variant(u"") || isRefusal(answer);
}

/// An answer as a number, 0 for what is none.
double asNumber(const Variant& answer)
{
    double number = 0;
    ignoringErrors([&] { number = answer.isText() ? numberAtStart(answer.text()).value : answer.toReal(); });
    return number;
}

/// An answer as a text, empty for what has none.
String asText(const Variant& answer)
{
    String text;
    ignoringErrors([&] { text = answer.toText(); });
    return text;
}

/// Sets a flag for as long as it lives.
class RaisedFlag
{
public:
    explicit RaisedFlag(bool& flag) : flag_(flag) { flag_ = true; }
    ~RaisedFlag() { flag_ = false; }
    RaisedFlag(const RaisedFlag&) = delete;
    RaisedFlag& operator=(const RaisedFlag&) = delete;

private:
    bool& flag_;
};

} // namespace

/// What became of one request: its value, and the error that was pending at its end. The statements around
/// an answer go on when one of them fails.
struct cls_AppServer::Reply {
    Variant value;
    std::optional<String> error;
    bool isAnswer = true;

    template <typename Statement>
    void attempt(Statement&& statement)
    {
        try {
            statement();
        } catch (const std::exception& raised) {
            error = fromUtf8(raised.what());
        }
    }
};

cls_AppServer::cls_AppServer() = default;

cls_AppServer::~cls_AppServer() = default;

const std::shared_ptr<cls_AppServerConfig>& cls_AppServer::CONFIG()
{
    if (!config_) {
        config_ = std::make_shared<cls_AppServerConfig>();
    }
    return config_;
}

void cls_AppServer::CONFIG(std::shared_ptr<cls_AppServerConfig> value)
{
    config_ = std::move(value);
}

void cls_AppServer::CLIENT(std::shared_ptr<CoreNetClient> value)
{
    received_ = {};
    client_ = std::move(value);
    if (client_) {
        received_ = client_->RECEIVED.connect([this](const CoreNetMessage& message, bool& rHandled) {
            lastAnswer_ = message.Text();
            rHandled = true;
        });
    }
}

CoreNetClient& cls_AppServer::networkClient() const
{
    if (!client_) {
        throw RuntimeError(ErrorNumber::ObjectNotSet);
    }
    return *client_;
}

void cls_AppServer::INIT()
{
    if (client_) {
        ignoringErrors([this] { client_->Close(); });
    }
    CLIENT(SessionState::current().platform().newNetClient());

    CoreNetOptions& options = networkClient().Options();
    options.TransportMode = 1;
    options.KeepOpen = true;
    options.SendTimeout = 10;
    options.ReceiveTimeout = 10;
    options.CloseTimeout = 10;
    options.PumpEvents = true;
    options.BufferSize = 10240;
    options.TextMode = 1;
    options.Compression = 0;
    options.ResponseTimeout = ShortestResponseTimeout;
    options.ConnectTimeout = CONFIG()->TIMEOUT();

    client_->EnableReceive(true);
    if (!ignoringErrors([this] { client_->OpenPort(CONFIG()->CLIENTPORT()); })) {
        offlineFixed_ = true;
    }
    const std::shared_ptr<cls_AppConfig>& app = QVAPP()->CONFIG();
    if (app->SOUNDMODE() == ID_SoundMode_AllOff) {
        app->SOUND(false);
    }
}

bool cls_AppServer::AVAILABLE()
{
    if (offlineFixed_ && !everLoggedOn_) {
        return false;
    }
    return online_ || CONNECT();
}

bool cls_AppServer::CONNECT()
{
    if (connecting_) {
        return false;
    }
    const auto alive = keptAlive();
    const RaisedFlag connecting(connecting_);
    if (QVAPP()->CONFIG()->PARAMETERS()->Exists(u"NONETWORK")) {
        offlineFixed_ = true;
        online_ = false;
        return false;
    }
    explain(u"SERVER:CONNECT Start");
    chooseScreenName();
    if (offlineFixed_ && !everLoggedOn_) {
        explain(u"SERVER:CONNECT Instant offline");
        online_ = false;
        explain(u"SERVER:CONNECT End");
        return false;
    }
    return logOn();
}

/// The screen name is the user's own, unless the master has decided that the computer names its user.
void cls_AppServer::chooseScreenName()
{
    const std::shared_ptr<cls_AppUser> user = QVAPP()->USER();
    const String login = coreRoot().CoreSystem().CoreMachine().UserName();
    bool ownName = true;
    ignoringErrors([&] { ownName = CONFIG()->SETTINGS()->Get(u"SCREENNAMES", true).toBoolean(); });
    user->SCREENNAMELOCK(!ownName);
    if (!ownName) {
        user->SCREENNAME(login);
        return;
    }
    if (user->SCREENNAME().empty()) {
        user->SCREENNAMEINPUT();
    }
    if (user->SCREENNAME().empty()) {
        user->SCREENNAME(login);
    }
}

/// From the second statement on errors are trapped.
bool cls_AppServer::logOn()
{
    const std::int32_t timeout = CONFIG()->TIMEOUT();
    networkClient().Options().ConnectTimeout = LogonConnectTimeout;
    ignoringErrors([this] { explain(u"SERVER:CONNECT Starting request"); });
    tryLogon();
    if (!online_) {
        tryLogonOnceMore();
    }
    if (online_) {
        ignoringErrors([] { wait(randomTime(LongestPauseAfterLogon)); });
    }
    if (!online_ && !everLoggedOn_) {
        offlineFixed_ = true;
    }
    ignoringErrors([&] { networkClient().Options().ConnectTimeout = timeout; });
    CONFIG()->TIMEOUT(timeout);
    ignoringErrors([this] { explain(u"SERVER:CONNECT End"); });
    return online_;
}

void cls_AppServer::tryLogon()
{
    const Reply reply = ask(u"SERVER", u"LOGON", QVAPP()->USER()->SCREENNAME());
    const bool isRight = reply.value == Variant(LogonAccepted);
    online_ = isRight && !reply.error;
    if (online_) {
        everLoggedOn_ = true;
        offlineFixed_ = false;
        ignoringErrors([this] { explain(u"SERVER:CONNECT Correct login"); });
        ignoringErrors([this] { welcome(); });
        return;
    }
    ignoringErrors([&] {
        explain(isRight ? u"SERVER:CONNECT Login with errors: " + reply.error.value_or(String())
                        : u"SERVER:CONNECT Incorrect logon answer received: " + asText(reply.value));
    });
}

/// An alternate address makes the client try again; the request goes to the same address as before.
void cls_AppServer::tryLogonOnceMore()
{
    const CoreRegistryRead& registry = coreRoot().CoreRegistry().CoreRegistryRead();
    const String address = registry.ReadString(
        SettingsHive::CurrentUser, QVAPP()->REGKEY() + u"ServerAlternateIP", {}, settings::TextLimit);
    if (!address.empty()) {
        ignoringErrors([this] { explain(u"SERVER:CONNECT Trying alternate IP"); });
        tryLogon();
    }
}

void cls_AppServer::welcome()
{
    const String message = asText(CONFIG()->SETTINGS()->Get(u"WELCOMEMESSAGE"));
    if (!message.empty()) {
        coreRoot().CoreDialogs().Info(message, u"Du spielst Online!",
                                      u"Ico\\32\\Computer\\Signs\\Information.ico");
    }
}

/// One request; nothing is raised. Its value is the empty text where no answer came.
cls_AppServer::Reply cls_AppServer::ask(StringView module, StringView command, StringView package)
{
    lastAnswer_.clear();
    ignoringErrors([&] { note(String(u"REQUEST: ").append(module).append(u":").append(command)); });
    const auto answer = sendUntilAnswered(requestText(module, command, package), responseTimeout(package));
    return answer ? evaluate(*answer) : Reply{u"", std::nullopt, false};
}

/// What fails is the pending error of the reply.
cls_AppServer::Reply cls_AppServer::evaluate(const String& answer)
{
    Reply reply;
    reply.attempt([&] { note(u"ANSWER: " + answer); });
    reply.attempt([&] { explain(u"SERVER:REQUEST Answer: " + answer); });
    reply.attempt([&] { reply.value = answerValue(answer); });
    lastAnswer_ = answerPayload(answer);
    reply.attempt([&] { explain(u"SERVER:REQUEST End"); });
    return reply;
}

/// Seconds to wait for the answer to a package: large ones take their time, logons do not.
double cls_AppServer::responseTimeout(StringView package) const
{
    if (!online_) {
        return ShortestResponseTimeout;
    }
    const double forPackage = toWhole(static_cast<double>(package.size()) / PackageUnitsPerSecond);
    return std::clamp(forPackage, ShortestResponseTimeout, LongestResponseTimeout);
}

/// Sends until the answer is there or patience is at its end. The time-out in force stays where the answer
/// has come, and goes back to the first one where none has.
std::optional<String> cls_AppServer::sendUntilAnswered(StringView message, double timeout)
{
    const double first = timeout;
    const auto putInForce = [this](double seconds) {
        ignoringErrors([&] { networkClient().Options().ResponseTimeout = seconds; });
    };
    for (int sends = 1;; ++sends) {
        putInForce(timeout);
        if (auto answer = sendOnce(message)) {
            return answer;
        }
        ignoringErrors([this] {
            note(u"TIMEOUT");
            explain(u"SERVER:REQUEST Timeout received");
            pump();
        });
        if (isExhausted(sends)) {
            putInForce(first);
            return std::nullopt;
        }
        ignoringErrors([] { wait(randomTime(LongestPauseBetweenSends)); });
        if (timeout < PatientResponseTimeout) {
            timeout += ResponseTimeoutStep;
        }
    }
}

/// A request that fails counts like one without answer.
std::optional<String> cls_AppServer::sendOnce(StringView message)
{
    String answer(NoAnswer);
    ignoringErrors([&] { answer = send(message); });
    lastAnswer_ = answer;
    return answer == NoAnswer ? std::nullopt : std::optional(std::move(answer));
}

/// Client and address may be replaced while the answer is awaited.
String cls_AppServer::send(StringView message)
{
    if (!client_) {
        throw RuntimeError(ErrorNumber::ObjectNotSet);
    }
    const std::shared_ptr<CoreNetClient> client = client_;
    const String address = CONFIG()->SERVERIP();
    return client->Request(message, address, CONFIG()->SERVERPORT(), nullptr, true, NoAnswer);
}

/// A client that has never logged on gives up at once. The other one sends six times, although the text
/// speaks of five.
bool cls_AppServer::isExhausted(int sends)
{
    if (!everLoggedOn_) {
        ignoringErrors([this] { explain(u"SERVER:REQUEST Instant timeout - exiting"); });
        return true;
    }
    if (sends > CountedSends) {
        ignoringErrors([this] { explain(u"SERVER:REQUEST Timeout after 5 tries - exiting"); });
        return true;
    }
    return false;
}

Variant cls_AppServer::REQUEST(StringView pModule, StringView pCmd, StringView pPackage)
{
    const auto alive = keptAlive();
    if (!online_ && !CONNECT()) {
        return {};
    }
    return ask(pModule, pCmd, pPackage).value;
}

std::optional<Variant> cls_AppServer::answerTo(StringView module, StringView command, StringView package)
{
    const auto alive = keptAlive();
    if (!online_ && !CONNECT()) {
        return std::nullopt;
    }
    Reply reply = ask(module, command, package);
    return reply.isAnswer ? std::optional(std::move(reply.value)) : std::nullopt;
}

void cls_AppServer::COMMAND(StringView pModule, StringView pCmd, StringView pPackage)
{
    deliver(pModule, pCmd, pPackage);
}

cls_AppServer::Delivery cls_AppServer::deliver(StringView module, StringView command, StringView package)
{
    const auto alive = keptAlive();
    if (!online_ && !CONNECT()) {
        return Delivery::Unanswered;
    }
    note(String(u"COMMAND: ").append(module).append(u":").append(command));
    String answer(NoAnswer);
    ignoringErrors([&] { answer = send(requestText(module, command, package)); });
    if (answer == NoAnswer) {
        return Delivery::Unanswered;
    }
    return isRefusal(answerPayload(answer)) ? Delivery::Refused : Delivery::Taken;
}

bool cls_AppServer::isStillThere()
{
    const auto alive = keptAlive();
    if (!ONLINE()) {
        return AVAILABLE();
    }
    return deliver(u"SERVER", u"MODE") != Delivery::Unanswered || CONNECT();
}

void cls_AppServer::DISCONNECT()
{
    const auto alive = keptAlive();
    if (offlineEvents_) {
        offlineEvents_->saveRest();
    }
    if (!online_) {
        return;
    }
    ignoringErrors([this] { COMMAND(u"SERVER", u"LOGOFF", QVAPP()->USER()->SCREENNAME()); });
    for (int closing = 0; closing < 2; ++closing) {
        ignoringErrors([this] { networkClient().Close(); });
    }
}

void cls_AppServer::ALIVE()
{
    if (online_) {
        COMMAND(u"SERVER", u"ALIVE");
    }
}

Variant cls_AppServer::SETTING(StringView pSettingName, const Variant& pDefaultValue)
{
    const auto alive = keptAlive();
    if (!online_ && !CONNECT()) {
        return pDefaultValue;
    }
    Variant value;
    ignoringErrors([&] { value = REQUEST(u"PROPERTIES", u"GET", pSettingName); });
    return saysNothing(value) ? pDefaultValue : value;
}

void cls_AppServer::ACTION(StringView pAction, const CoreParameters* pAdditional)
{
    const auto alive = keptAlive();
    const CoreParameters none;
    const CoreParameters& additional = pAdditional != nullptr ? *pAdditional : none;
    if (!online_ && !CONNECT()) {
        if (!offlineEvents_) {
            offlineEvents_ =
                std::make_unique<OfflineEvents>(QVAPP()->URL()->DATAHIGHSCORES() + u"event.qv-log");
        }
        offlineEvents_->add(pAction, additional);
        return;
    }
    const CoreMachine& machine = coreRoot().CoreSystem().CoreMachine();
    COMMAND(u"EVENT", u"ADD",
            CoreValuePacker::Pack({pAction, additional.Pack(), QVAPP()->USER()->SCREENNAME(),
                                   machine.ComputerName(), machine.UserName()}));
}

bool cls_AppServer::ALLOWED(bool pShowInfo)
{
    const auto alive = keptAlive();
    if (!online_ && !CONNECT()) {
        return true;
    }
    const auto refuse = [pShowInfo](StringView reason) {
        if (pShowInfo) {
            coreRoot().CoreDialogs().Error(reason);
        }
        return false;
    };
    const Variant mode = askForMode();
    if (saysNothing(mode)) {
        return refuse(u"Der Master antwortet leider nicht!");
    }
    if (asNumber(mode) == 0) {
        return refuse(u"Am Master wurde noch keine Lern-App ausgewählt. Bitte warte, bis eine Lern-App "
                      u"ausgewählt wurde!");
    }
    const Variant chosen = REQUEST(u"SERVER", u"GAMEIDENT");
    if (saysNothing(chosen)) {
        return refuse(u"Der Master antwortet nicht");
    }
    const std::shared_ptr<cls_AppConfig>& app = QVAPP()->CONFIG();
    const String name = upperCase(asText(chosen));
    if (name == upperCase(app->IDENT()) || name == upperCase(app->NAME())) {
        return true;
    }
    return refuse(u"Am Master wurde ein andere Lern-App ausgewählt! Diese Lern-App kann daher derzeit NICHT "
                  u"ausgeführt werden");
}

/// Asks several times; no answer when the master says nothing all the while.
Variant cls_AppServer::askForMode()
{
    for (int request = 1;; ++request) {
        Variant mode = REQUEST(u"SERVER", u"MODE");
        if (!saysNothing(mode) || request == ModeRequests) {
            return mode;
        }
        wait(PauseBeforeNextModeRequest);
    }
}

void cls_AppServer::MONITOR()
{
    networkClient().ShowMonitor();
}

/// Writes a line of the log.
void cls_AppServer::note(StringView text)
{
    log_.write(text);
    if (CONFIG()->DEBUGGER()) {
        coreRoot().CoreDialogs().Info(text);
    }
}

/// Tells a developer where the client is.
void cls_AppServer::explain(StringView text)
{
    if (CONFIG()->DEBUGGER()) {
        coreRoot().CoreDialogs().Info(text);
        pump();
    }
}

void cls_AppServer::pump()
{
    if (CONFIG()->AUTOEVENTS()) {
        wait(PumpTime);
    }
}

} // namespace phial
