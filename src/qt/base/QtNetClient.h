#pragma once

#include "core/CoreNetClient.h"
#include "qt/base/DispatchGuard.h"
#include "server/MasterPatience.h"

#include <cstdint>
#include <functional>
#include <memory>

namespace phial
{
class TrafficLog;
} // namespace phial

namespace phial::qt
{

/// Makes the window that shows a client's traffic; what it gives opens that window, and keeps it.
using TrafficWindow = std::function<std::function<void()>(std::shared_ptr<TrafficLog>)>;

/// The network client on the toolkit's sockets; docs/protocol.md describes what goes over them.
///
/// One connection is kept for each master and made anew when a request finds it lost. Of the options
/// `ConnectTimeout`, `ResponseTimeout`, `BufferSize` (between 512 bytes and 1 MiB) and `ReceiveTimeout`
/// count, the last as the time in which a message that comes in must be complete. Errors of handlers of
/// `RECEIVED` go to the guard.
///
/// A request takes at most `ResponseTimeout`, the time to connect included, and no longer than
/// `MasterPatience` allows.
///
/// A text that is asked again because its answer did not come goes out under the same id, see RequestIds.
///
/// `Close`, and the client's end, end every running `Request` with the error of a lost connection.
class QtNetClient final : public CoreNetClient
{
public:
    /// Without a window for the traffic there is no monitor.
    explicit QtNetClient(std::shared_ptr<DispatchGuard> guard, TrafficWindow window = {},
                         const MasterPatience::Limits& patience = {});
    ~QtNetClient() override;
    QtNetClient(const QtNetClient&) = delete;
    QtNetClient& operator=(const QtNetClient&) = delete;

    CoreNetOptions& Options() override;
    void EnableReceive(bool pEnable) override;
    /// Raises 68 when the port is taken. Port 0 takes any free one. A port opened before is closed.
    void OpenPort(std::int32_t pPort) override;
    void Close() override;
    /// Raises 5 for a text that is too long to be sent or a port beyond 1 to 65535, and 68 when the
    /// connection cannot be made or is lost before the answer is there.
    String Request(StringView pMessage, StringView pIP, std::int32_t pPort, const CoreParameters* pParameters,
                   bool pWait, StringView pTimeoutAnswer) override;
    /// Nothing happens where there is no window for the traffic. It ends with the client.
    void ShowMonitor() override;

    /// The port that is open; 0 when none is.
    std::int32_t openPort() const;

private:
    class Exchange;

    std::shared_ptr<Exchange> exchange_; // outlives the client in a running request
    std::shared_ptr<TrafficLog> traffic_;
    TrafficWindow window_;
    std::function<void()> monitor_; // empty until it is first shown
};

} // namespace phial::qt
