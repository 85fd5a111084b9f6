#pragma once

#include "core/CoreParameters.h"
#include "core/String.h"

#include <cstdint>
#include <memory>

namespace phial
{

/// Where the classroom's master is and what it has told its clients. Address, time-out and the master's
/// settings are kept in the user's settings; the ports are not.
class cls_AppServerConfig
{
public:
    /// `DEFAULTS`, then `LOAD`.
    cls_AppServerConfig();

    /// Named settings decided at the master; made when first read.
    const std::shared_ptr<CoreParameters>& SETTINGS();
    void SETTINGS(std::shared_ptr<CoreParameters> value) { settings_ = std::move(value); }

    const String& SERVERIP() const { return serverIp_; }
    void SERVERIP(String value) { serverIp_ = std::move(value); }
    std::int32_t SERVERUDP() const { return serverUdp_; }
    void SERVERUDP(std::int32_t value) { serverUdp_ = value; }
    std::int32_t SERVERPORT() const { return serverPort_; }
    void SERVERPORT(std::int32_t value) { serverPort_ = value; }
    std::int32_t CLIENTPORT() const { return clientPort_; }
    void CLIENTPORT(std::int32_t value) { clientPort_ = value; }
    /// The connect time-out in seconds.
    std::int32_t TIMEOUT() const { return timeout_; }
    void TIMEOUT(std::int32_t value) { timeout_ = value; }
    /// Whether each step of the client is told in a box.
    bool DEBUGGER() const { return debugger_; }
    void DEBUGGER(bool value) { debugger_ = value; }
    /// Whether events run at the client's pump points.
    bool AUTOEVENTS() const { return autoEvents_; }
    void AUTOEVENTS(bool value) { autoEvents_ = value; }

    /// Everything as at first but `DEBUGGER` and `SETTINGS`.
    void DEFAULTS();
    void LOAD();
    void SAVE();

    /// All values as one text (docs/protocol.md), and back. A text with another head does nothing; one with
    /// fewer fields raises 9 when those before have been taken over.
    String PACK();
    void PACK(StringView value);

private:
    std::shared_ptr<CoreParameters> settings_;
    String serverIp_;
    std::int32_t serverUdp_ = 0;
    std::int32_t serverPort_ = 0;
    std::int32_t clientPort_ = 0;
    std::int32_t timeout_ = 0;
    bool debugger_ = false;
    bool autoEvents_ = true;
};

} // namespace phial
