#include "support/ScriptedMaster.h"

#include "core/RuntimeError.h"

#include <utility>

namespace phial::test
{

namespace
{

WireRequest parsed(const String& message)
{
    return parseRequest(message).value_or(WireRequest{});
}

String nameOf(const WireRequest& request)
{
    return request.module + u":" + request.command;
}

} // namespace

ScriptedMaster::ScriptedMaster(headless::ScriptedNetwork& network) : network_(network)
{
    knows(u"SERVER:LOGON", u"LOGON:OK");
    knows(u"SERVER:MODE", 1);
    network_.answerWith([this](const String& message) { return answer(message); });
}

ScriptedMaster::~ScriptedMaster()
{
    network_.answerWith({});
}

void ScriptedMaster::missesOne()
{
    turns_.emplace_back([] { return std::nullopt; });
}

void ScriptedMaster::breaksOne()
{
    turns_.emplace_back([]() -> std::optional<String> {
        throw RuntimeError(ErrorNumber::DeviceUnavailable, u"the connection is broken");
    });
}

void ScriptedMaster::answersOne(String answer)
{
    turns_.emplace_back([answer = std::move(answer)] { return answer; });
}

std::optional<String> ScriptedMaster::answer(const String& message)
{
    const WireRequest request = parsed(message);
    asked(request);
    network_.answerAfter(seconds_);
    if (const auto again = std::exchange(repetition_, std::nullopt)) {
        network_.send(*again);
    }
    if (!turns_.empty()) {
        const Turn turn = std::move(turns_.front());
        turns_.pop_front();
        return turn();
    }
    const auto text = known(request);
    if (repeats_) {
        repetition_ = text;
    }
    return text;
}

std::optional<String> ScriptedMaster::known(const WireRequest& request) const
{
    if (!there_) {
        return std::nullopt;
    }
    const auto entry = answers_.find(nameOf(request));
    return entry == answers_.end() ? answerText(u"ERROR") : entry->second;
}

std::vector<String> ScriptedMaster::requests() const
{
    std::vector<String> names;
    for (const headless::SentRequest& request : network_.requests()) {
        names.push_back(nameOf(parsed(request.message)));
    }
    return names;
}

String ScriptedMaster::package() const
{
    return network_.requests().empty() ? String() : parsed(network_.requests().back().message).package;
}

} // namespace phial::test
