#pragma once

#include "core/Clock.h"
#include "core/CoreNetClient.h"
#include "core/EventPump.h"
#include "server/MasterPatience.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace phial::headless
{

/// A request that a client has sent.
struct SentRequest {
    String message;
    String address;
    std::int32_t port = 0;
    double connectTimeout = 0;
    double responseTimeout = 0;
};

/// The far side of every scripted client: it answers requests by a function and keeps a record. One network
/// serves all the clients of a test.
class ScriptedNetwork
{
public:
    /// Gives the answer to a message, or no value for silence. It may raise an error, as a connection that
    /// fails would.
    using Answers = std::function<std::optional<String>(const String& message)>;

    /// At first nobody answers.
    void answerWith(Answers answers) { answers_ = std::move(answers); }
    /// Answers come so many seconds after their requests from now on, or from within the function for its own
    /// answer on. One that would come after the response time-out does not come.
    void answerAfter(double seconds) { answerDelay_ = seconds; }
    /// Sends a message to every client that receives; gives whether one has handled it.
    bool send(const String& text) const
    {
        bool handled = false;
        messages_.raise(text, handled);
        return handled;
    }
    /// Whether `OpenPort` raises an error from now on.
    void refusePorts(bool refuse) { refusePorts_ = refuse; }

    const std::vector<SentRequest>& requests() const { return requests_; }
    const std::vector<std::int32_t>& openedPorts() const { return openedPorts_; }
    int closed() const { return closed_; }
    int monitorsShown() const { return monitorsShown_; }

private:
    friend class ScriptedNetClient;

    Answers answers_;
    double answerDelay_ = 0;
    Event<const String&, bool& /*rHandled*/> messages_;
    bool refusePorts_ = false;
    std::vector<SentRequest> requests_;
    std::vector<std::int32_t> openedPorts_;
    int closed_ = 0;
    int monitorsShown_ = 0;
};

/// A network client whose far side is scripted. Where no answer comes, the response time-out passes on the
/// clock, with events pumped, as far as `MasterPatience` allows.
class ScriptedNetClient : public CoreNetClient
{
public:
    ScriptedNetClient(std::shared_ptr<ScriptedNetwork> network, std::shared_ptr<EventPump> pump,
                      std::shared_ptr<Clock> clock);

    /// Lets a message come in; gives whether a handler took it. Nothing comes in before `EnableReceive`.
    bool receive(const String& text);

    CoreNetOptions& Options() override { return options_; }
    void EnableReceive(bool pEnable) override { receiving_ = pEnable; }
    void OpenPort(std::int32_t pPort) override;
    void Close() override;
    String Request(StringView pMessage, StringView pIP, std::int32_t pPort, const CoreParameters* pParameters,
                   bool pWait, StringView pTimeoutAnswer) override;
    void ShowMonitor() override;

private:
    std::shared_ptr<ScriptedNetwork> network_;
    std::shared_ptr<EventPump> pump_;
    std::shared_ptr<Clock> clock_;
    MasterPatience patience_;
    CoreNetOptions options_;
    bool receiving_ = false;
    Connection messages_;
};

} // namespace phial::headless
