#include "headless/ScriptedNetClient.h"

#include "core/RuntimeError.h"

#include <utility>

namespace phial::headless
{

ScriptedNetClient::ScriptedNetClient(std::shared_ptr<ScriptedNetwork> network,
                                     std::shared_ptr<EventPump> pump, std::shared_ptr<Clock> clock)
    : network_(std::move(network)), pump_(std::move(pump)), clock_(std::move(clock)),
      messages_(network_->messages_.connect(
          [this](const String& text, bool& rHandled) { rHandled = receive(text) || rHandled; }))
{
}

bool ScriptedNetClient::receive(const String& text)
{
    bool handled = false;
    if (receiving_) {
        RECEIVED.raise(CoreNetMessage(text, u"127.0.0.1", 0), handled);
    }
    return handled;
}

void ScriptedNetClient::OpenPort(std::int32_t pPort)
{
    if (network_->refusePorts_) {
        throw RuntimeError(ErrorNumber::InvalidArgument, u"the port is taken");
    }
    network_->openedPorts_.push_back(pPort);
}

void ScriptedNetClient::Close()
{
    ++network_->closed_;
}

String ScriptedNetClient::Request(StringView pMessage, StringView pIP, std::int32_t pPort,
                                  const CoreParameters* /*pParameters*/, bool pWait,
                                  StringView pTimeoutAnswer)
{
    const String message(pMessage);
    network_->requests_.push_back(
        {message, String(pIP), pPort, options_.ConnectTimeout, options_.ResponseTimeout});
    const double timeout = options_.ResponseTimeout;
    const auto answer = network_->answers_ ? network_->answers_(message) : std::nullopt;
    if (!pWait) {
        return {};
    }
    const String withoutAnswer(pTimeoutAnswer); // handlers may change what the view shows
    const MasterPatience::Wait wait(patience_, *clock_);
    const double delay = network_->answerDelay_;
    if (!answer || delay > timeout) {
        pump_->pumpFor(patience_.allowed(timeout));
        return withoutAnswer;
    }
    if (delay > 0) {
        pump_->pumpFor(delay);
    }
    patience_.signOfLife(clock_->seconds());
    return *answer;
}

void ScriptedNetClient::ShowMonitor()
{
    ++network_->monitorsShown_;
}

} // namespace phial::headless
