#pragma once

#include "core/Event.h"
#include "core/String.h"
#include "core/Variant.h"
#include "server/NetLog.h"

#include <cstdint>
#include <memory>
#include <optional>

namespace phial
{

class CoreNetClient;
class CoreParameters;
class OfflineEvents;
class cls_AppServerConfig;

/// The client of the classroom's master. Every operation degrades to a local default: without a master
/// requests are empty, apps are allowed, and events go to a file of this computer. No failure of the network
/// is raised.
///
/// Requests, waits and boxes run events: any handler can run meanwhile and use this object. Each request
/// keeps its own answer and its own time-outs. A logon is never begun within a logon: the inner one gives
/// False at once. The object may even be replaced in the root during its own call.
class cls_AppServer : public std::enable_shared_from_this<cls_AppServer>
{
public:
    /// Begins the network log of this run.
    cls_AppServer();
    ~cls_AppServer();
    cls_AppServer(const cls_AppServer&) = delete;
    cls_AppServer& operator=(const cls_AppServer&) = delete;

    /// Made when first read.
    const std::shared_ptr<cls_AppServerConfig>& CONFIG();
    void CONFIG(std::shared_ptr<cls_AppServerConfig> value);

    /// Made by `INIT`; not set before.
    const std::shared_ptr<CoreNetClient>& CLIENT() const { return client_; }
    void CLIENT(std::shared_ptr<CoreNetClient> value);

    /// Makes the network client and binds its port; no message goes out. A client that cannot bind has given
    /// up until `RECHECK`. When it is called again, the client of before is closed.
    void INIT();
    /// Whether a master can be used; logs on if needed.
    bool AVAILABLE();
    /// Whether the client is logged on; no traffic.
    bool ONLINE() const { return online_ && !offlineFixed_; }
    /// Logs on under the user's screen name, for which the user is asked if there is none. Raises 91 without
    /// a network client.
    bool CONNECT();
    /// Saves the events that could not be saved before. Logs off, if logged on; may be called again.
    void DISCONNECT();
    /// Lets the next call try again after the client has given up.
    void RECHECK() { offlineFixed_ = false; }

    /// A property of the master, or the default.
    Variant SETTING(StringView pSettingName, const Variant& pDefaultValue);
    /// Records an event at the master, or without one in the file "event.qv-log" beside the highscores.
    void ACTION(StringView pAction, const CoreParameters* pAdditional = nullptr);
    /// A request with its answer. Without one it is the empty text where a master was asked in vain, and has
    /// no value where there is none to ask or its answer cannot be read.
    Variant REQUEST(StringView pModule, StringView pCmd, StringView pPackage = {});
    /// A message whose answer is of no interest.
    void COMMAND(StringView pModule, StringView pCmd, StringView pPackage = {});

    /// What became of a message.
    enum class Delivery : std::uint8_t {
        Unanswered, ///< the master may have it or not
        Refused,    ///< it has answered with its word for that
        Taken,
    };
    /// `COMMAND` for senders that must know whether the message has come in.
    Delivery deliver(StringView module, StringView command, StringView package = {});
    /// `REQUEST` for askers that must tell an empty answer from none: no value where no answer has come.
    std::optional<Variant> answerTo(StringView module, StringView command, StringView package = {});
    /// Whether a master can be used and is there at this moment: asks it something small, once, and logs on
    /// anew where no answer comes, so that the client is offline afterwards when the master has gone.
    bool isStillThere();

    /// Tells a master that this client is still there; nothing while not logged on.
    void ALIVE();
    /// Whether this app may run now; `pShowInfo` tells the user why not.
    bool ALLOWED(bool pShowInfo = true);
    /// Opens the network client's monitor window. Raises 91 without a network client.
    void MONITOR();

    /// What came last, for inspection: the payload of an answer, or the text of a message that came unasked.
    const String& lastAnswer() const { return lastAnswer_; }

private:
    struct Reply;

    CoreNetClient& networkClient() const;
    /// The object itself, so that it outlives the events which its calls run.
    std::shared_ptr<cls_AppServer> keptAlive() { return weak_from_this().lock(); }

    bool logOn();
    void chooseScreenName();
    void tryLogon();
    void tryLogonOnceMore();
    void welcome();

    Reply ask(StringView module, StringView command, StringView package);
    Reply evaluate(const String& answer);
    double responseTimeout(StringView package) const;
    std::optional<String> sendUntilAnswered(StringView message, double timeout);
    std::optional<String> sendOnce(StringView message);
    String send(StringView message);
    bool isExhausted(int sends);
    Variant askForMode();

    void note(StringView text);
    void explain(StringView text);
    void pump();

    std::shared_ptr<cls_AppServerConfig> config_;
    std::shared_ptr<CoreNetClient> client_;
    Connection received_;
    String lastAnswer_;
    NetLog log_;
    std::unique_ptr<OfflineEvents> offlineEvents_;
    bool connecting_ = false;
    bool online_ = false;
    bool offlineFixed_ = false;
    bool everLoggedOn_ = false;
};

} // namespace phial
