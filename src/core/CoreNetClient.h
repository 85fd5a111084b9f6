#pragma once

#include "core/CoreNetMessage.h"
#include "core/CoreNetOptions.h"
#include "core/Event.h"
#include "core/String.h"

#include <cstdint>

namespace phial
{

class CoreParameters;

/// The network client: text requests with their answers, and messages that come by themselves.
class CoreNetClient
{
public:
    virtual ~CoreNetClient() = default;

    /// The options in force; changes count from the next request on.
    virtual CoreNetOptions& Options() = 0;

    virtual void EnableReceive(bool pEnable) = 0;

    /// Binds the local port for incoming messages; raises an error when that fails.
    virtual void OpenPort(std::int32_t pPort) = 0;

    /// Closes the connection and the port; may be called again.
    virtual void Close() = 0;

    /// Sends a text and gives the answer. With `pWait` events run until it comes; when
    /// `Options().ResponseTimeout` runs out the result is `pTimeoutAnswer`. Without `pWait` nothing is
    /// awaited and the result is empty. `pParameters` may be null. A connection that cannot be made raises an
    /// error.
    virtual String Request(StringView pMessage, StringView pIP, std::int32_t pPort,
                           const CoreParameters* pParameters, bool pWait, StringView pTimeoutAnswer) = 0;

    /// Opens a window that shows the traffic.
    virtual void ShowMonitor() = 0;

    /// A message came in; the handler says whether it has handled it. Emitted while events run.
    Event<const CoreNetMessage&, bool& /*rHandled*/> RECEIVED;
};

} // namespace phial
