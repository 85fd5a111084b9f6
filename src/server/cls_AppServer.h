#pragma once

#include "core/Event.h"
#include "core/String.h"
#include "core/Variant.h"

#include <memory>

namespace phial
{

class CoreNetClient;
class CoreParameters;
class cls_AppServerConfig;
class cls_DataEvents;

/// The client of the classroom's master. Every operation degrades to a local default: without a master
/// requests are empty, apps are allowed, and events go to a file of this computer. No failure of the network
/// is raised.
///
/// Requests and waits run events: any handler can run meanwhile.
class cls_AppServer
{
public:
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

    /// Makes the network client and binds its port; no message goes out.
    void INIT();
    /// Whether a master can be used; logs on if needed.
    bool AVAILABLE();
    /// Whether the client is logged on; no traffic.
    bool ONLINE() const;
    /// Logs on. Raises 91 without a network client.
    bool CONNECT();
    void DISCONNECT();
    /// Lets the next call try again after the client has given up.
    void RECHECK();

    /// A property of the master, or the default.
    Variant SETTING(StringView pSettingName, const Variant& pDefaultValue);
    /// Records an event at the master, or on this computer.
    void ACTION(StringView pAction, const CoreParameters* pAdditional = nullptr);
    /// A request with its answer; empty without one.
    Variant REQUEST(StringView pModule, StringView pCmd, StringView pPackage = {});
    /// A message whose answer is of no interest.
    void COMMAND(StringView pModule, StringView pCmd, StringView pPackage = {});
    void ALIVE();
    /// Whether this app may run now; `pShowInfo` tells the user why not.
    bool ALLOWED(bool pShowInfo = true);
    /// Opens the network client's monitor window.
    void MONITOR();

private:
    std::shared_ptr<cls_AppServerConfig> config_;
    std::shared_ptr<CoreNetClient> client_;
    std::shared_ptr<cls_DataEvents> offlineEvents_;
    Connection received_;
    String lastAnswer_;
    String logFile_;
    bool online_ = false;
    bool offlineFixed_ = false;
    bool everLoggedOn_ = false;
};

} // namespace phial
